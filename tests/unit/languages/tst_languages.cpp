#include "host/images/ImageDecode.h"
#include "host/import/ModelImport.h"
#include "host/scene/Scene.h"
#include "host/scene/SceneFile.h"
#include "host/workbench/Languages.h"
#include "tests/support/TestCase.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

/// Which languages there are, and which one somebody gets.
class TestLanguages : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void bestLanguageOfAReader_data();
    void bestLanguageOfAReader();
    void languagesAreThoseOfTheFiles();
    void chosenLanguageIsSpoken();
#ifndef Q_OS_WIN
    void qtSpeaksItToo();
#endif
    void refusalsSpeakIt_data();
    void refusalsSpeakIt();
    void unknownLanguageChangesNothing();
    void languagesHaveTheirOwnNames_data();
    void languagesHaveTheirOwnNames();
};

namespace {

const QStringList folders{QStringLiteral(SOFTCLOTH_PANEL_LANGUAGES), QStringLiteral(SOFTCLOTH_WORKBENCH_LANGUAGES)};

QString PanelText()
{
    return QCoreApplication::translate("SoftClothProperty", "Friction");
}

QString WorkbenchText()
{
    return QCoreApplication::translate("Host::HostCallsView", "Copy");
}

/// What the user is shown when the host refuses the file \p path.
using Refusal = QString (*)(const QString& path);

QString LoadedScene(const QString& path)
{
    std::unique_ptr<Host::Scene> scene;
    return Host::LoadScene(path, scene).error;
}

QString ImportedModel(const QString& path)
{
    return Host::ImportModel(path).error;
}

QString DecodedFile(const QString& path)
{
    return Host::UnreadableImageText(path, Host::DecodeImageFile(path).error);
}

} // namespace

Q_DECLARE_METATYPE(Refusal)

void TestLanguages::bestLanguageOfAReader_data()
{
    QTest::addColumn<QStringList>("wanted");
    QTest::addColumn<QString>("best");
    const auto row = [](const char* wanted, const char* best) {
        QTest::newRow(wanted) << QString::fromLatin1(wanted).split(u' ') << QString::fromLatin1(best);
    };
    row("de", "de");
    row("de-AT", "de");
    row("de_CH", "de");
    row("fr-CA de", "fr");
    row("pt-BR es-MX", "es");
    row("en-GB de", "en");
    row("sv de", "de");
    row("sv", "en");
    row("C", "en");
    row("ja-JP", "ja");
    row("zh", "zh_CN");
    row("zh-CN", "zh_CN");
    row("zh-SG", "zh_CN");
    row("zh-Hans-HK", "zh_CN");
    row("zh-TW", "zh_TW");
    row("zh-HK", "zh_TW");
    row("zh-Hant", "zh_TW");
    row("zh-Hant-TW", "zh_TW");
    QTest::newRow("nothing") << QStringList() << QStringLiteral("en");
}

void TestLanguages::bestLanguageOfAReader()
{
    QFETCH(const QStringList, wanted);
    QFETCH(const QString, best);
    const QStringList codes{QStringLiteral("en"),    QStringLiteral("de"),   QStringLiteral("es"),
                            QStringLiteral("fr"),    QStringLiteral("ja"),   QStringLiteral("pseudo"),
                            QStringLiteral("zh_CN"), QStringLiteral("zh_TW")};
    QCOMPARE(Host::Languages::BestOf(codes, wanted), best);
}

void TestLanguages::languagesAreThoseOfTheFiles()
{
    const QTemporaryDir folder;
    const QStringList names{QStringLiteral("softcloth_fr.qm"), QStringLiteral("softcloth_de.qm"),
                            QStringLiteral("softcloth_de.ts"), QStringLiteral("workbench_ja.qm")};
    for (const QString& name : names) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const Host::Languages languages({folder.path(), folder.filePath(QStringLiteral("missing"))});
    QCOMPARE(languages.Codes(), QStringList({QStringLiteral("en"), QStringLiteral("de"), QStringLiteral("fr")}));
    QCOMPARE(languages.Chosen(), QString());
}

void TestLanguages::chosenLanguageIsSpoken()
{
    Host::Languages languages(folders);
    QVERIFY(languages.Choose(QStringLiteral("de")));
    QCOMPARE(languages.Chosen(), QStringLiteral("de"));
    QCOMPARE(PanelText(), QStringLiteral("Reibung"));
    QCOMPARE(WorkbenchText(), QStringLiteral("Kopieren"));
    QVERIFY(languages.Choose(QStringLiteral("en")));
    QCOMPARE(PanelText(), QStringLiteral("Friction"));
    QCOMPARE(WorkbenchText(), QStringLiteral("Copy"));
}

#ifndef Q_OS_WIN
/// Qt's own texts come with the system's Qt; the one that is built for Windows here has none.
void TestLanguages::qtSpeaksItToo()
{
    Host::Languages languages(folders);
    QVERIFY(languages.Choose(QStringLiteral("de")));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
}
#endif

void TestLanguages::refusalsSpeakIt_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<Refusal>("refusal");
    QTest::addColumn<QString>("english");
    QTest::addColumn<QString>("german");
    const auto row = [](const char* name, const QByteArray& content, Refusal refusal, const char* english,
                        const char* german) {
        QTest::newRow(name) << content << refusal << QString::fromUtf8(english) << QString::fromUtf8(german);
    };
    row("no scene", "{}", LoadedScene, "The scene file \"%1\" could not be loaded: it is no scene of this application.",
        "Die Szenendatei „%1“ konnte nicht geladen werden: Es ist keine Szene dieser Anwendung.");
    const QByteArray scene = R"({"format": "softcloth-scene", "version": 1, "objects": [)";
    row("wrong kind", scene + "1]}", LoadedScene,
        "The scene file \"%1\" could not be loaded: objects[0] must be a group of values.",
        "Die Szenendatei „%1“ konnte nicht geladen werden: objects[0] muss eine Gruppe von Werten sein.");
    row("missing value", scene + "{}]}", LoadedScene,
        "The scene file \"%1\" could not be loaded: objects[0].id is missing.",
        "Die Szenendatei „%1“ konnte nicht geladen werden: objects[0].id fehlt.");
    row("empty scene", {}, LoadedScene, "The scene file \"%1\" is empty.", "Die Szenendatei „%1“ ist leer.");
    row("empty model", {}, ImportedModel, "The model file \"%1\" is empty.", "Die Modelldatei „%1“ ist leer.");
    row("no image", "text", DecodedFile,
        "The image \"%1\" could not be read: it is no JPEG, BMP, GIF, PNG or TGA image.",
        "Das Bild „%1“ konnte nicht gelesen werden: Es ist kein JPEG-, BMP-, GIF-, PNG- oder TGA-Bild.");
}

/// Why a scene, a model or an image is refused.
void TestLanguages::refusalsSpeakIt()
{
    QFETCH(const QByteArray, content);
    QFETCH(const Refusal, refusal);
    QFETCH(const QString, english);
    QFETCH(const QString, german);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("file.obj"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    const QString shown = QDir::toNativeSeparators(path);
    QCOMPARE(refusal(path), english.arg(shown));
    Host::Languages languages(folders);
    QVERIFY(languages.Choose(QStringLiteral("de")));
    QCOMPARE(refusal(path), german.arg(shown));
}

void TestLanguages::unknownLanguageChangesNothing()
{
    Host::Languages languages(folders);
    QVERIFY(languages.Choose(QStringLiteral("de")));
    QVERIFY(!languages.Choose(QStringLiteral("tlh")));
    QCOMPARE(languages.Chosen(), QStringLiteral("de"));
    QCOMPARE(PanelText(), QStringLiteral("Reibung"));
}

void TestLanguages::languagesHaveTheirOwnNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("en") << QStringLiteral("English");
    QTest::newRow("de") << QStringLiteral("Deutsch");
    QTest::newRow("es") << QStringLiteral("Español");
    QTest::newRow("fr") << QStringLiteral("Français");
    QTest::newRow("ja") << QStringLiteral("日本語");
    QTest::newRow("zh_CN") << QStringLiteral("简体中文");
    QTest::newRow("zh_TW") << QStringLiteral("繁體中文");
    QTest::newRow("pseudo") << QString();
}

void TestLanguages::languagesHaveTheirOwnNames()
{
    QFETCH(const QString, name);
    QCOMPARE(Host::Languages::NameOf(QString::fromLatin1(QTest::currentDataTag())), name);
}

SOFTCLOTH_TEST(TestLanguages)
#include "tst_languages.moc"
