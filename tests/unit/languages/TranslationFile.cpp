#include "tests/unit/languages/TranslationFile.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QXmlStreamReader>

QStringList TranslationFiles()
{
    return QDir(QStringLiteral(SOFTCLOTH_TRANSLATIONS)).entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name);
}

QVector<TranslatedText> ReadTranslationFile(const QString& name)
{
    QFile file(QDir(QStringLiteral(SOFTCLOTH_TRANSLATIONS)).filePath(name));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(name), qPrintable(file.errorString()));
    }
    QVector<TranslatedText> texts;
    TranslatedText text;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement()) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            text.context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.state = xml.attributes().value(QLatin1String("type")).toString();
            text.translation = xml.readElementText();
            texts.append(text);
        }
    }
    if (xml.hasError()) {
        qFatal("%s: %s", qPrintable(name), qPrintable(xml.errorString()));
    }
    return texts;
}

QChar MnemonicOf(const QString& text)
{
    for (int i = 0; i + 1 < text.size(); ++i) {
        if (text.at(i) == u'&') {
            ++i;
            if (text.at(i) != u'&') {
                return text.at(i).toLower();
            }
        }
    }
    return {};
}
