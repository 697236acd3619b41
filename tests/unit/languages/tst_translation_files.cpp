#include "tests/support/TestCase.h"
#include "tests/unit/languages/TranslationFile.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iterator>

/// The files with the translations, against the texts that they translate.
class TestTranslationFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void panelAndWorkbenchHaveTheSameLanguages();
    void everyTextIsTranslated_data() { AddFiles(); }
    void everyTextIsTranslated();
    void whatIsPutInAndLineBreaksAreKept_data() { AddFiles(); }
    void whatIsPutInAndLineBreaksAreKept();
    void mnemonicsStayMnemonics_data() { AddFiles(); }
    void mnemonicsStayMnemonics();
    void mnemonicsOfAFormDiffer_data() { AddFiles(); }
    void mnemonicsOfAFormDiffer();
    void mnemonicsOfThePanelAndTheMenuBarDiffer_data();
    void mnemonicsOfThePanelAndTheMenuBarDiffer();
    void unitsAndFilePatternsAreKept_data() { AddFiles(); }
    void unitsAndFilePatternsAreKept();

private:
    static void AddFiles();
};

namespace {

QStringList LanguagesOf(const QString& prefix)
{
    QStringList languages;
    const QStringList files = TranslationFiles();
    for (const QString& file : files) {
        if (file.startsWith(prefix)) {
            languages.append(file.mid(prefix.size()).chopped(3));
        }
    }
    return languages;
}

/// The places of \p text where something is put in, and its line breaks, in alphabetical order.
QStringList MarksOf(const QString& text)
{
    static const QRegularExpression mark(QStringLiteral("%\\d|\n"));
    QStringList marks;
    auto found = mark.globalMatch(text);
    while (found.hasNext()) {
        marks.append(found.next().captured());
    }
    marks.sort();
    return marks;
}

/// Contexts in which all texts with a mnemonic are shown at once. In the others it depends on the menu.
bool IsForm(const QString& context)
{
    return context.startsWith(QLatin1String("SoftCloth")) || context == QLatin1String("Host::HostControls");
}

/// A text of one of the four sections, or the title of a menu.
bool IsInMainWindow(const TranslatedText& text)
{
    static const QStringList sections{QStringLiteral("SoftClothPreset"), QStringLiteral("SoftClothProperty"),
                                      QStringLiteral("SoftClothCollision"), QStringLiteral("SoftClothWindSetting")};
    static const QStringList menus{QStringLiteral("&File"), QStringLiteral("&Edit"), QStringLiteral("&View")};
    return sections.contains(text.context) ||
           (text.context.startsWith(QLatin1String("Host::")) && menus.contains(text.source));
}

} // namespace

void TestTranslationFiles::AddFiles()
{
    QTest::addColumn<QString>("file");
    const QStringList files = TranslationFiles();
    for (const QString& file : files) {
        QTest::newRow(qPrintable(file)) << file;
    }
}

void TestTranslationFiles::panelAndWorkbenchHaveTheSameLanguages()
{
    QVERIFY(!LanguagesOf(QStringLiteral("softcloth_")).isEmpty());
    QCOMPARE(LanguagesOf(QStringLiteral("softcloth_")), LanguagesOf(QStringLiteral("workbench_")));
}

void TestTranslationFiles::everyTextIsTranslated()
{
    QFETCH(const QString, file);
    const QVector<TranslatedText> texts = ReadTranslationFile(file);
    QVERIFY(texts.size() > 100);
    for (const TranslatedText& text : texts) {
        QVERIFY2(text.state.isEmpty() && !text.translation.isEmpty(),
                 qPrintable(text.context + QLatin1String(": ") + text.source));
    }
}

void TestTranslationFiles::whatIsPutInAndLineBreaksAreKept()
{
    QFETCH(const QString, file);
    const QVector<TranslatedText> texts = ReadTranslationFile(file);
    for (const TranslatedText& text : texts) {
        QVERIFY2(MarksOf(text.translation) == MarksOf(text.source), qPrintable(text.translation));
    }
}

void TestTranslationFiles::mnemonicsStayMnemonics()
{
    QFETCH(const QString, file);
    const QVector<TranslatedText> texts = ReadTranslationFile(file);
    for (const TranslatedText& text : texts) {
        QVERIFY2(text.translation.count(u'&') == text.source.count(u'&') &&
                     MnemonicOf(text.translation).isNull() == MnemonicOf(text.source).isNull(),
                 qPrintable(text.translation));
    }
}

/// Only keys that every keyboard has do for mnemonics.
void TestTranslationFiles::mnemonicsOfAFormDiffer()
{
    QFETCH(const QString, file);
    QHash<QString, QHash<QChar, QString>> used;
    const QVector<TranslatedText> texts = ReadTranslationFile(file);
    for (const TranslatedText& text : texts) {
        const QChar key = MnemonicOf(text.translation);
        if (key.isNull()) {
            continue;
        }
        QVERIFY2(key >= u'a' && key <= u'z', qPrintable(text.translation));
        if (IsForm(text.context)) {
            const QString other = used[text.context].value(key);
            QVERIFY2(other.isEmpty(), qPrintable(text.context + QLatin1String(": ") + other + QLatin1String(" and ") +
                                                 text.translation));
            used[text.context].insert(key, text.translation);
        }
    }
}

void TestTranslationFiles::mnemonicsOfThePanelAndTheMenuBarDiffer_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("of the sources") << QString();
    const QStringList languages = LanguagesOf(QStringLiteral("softcloth_"));
    for (const QString& language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

/// The four sections are in one window with the menu bar.
void TestTranslationFiles::mnemonicsOfThePanelAndTheMenuBarDiffer()
{
    QFETCH(const QString, language);
    const QString file = language.isEmpty() ? LanguagesOf(QStringLiteral("softcloth_")).constFirst() : language;
    QVector<TranslatedText> shown;
    for (const char* part : {"softcloth_", "workbench_"}) {
        const QVector<TranslatedText> texts = ReadTranslationFile(QLatin1String(part) + file + QLatin1String(".ts"));
        std::copy_if(texts.begin(), texts.end(), std::back_inserter(shown), IsInMainWindow);
    }
    QHash<QChar, QString> used;
    int count = 0;
    for (const TranslatedText& text : qAsConst(shown)) {
        const QString& caption = language.isEmpty() ? text.source : text.translation;
        const QChar key = MnemonicOf(caption);
        if (key.isNull()) {
            continue;
        }
        QVERIFY2(!used.contains(key), qPrintable(used.value(key) + QLatin1String(" and ") + caption));
        used.insert(key, caption);
        ++count;
    }
    QVERIFY(count >= 20);
}

/// The blank in front of a unit, and file patterns.
void TestTranslationFiles::unitsAndFilePatternsAreKept()
{
    QFETCH(const QString, file);
    static const QRegularExpression pattern(QStringLiteral("\\(\\*\\.[^)]*\\)"));
    const QVector<TranslatedText> texts = ReadTranslationFile(file);
    for (const TranslatedText& text : texts) {
        QVERIFY2(text.translation.startsWith(u' ') == text.source.startsWith(u' '), qPrintable(text.translation));
        const QString files = pattern.match(text.source).captured();
        QVERIFY2(pattern.match(text.translation).captured() == files, qPrintable(text.translation));
    }
}

SOFTCLOTH_TEST(TestTranslationFiles)
#include "tst_translation_files.moc"
