// Stands in for an image editor. Writes what it was started with into the file that SOFTCLOTH_EDITOR_NOTES names; with
// --put IMAGE it puts that image in place of the one that it is given instead.

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.value(0) == QLatin1String("--put")) {
        return QFile::remove(arguments.value(2)) && QFile::copy(arguments.value(1), arguments.value(2)) ? 0 : 1;
    }
    QSaveFile notes(qEnvironmentVariable("SOFTCLOTH_EDITOR_NOTES"));
    const QByteArray text = arguments.join(u'\n').toUtf8();
    return notes.open(QIODevice::WriteOnly) && notes.write(text) == text.size() && notes.commit() ? 0 : 1;
}
