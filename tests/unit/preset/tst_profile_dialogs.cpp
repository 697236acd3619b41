#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/FileRefusal.h"
#include "tests/support/FullDisk.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"
#include "tests/support/UserDialogs.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QAbstractButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include <optional>

/// The three file dialogs of the section, as the user goes through them.
class TestProfileDialogs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void dialogsAskForTheRightThing_data();
    void dialogsAskForTheRightThing();
    void textsAreTranslatedWithTheirNotes_data();
    void textsAreTranslatedWithTheirNotes();
    void failingFolderStillAsks();
    void cancellingDoesNothing_data();
    void cancellingDoesNothing();
    void chosenProfileIsLoaded();
    void vanishedProfileIsAnInvalidPath();
    void profileIsSaved();
    void savedNameGetsASuffix();
    void savingOverAProfileReplacesItsKeys();
    void groupsAreSavedInOrder();
    void missingSectionsAreNotSaved();
    void unwritableTargetIsTold_data();
    void unwritableTargetIsTold();
    void failedWriteIsTold();
    void savingAsksTheHostForThePropertyOnly();
    void hostReadsItsOwnFile();
    void cancelledHostFileIsPassedOnAsEmptyPath();
    void pluginMayDieInsideTheDialog_data();
    void pluginMayDieInsideTheDialog();

private:
    QTemporaryDir m_home;

protected:
    void SetUp() override
    {
        // The file dialogs watch the folder, in one test as an ordinary user.
        Files::OpenToAll(m_home.path());
        qputenv("HOME", m_home.path().toLocal8Bit());
    }
};

namespace {

struct DialogFixture : PresetFixture
{
    DialogFixture() { hero = &AddCloth(); }

    void Choose(const char* button, const QString& path, const std::function<void()>& accepted = {})
    {
        host.Journal().Clear();
        UserDialogs::ChooseFile([&] { Click(button); }, path, accepted);
    }

    Host::Object* hero = nullptr;
};

const QString defaultFolder = QStringLiteral("GetDefaultFolder");
constexpr const char* openButton = "qtOpenFilePushButton";
constexpr const char* saveButton = "qtSaveFilePushButton";

/// Something that the user does.
using Deed = void (*)(DialogFixture& fixture);

void Cancel(DialogFixture& fixture, const char* slot)
{
    UserDialogs::OpensDialog([&] { fixture.Invoke(slot); });
}

void LoadUnreadable(DialogFixture& fixture)
{
    Files::OpenToAll(fixture.folder.path());
    const QString path = Files::Write(fixture.Path(QStringLiteral("secret.ini")), "[Property]\nMass=4\n");
    const FileRefusal refusal(path, FileRefusal::Of::ReadingAndWriting);
    fixture.section->LoadProfileFile(path);
}

void SaveUnwritable(DialogFixture& fixture)
{
    // A folder takes the place of the file that was chosen.
    const QString path = fixture.Path(QStringLiteral("new.ini"));
    fixture.Choose(saveButton, path, [&] { QVERIFY(QDir().mkdir(path)); });
}

} // namespace

Q_DECLARE_METATYPE(Deed)

void TestProfileDialogs::dialogsAskForTheRightThing_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("saves");
    QTest::newRow("open") << QByteArray("OnClickOpenFilePushButton") << QStringLiteral("Load Soft Cloth Custom Profile")
                          << false;
    QTest::newRow("save") << QByteArray("OnClickSaveFilePushButton") << QStringLiteral("Save Soft Cloth Custom Profile")
                          << true;
    QTest::newRow("host's file") << QByteArray("OnClickLoadIniPushButton") << QStringLiteral("Load Soft Ini Profile")
                                 << false;
}

void TestProfileDialogs::dialogsAskForTheRightThing()
{
    QFETCH(const QByteArray, slot);
    QFETCH(const QString, title);
    QFETCH(const bool, saves);
    DialogFixture fixture;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    QVERIFY(QDir().mkpath(folder));
    UserDialogs::WithFileDialog(
        [&] { fixture.Invoke(slot); },
        [&](QFileDialog& dialog) {
            QCOMPARE(dialog.windowTitle(), title);
            QCOMPARE(dialog.parentWidget(), fixture.section.data());
            QCOMPARE(dialog.nameFilters(), QStringList{QStringLiteral("INI Files (*.ini)")});
            QCOMPARE(dialog.directory().absolutePath(), folder);
            QCOMPARE(dialog.acceptMode(), saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
            QCOMPARE(dialog.fileMode(), saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
            dialog.reject();
        });
    QCOMPARE(fixture.Take().constFirst(), QStringLiteral("GetDefaultFolder(\"%1\", 72) -> 0").arg(folder));
}

void TestProfileDialogs::textsAreTranslatedWithTheirNotes_data()
{
    QTest::addColumn<Deed>("deed");
    QTest::addColumn<QStringList>("texts");
    const QString filter = QStringLiteral("INI Files (*.ini) <>");
    const QString title = QStringLiteral("[Physics Soft Cloth Section] Movira 6 <Message Title>");
    const auto row = [](const char* name, Deed deed, const QStringList& texts) {
        QTest::newRow(name) << deed << texts;
    };
    row("open", [](DialogFixture& fixture) { Cancel(fixture, "OnClickOpenFilePushButton"); },
        {filter, QStringLiteral("Load Soft Cloth Custom Profile <Open File title>")});
    row("save", [](DialogFixture& fixture) { Cancel(fixture, "OnClickSaveFilePushButton"); },
        {filter, QStringLiteral("Save Soft Cloth Custom Profile <Open File title>")});
    row("host's file", [](DialogFixture& fixture) { Cancel(fixture, "OnClickLoadIniPushButton"); },
        {filter, QStringLiteral("Load Soft Ini Profile <Open File title>")});
    row("invalid path", [](DialogFixture& fixture) { fixture.section->LoadProfileFile({}); },
        {QStringLiteral("InValid File Path. <>"), title});
    row("unreadable", LoadUnreadable, {QStringLiteral("File is Unreadable. <>"), title});
    row("unwritable", SaveUnwritable,
        {QStringLiteral("File is Unwritable. <>"), filter,
         QStringLiteral("Save Soft Cloth Custom Profile <Open File title>"), title});
}

void TestProfileDialogs::textsAreTranslatedWithTheirNotes()
{
    QFETCH(const Deed, deed);
    QFETCH(const QStringList, texts);
    DialogFixture fixture;
    const NotingTranslator translator;
    deed(fixture);
    QStringList expected = texts;
    expected.sort();
    QCOMPARE(TranslatedTexts(translator), expected);
}

void TestProfileDialogs::failingFolderStillAsks()
{
    DialogFixture fixture;
    fixture.host.Faults().FailOperation(defaultFolder, BF::Results::ResourceFailure);
    QVERIFY(UserDialogs::OpensDialog([&] { fixture.Click(openButton); }));
}

void TestProfileDialogs::cancellingDoesNothing_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("open") << QByteArray(openButton);
    QTest::newRow("save") << QByteArray(saveButton);
}

void TestProfileDialogs::cancellingDoesNothing()
{
    QFETCH(const QByteArray, button);
    DialogFixture fixture;
    fixture.Choose(button, QString());
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.size(), 1);
    QVERIFY(calls.first().startsWith(defaultFolder));
}

void TestProfileDialogs::chosenProfileIsLoaded()
{
    DialogFixture fixture;
    const QString path = Files::Write(fixture.Path(QStringLiteral("my profile.ini")), "[Property]\nMass=4\n");
    fixture.Choose(openButton, path);
    QCOMPARE(fixture.Cloth(*fixture.hero).property.mass, qint64(4));
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.size(), 2);
    QVERIFY(calls.at(1).startsWith(QLatin1String("SetSoftClothProperty")));
}

void TestProfileDialogs::vanishedProfileIsAnInvalidPath()
{
    DialogFixture fixture;
    const QString path = Files::Write(fixture.Path(QStringLiteral("a.ini")), "[Property]\nMass=4\n");
    fixture.Choose(openButton, path, [&] { QVERIFY(QFile::remove(path)); });
    QCOMPARE(fixture.Take().mid(1), QStringList{Journal::Message(QStringLiteral("InValid File Path."))});
}

void TestProfileDialogs::profileIsSaved()
{
    DialogFixture fixture;
    fixture.Cloth(*fixture.hero).property.mass = 6;
    fixture.plugin->UpdateAllUIs(true);
    const QString path = fixture.Path(QStringLiteral("new.ini"));
    fixture.Choose(saveButton, path);
    QSettings saved(path, QSettings::IniFormat);
    QCOMPARE(saved.childGroups(), (QStringList{QStringLiteral("Collision"), QStringLiteral("Preset"),
                                               QStringLiteral("Property"), QStringLiteral("Wind_Setting")}));
    QCOMPARE(saved.value(QStringLiteral("Preset/Use_Global_Gravity")), QVariant(QStringLiteral("true")));
    QCOMPARE(saved.value(QStringLiteral("Property/Mass")), QVariant(QStringLiteral("6")));
    QCOMPARE(saved.allKeys().size(), 1 + int(PropertyRows::All().size()) + 4 + 4);
    QVERIFY(Files::ReadText(path).contains("\nExternal_Acceleration=0, 0, 0\n"));
}

void TestProfileDialogs::savedNameGetsASuffix()
{
    DialogFixture fixture;
    fixture.Choose(saveButton, fixture.Path(QStringLiteral("bare")));
    QVERIFY(QFileInfo(fixture.Path(QStringLiteral("bare.ini"))).isFile());
}

void TestProfileDialogs::savingOverAProfileReplacesItsKeys()
{
    DialogFixture fixture;
    const QString path = Files::Write(fixture.Path(QStringLiteral("a.ini")),
                                      "[Property]\nMass=99\nOwn=1\n[Ignored_Material_Name_List]\nBody=Skin, Hair\n");
    fixture.Choose(saveButton, path);
    QSettings saved(path, QSettings::IniFormat);
    QCOMPARE(saved.value(QStringLiteral("Property/Mass")), QVariant(QStringLiteral("1")));
    QCOMPARE(saved.value(QStringLiteral("Property/Own")), QVariant(QStringLiteral("1")));
    QCOMPARE(saved.value(QStringLiteral("Ignored_Material_Name_List/Body")).toStringList(),
             (QStringList{QStringLiteral("Skin"), QStringLiteral("Hair")}));
}

void TestProfileDialogs::groupsAreSavedInOrder()
{
    DialogFixture fixture;
    // The question that the Property group asks the host separates what came before it from what comes after it.
    fixture.During("GetSoftClothProperty", [&] {
        fixture.Find<QAbstractButton>("qtUseWorldGravityCheckBox")->setChecked(false);
        delete fixture.plugin->CollisionSection();
        delete fixture.plugin->WindSection();
    });
    const QString path = fixture.Path(QStringLiteral("new.ini"));
    fixture.Choose(saveButton, path);
    QSettings saved(path, QSettings::IniFormat);
    QCOMPARE(saved.value(QStringLiteral("Preset/Use_Global_Gravity")), QVariant(QStringLiteral("true")));
    QCOMPARE(saved.childGroups(), (QStringList{QStringLiteral("Preset"), QStringLiteral("Property")}));
}

void TestProfileDialogs::missingSectionsAreNotSaved()
{
    DialogFixture fixture;
    const QString path = Files::Write(fixture.Path(QStringLiteral("a.ini")), "[Wind_Setting]\nWind_Frequency=7\n");
    delete fixture.plugin->WindSection();
    delete fixture.plugin->CollisionSection();
    fixture.Choose(saveButton, path);
    QSettings saved(path, QSettings::IniFormat);
    QCOMPARE(saved.value(QStringLiteral("Wind_Setting/Wind_Frequency")), QVariant(QStringLiteral("7")));
    QCOMPARE(saved.childGroups(),
             (QStringList{QStringLiteral("Preset"), QStringLiteral("Property"), QStringLiteral("Wind_Setting")}));
}

void TestProfileDialogs::unwritableTargetIsTold_data()
{
    QTest::addColumn<int>("file");
    QTest::addColumn<int>("folder");
    QTest::newRow("read-only file") << 0x4444 << 0x7777;
#ifdef Q_OS_UNIX // On Windows a folder takes new files whatever its attribute says.
    QTest::newRow("read-only folder") << 0x6666 << 0x5555;
#endif
}

void TestProfileDialogs::unwritableTargetIsTold()
{
    QFETCH(const int, file);
    QFETCH(const int, folder);
    DialogFixture fixture;
    Files::OpenToAll(fixture.folder.path());
    const QByteArray content = "[Property]\nMass=99\n";
    const QString path = Files::Write(fixture.Path(QStringLiteral("folder/a.ini")), content);
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions(file)));
    QVERIFY(QFile::setPermissions(QFileInfo(path).path(), QFileDevice::Permissions(folder)));
    {
        const OrdinaryUser user;
        fixture.Choose(saveButton, path);
    }
    Files::OpenToAll(QFileInfo(path).path());
    QCOMPARE(fixture.TakeActions(), QStringList{Journal::Message(QStringLiteral("File is Unwritable."))});
    QCOMPARE(Files::Read(path), content);
}

void TestProfileDialogs::failedWriteIsTold()
{
    DialogFixture fixture;
    const QByteArray content = "[Property]\nMass=99\n";
    const QString path = Files::Write(fixture.Path(QStringLiteral("a.ini")), content);
    {
#ifdef Q_OS_UNIX
        // The disk fills up after the file was chosen, and before all is written.
        std::optional<FullDisk> full;
        fixture.Choose(saveButton, path, [&full] { full.emplace(200); });
#else
        // Another program takes the file for itself after it was chosen.
        std::optional<FileRefusal> refusal;
        fixture.Choose(saveButton, path, [&] { refusal.emplace(path, FileRefusal::Of::Writing); });
#endif
    }
    QCOMPARE(fixture.TakeActions(), QStringList{Journal::Message(QStringLiteral("File is Unwritable."))});
    QCOMPARE(Files::Read(path), content);
}

void TestProfileDialogs::savingAsksTheHostForThePropertyOnly()
{
    DialogFixture fixture;
    fixture.Choose(saveButton, fixture.Path(QStringLiteral("new.ini")));
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.size(), 2);
    QVERIFY(calls.at(1).startsWith(QLatin1String("GetSoftClothProperty")));
}

void TestProfileDialogs::hostReadsItsOwnFile()
{
    DialogFixture fixture;
    // What is no setting is left out, even where it would be unpacked into an endless list.
    const QString path = Files::Write(fixture.Path(QStringLiteral("host.ini")),
                                      "[property]\nfriction=@Variant(\\0\\0\\0\\t\\x7f\\xff\\xff\\xff)\nmass=5\n");
    fixture.host.Journal().Clear();
    UserDialogs::ChooseFile([&] { fixture.Invoke("OnClickLoadIniPushButton"); }, path);
    QCOMPARE(fixture.Take().mid(1), QStringList{QStringLiteral("LoadSoftIniProfile(\"%1\") -> 0").arg(path)});
    QCOMPARE(fixture.Cloth(*fixture.hero).property.mass, qint64(5));
}

void TestProfileDialogs::cancelledHostFileIsPassedOnAsEmptyPath()
{
    DialogFixture fixture;
    fixture.host.Journal().Clear();
    UserDialogs::ChooseFile([&] { fixture.Invoke("OnClickLoadIniPushButton"); }, QString());
    QCOMPARE(fixture.Take().mid(1), QStringList{QStringLiteral("LoadSoftIniProfile(\"\") -> 0x80000003")});
}

void TestProfileDialogs::pluginMayDieInsideTheDialog_data()
{
    QTest::addColumn<QByteArray>("slot");
    for (const char* slot : {"OnClickOpenFilePushButton", "OnClickSaveFilePushButton", "OnClickLoadIniPushButton"}) {
        QTest::newRow(slot) << QByteArray(slot);
    }
}

void TestProfileDialogs::pluginMayDieInsideTheDialog()
{
    QFETCH(const QByteArray, slot);
    DialogFixture fixture;
    QTimer::singleShot(0, this, [&] {
        QVERIFY(QApplication::activeModalWidget());
        fixture.plugin.reset();
    });
    QMetaObject::invokeMethod(fixture.section, slot);
    QVERIFY(!fixture.section);
    QCOMPARE(fixture.TakeActions(), QStringList());
}

SOFTCLOTH_TEST(TestProfileDialogs)
#include "tst_profile_dialogs.moc"
