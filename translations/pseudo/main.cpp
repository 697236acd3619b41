// Makes a language out of the texts themselves, for tests: each text accented, longer by half and in brackets. What is
// shown without brackets was never translated; what is cut off leaves no room for languages that need more of it.
#include <QFile>
#include <QString>
#include <QTextStream>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace {

QChar Accented(QChar letter)
{
    static const QString plain = QStringLiteral("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ");
    static const QString accented = QStringLiteral("áƀçđéƒĝĥíĵķĺɱñóƥɋŕšťúṽŵẋýžÁɃÇĐÉƑĜĤÍĴĶĹṀÑÓƤɊŔŠŤÚṼŴẊÝŽ");
    const int at = plain.indexOf(letter);
    return at < 0 ? letter : accented.at(at);
}

/// \p text accented, but for what a program reads: places for other texts, mnemonics and file patterns.
QString Accented(const QString& text)
{
    QString result;
    bool isPattern = false;
    for (int i = 0; i < text.size(); ++i) {
        isPattern = (isPattern || text.midRef(i, 2) == QLatin1String("(*")) && text.at(i) != u')';
        const bool isRead = isPattern || (i > 0 && (text.at(i - 1) == u'&' || text.at(i - 1) == u'%'));
        result.append(isRead ? text.at(i) : Accented(text.at(i)));
    }
    return result;
}

QString Filling(int length)
{
    return QStringLiteral(" óñé ťŵó ťĥŕéé ƒóúŕ ƒíṽé šíẋ šéṽéñ").repeated(length / 34 + 1).left(length);
}

QString Pseudo(const QString& source)
{
    const QString core = source.trimmed();
    if (core.isEmpty()) {
        return source;
    }
    // A unit behind a number is a symbol, which no language makes longer.
    if (source.startsWith(u' ')) {
        return Accented(source);
    }
    const int start = source.indexOf(core);
    return source.left(start) + u'⟦' + Accented(core) + Filling((core.size() + 1) / 2) + u'⟧' +
           source.mid(start + core.size());
}

/// Copies a translation file with other translations.
void Translate(QXmlStreamReader& from, QXmlStreamWriter& to)
{
    QString source;
    while (!from.atEnd()) {
        from.readNext();
        if (from.isStartElement() && from.name() == QLatin1String("source")) {
            source = from.readElementText();
            to.writeTextElement(QStringLiteral("source"), source);
        } else if (from.isStartElement() && from.name() == QLatin1String("translation")) {
            from.skipCurrentElement();
            to.writeTextElement(QStringLiteral("translation"), Pseudo(source));
        } else if (!from.isDTD()) {
            to.writeCurrentToken(from);
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    QTextStream err(stderr);
    if (argc != 3) {
        err << "Usage: " << argv[0] << " FROM.ts TO.ts" << Qt::endl;
        return 2;
    }
    QFile from(QString::fromLocal8Bit(argv[1]));
    QFile to(QString::fromLocal8Bit(argv[2]));
    if (!from.open(QIODevice::ReadOnly) || !to.open(QIODevice::WriteOnly)) {
        err << from.fileName() << ": " << from.errorString() << '\n'
            << to.fileName() << ": " << to.errorString() << Qt::endl;
        return 1;
    }
    QXmlStreamReader reader(&from);
    QXmlStreamWriter writer(&to);
    Translate(reader, writer);
    if (reader.hasError() || writer.hasError()) {
        err << from.fileName() << ": " << reader.errorString() << Qt::endl;
        return 1;
    }
    return 0;
}
