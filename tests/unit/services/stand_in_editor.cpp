// Stands in for an image editor: writes what it was started with into the file that SOFTCLOTH_EDITOR_NOTES names.

#include <QCoreApplication>
#include <QSaveFile>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QSaveFile notes(qEnvironmentVariable("SOFTCLOTH_EDITOR_NOTES"));
    const QByteArray text = QCoreApplication::arguments().mid(1).join(u'\n').toUtf8();
    return notes.open(QIODevice::WriteOnly) && notes.write(text) == text.size() && notes.commit() ? 0 : 1;
}
