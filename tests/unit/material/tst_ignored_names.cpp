#include "tests/support/FileRefusal.h"
#include "tests/support/Files.h"
#include "tests/support/NotingTranslator.h"
#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include <QFile>
#include <QFileDialog>
#include <QListWidget>
#include <QRegularExpression>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <optional>

/// The loading of ignored material names from a profile file, which a hot key sets off.
class TestIgnoredNames : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void otherObjectTypesAskForNothing_data();
    void otherObjectTypesAskForNothing();
    void dialogIsToldWhatToAskFor();
    void captionIsTranslatedInItsContext();
    void cancellingEndsQuietly();
    void namesAreReadAndSet_data();
    void namesAreReadAndSet();
    void listIsRebuiltWithReset();
    void failedWriteRebuildsTheListToo();
    void objectIsTheOneSelectedAfterTheFileDialog();
    void ignoringEverythingEmptiesTheList();
    void missingFileIsToldToTheUser();
    void unreadableFileIsToldToTheUser();
    void dialogMayDieInsideTheFileDialog();
};

namespace {

/// An open dialog for an object of a type that has ignored names, and a folder for profiles.
struct NamesFixture : DialogFixture
{
    NamesFixture()
    {
        Open();
        object->traits.type = 2;
        Selection().objectType = 2;
    }

    QString Write(const QByteArray& content) const
    {
        const QString path = folder.filePath(QStringLiteral("profile.ini"));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
            qFatal("the profile cannot be written");
        }
        return path;
    }

    void PressHotKey() const { QTest::keyClick(dialog, Qt::Key_F, Qt::AltModifier | Qt::ShiftModifier); }

    /// Presses the hot key and lets \p use deal with the file dialog that comes.
    void PressHotKey(const std::function<void(QFileDialog&)>& use)
    {
        bool came = false;
        QTimer::singleShot(0, &window, [&] {
            auto* fileDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(fileDialog);
            came = true;
            use(*fileDialog);
        });
        PressHotKey();
        QVERIFY(came);
    }

    /// Presses the hot key and chooses \p path; runs \p afterwards before the choice is known.
    void Choose(const QString& path, const std::function<void()>& afterwards = {})
    {
        PressHotKey([&](QFileDialog& fileDialog) {
            fileDialog.selectFile(path);
            QMetaObject::invokeMethod(&fileDialog, "accept");
            if (afterwards) {
                afterwards();
            }
        });
    }

    QTemporaryDir folder;
};

} // namespace

void TestIgnoredNames::otherObjectTypesAskForNothing_data()
{
    QTest::addColumn<quint32>("type");
    for (const quint32 type : {0U, 1U, 3U, 5U, 30U}) {
        QTest::addRow("type %u", type) << type;
    }
}

void TestIgnoredNames::otherObjectTypesAskForNothing()
{
    QFETCH(const quint32, type);
    NamesFixture fixture;
    fixture.Selection().objectType = type;
    bool came = false;
    QTimer::singleShot(0, &fixture.window, [&] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            came = true;
            modal->close();
        }
    });
    fixture.PressHotKey();
    QCoreApplication::processEvents();
    QVERIFY(!came);
    QCOMPARE(fixture.Take(), QStringList());
}

void TestIgnoredNames::dialogIsToldWhatToAskFor()
{
    NamesFixture fixture;
    fixture.PressHotKey([](QFileDialog& fileDialog) {
        QCOMPARE(fileDialog.windowTitle(), QStringLiteral("Load Soft Cloth Custom Profile"));
        QCOMPARE(fileDialog.nameFilters(), QStringList{QStringLiteral("INI Files (*.ini)")});
        QCOMPARE(fileDialog.fileMode(), QFileDialog::ExistingFile);
        fileDialog.reject();
    });
}

void TestIgnoredNames::captionIsTranslatedInItsContext()
{
    NamesFixture fixture;
    const NotingTranslator translator;
    fixture.PressHotKey([](QFileDialog& fileDialog) { fileDialog.reject(); });
    QCOMPARE(translator.ContextsOf("Load Soft Cloth Custom Profile"), QList<QByteArray>{"Open File title"});
}

void TestIgnoredNames::cancellingEndsQuietly()
{
    NamesFixture fixture;
    fixture.PressHotKey([](QFileDialog& fileDialog) { fileDialog.reject(); });
    QCOMPARE(fixture.Take(), QStringList());
}

void TestIgnoredNames::namesAreReadAndSet_data()
{
    QTest::addColumn<QByteArray>("profile");
    QTest::addColumn<QString>("names");
    const auto row = [](const char* name, const char* profile, const QString& names) {
        QTest::newRow(name) << QByteArray(profile) << names;
    };
    row("one list", "[Ignored_Material_Name_List]\nBody=Skin, Hair\n", QStringLiteral(R"({"Body": ["Skin", "Hair"]})"));
    row("one name", "[Ignored_Material_Name_List]\nBody=Skin\n", QStringLiteral(R"({"Body": ["Skin"]})"));
    row("keys are sorted", "[Ignored_Material_Name_List]\nb=1\na=2\nC=3\n",
        QStringLiteral(R"({"C": ["3"], "a": ["2"], "b": ["1"]})"));
    row("no group", "[Soft_Cloth_Property]\nMass=1\n", QStringLiteral("{}"));
    row("empty group", "[Ignored_Material_Name_List]\n[Other]\nBody=Skin\n", QStringLiteral("{}"));
    row("empty file", "", QStringLiteral("{}"));
    row("other groups are left out", "Body=Hair\n[Other]\nBody=Hair\n[Ignored_Material_Name_List]\nBody=Skin\n",
        QStringLiteral(R"({"Body": ["Skin"]})"));
    row("UTF-8", "[Ignored_Material_Name_List]\nBody=\xE5\xB8\x83, \xC3\xA9toffe\n",
        QStringLiteral("{\"Body\": [\"\u5e03\", \"\u00e9toffe\"]}"));
    row("names with commas", "[Ignored_Material_Name_List]\nBody=\"Skin, wet\", Hair\n",
        QStringLiteral(R"({"Body": ["Skin, wet", "Hair"]})"));
    row("names with backslashes and at signs", "[Ignored_Material_Name_List]\nBody=a\\\\@b, @@c, \"\\\\@\"\n",
        QStringLiteral(R"({"Body": ["a\@b", "@c", "\@"]})"));
}

void TestIgnoredNames::namesAreReadAndSet()
{
    QFETCH(const QByteArray, profile);
    QFETCH(const QString, names);
    NamesFixture fixture;
    fixture.Choose(fixture.Write(profile));
    const QStringList calls = fixture.Take();
    QVERIFY(calls.first().startsWith(QStringLiteral("SetIgnoredMaterialNames(\"Hero\", %1) -> ").arg(names)));
    QVERIFY(calls.lastIndexOf(QRegularExpression(QStringLiteral("GetMeshList\\(\"Hero\".*"))) > 0);
    QCOMPARE(calls.last(), Journal::Refresh());
}

void TestIgnoredNames::listIsRebuiltWithReset()
{
    NamesFixture fixture;
    fixture.Find<QListWidget>("qtMaterialListWidget")->setCurrentRow(2);
    fixture.Take();
    fixture.Choose(fixture.Write("[Ignored_Material_Name_List]\n"));
    QCOMPARE(fixture.Take().filter(QStringLiteral("IsSoftClothActive")).size(), 3);
    QCOMPARE(fixture.Selection().material, fixture.MaterialId(0));
}

void TestIgnoredNames::failedWriteRebuildsTheListToo()
{
    NamesFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("SetIgnoredMaterialNames"), BF::Results::Refused);
    fixture.Choose(fixture.Write("[Ignored_Material_Name_List]\nBody=Skin\n"));
    const QStringList calls = fixture.Take();
    QVERIFY(calls.first().endsWith(QLatin1String("-> 0x80000006")));
    QVERIFY(calls.value(1).startsWith(QLatin1String("GetMeshList(\"Hero\"")));
    QCOMPARE(calls.last(), Journal::Refresh());
    QVERIFY(calls.filter(QStringLiteral("ShowMessageBox")).isEmpty());
    QCOMPARE(fixture.dialog->MaterialCount(), 3);
}

void TestIgnoredNames::objectIsTheOneSelectedAfterTheFileDialog()
{
    NamesFixture fixture;
    fixture.Choose(fixture.Write("[Ignored_Material_Name_List]\nSheet=Linen\n"), [&] {
        fixture.Selection().object = fixture.host.CurrentScene().AddObject(SampleModels::Flag()).handle;
    });
    const QStringList calls = fixture.Take();
    QVERIFY(calls.first().startsWith(QStringLiteral(R"(SetIgnoredMaterialNames("Flag", {"Sheet": ["Linen"]}))")));
    QCOMPARE(calls.filter(QStringLiteral("GetMeshList")),
             QStringList{QStringLiteral(R"(GetMeshList("Flag", ["Sheet"]) -> 0)")});
    QCOMPARE(fixture.dialog->MaterialCount(), 1);
}

void TestIgnoredNames::ignoringEverythingEmptiesTheList()
{
    NamesFixture fixture;
    QCOMPARE(fixture.EnabledOf(EditWidgets()), EditWidgets());
    fixture.Choose(fixture.Write("[Ignored_Material_Name_List]\nBody=Skin, Hair\nClothes=Skirt\n"));
    QCOMPARE(fixture.dialog->MaterialCount(), 0);
    QCOMPARE(fixture.EnabledOf(EditWidgets()), QStringList());
    // The table keeps them all, so that they can be ticked again.
    QCOMPARE(Child<QTableWidget>(fixture.table.data(), "qtMaterialTableWidget")->rowCount(), 3);
}

void TestIgnoredNames::missingFileIsToldToTheUser()
{
    NamesFixture fixture;
    const QString path = fixture.Write("[Ignored_Material_Name_List]\n");
    fixture.Choose(path, [&] { QVERIFY(QFile::remove(path)); });
    QCOMPARE(fixture.Take(), QStringList{Journal::Message(QStringLiteral("InValid File Path."))});
}

void TestIgnoredNames::unreadableFileIsToldToTheUser()
{
    NamesFixture fixture;
    const QString path = fixture.Write("[Ignored_Material_Name_List]\n");
    Files::OpenToAll(fixture.folder.path());
    std::optional<FileRefusal> refusal;
    fixture.Choose(path, [&] { refusal.emplace(path, FileRefusal::Of::ReadingAndWriting); });
    refusal.reset();
    QCOMPARE(fixture.Take(), QStringList{Journal::Message(QStringLiteral("File is Unreadable."))});
}

void TestIgnoredNames::dialogMayDieInsideTheFileDialog()
{
    NamesFixture fixture;
    QTimer::singleShot(0, &fixture.window, [&] { delete fixture.dialog; });
    QMetaObject::invokeMethod(fixture.dialog, "OnFilterMaterialList");
    QVERIFY(!fixture.dialog);
    QCOMPARE(fixture.Take(), QStringList());
}

SOFTCLOTH_TEST(TestIgnoredNames)
#include "tst_ignored_names.moc"
