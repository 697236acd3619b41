#include "tests/support/ForwardingServices.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"
#include "tests/unit/sections/FormChecks.h"

#include <QDir>
#include <QGroupBox>
#include <QMetaMethod>
#include <QRadioButton>
#include <QTabWidget>

/// What the section consists of, and what it does when it starts.
class TestPresetForm : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void componentFindsEveryName();
    void namesAreOfTheirClasses_data();
    void namesAreOfTheirClasses();
    void tabPagesAreInOrder();
    void listsHaveTheirItems_data();
    void listsHaveTheirItems();
    void everyControlTellsWhatItDoes();
    void tabLeadsThroughTheControls();
    void slotsAreInOrder();
    void sectionValues();
    void startsHiddenAndNotInitialised();
    void initWithoutHostDoesNothing();
    void initPassesTheFormsFailureUp();
    void startRegistersHotKeysAndAsksForThePresets();
    void hotKeysAreTranslatedWithTheirNotes();
    void presetFolderFollowsTheDataFolderDirectly();
    void failingDataFolderLeavesTheGalleryEmpty();
    void rigidBodyButtonActsInFamilyAOnly_data();
    void rigidBodyButtonActsInFamilyAOnly();
    void expandButtonFoldsTheSection();
};

namespace {

constexpr const char* componentNames =
    "verticalLayout verticalLayout_2 verticalLayout_3 verticalLayout_4 verticalLayout_5 verticalLayout_6 "
    "verticalLayout_7 verticalLayout_8 verticalLayout_9 verticalLayout_16 horizontalLayout horizontalLayout_2 "
    "horizontalLayout_4 horizontalLayout_5 horizontalLayout_6 line_13 label qtActivePhysicsCheckBox "
    "qtAffectAllMaterialsCheckBox qtUseWorldGravityCheckBox qtBaseGroupBox qtSectionGroupBox qtSoftPresetGroupBox "
    "qtWeightSelectGroupBox qtPresetClothListWidget qtPresetHairListWidget qtPresetWindListWidget qtExpandPushButton "
    "qtOpenFilePushButton qtPaintPushButton qtSaveFilePushButton qtRigidBodyRadioButton qtSoftClothRadioButton "
    "qtPresetTabWidget SoftClothPreset qtClothTab qtHairTab qtWindTab qtEditedMaterialLabel";

constexpr const char* radioButtons[] = {"qtRigidBodyRadioButton", "qtSoftClothRadioButton"};

/// A host that reports its data folder without a separator at the end.
class BareFolderHost : public Host::HostApplication
{
public:
    explicit BareFolderHost(const QString& folder)
        : m_scene(*HostApplication::GetSceneService(), folder)
    {
    }
    MV::CSceneService* GetSceneService() override { return &m_scene; }

private:
    class Scene : public Forwarding::SceneService
    {
    public:
        Scene(CSceneService& inner, const QString& folder)
            : SceneService(inner)
            , m_folder(folder)
        {
        }
        BF::Result GetDataFolderPath(std::wstring& path, int /*kind*/) override
        {
            path = m_folder.toStdWString();
            return BF::Results::Success;
        }

    private:
        QString m_folder;
    };

    Scene m_scene;
};

} // namespace

void TestPresetForm::componentFindsEveryName()
{
    const PresetFixture fixture;
    CSoftClothPresetUiComponent component;
    FormChecks::Component(component, *fixture.Find<QWidget>("SoftClothPreset"), componentNames);
}

void TestPresetForm::namesAreOfTheirClasses_data()
{
    FormChecks::AddClassColumns();
    FormChecks::AddClassRow("QCheckBox",
                            "qtActivePhysicsCheckBox qtAffectAllMaterialsCheckBox qtUseWorldGravityCheckBox");
    FormChecks::AddClassRow("QGroupBox",
                            "qtBaseGroupBox qtSectionGroupBox qtSoftPresetGroupBox qtWeightSelectGroupBox");
    FormChecks::AddClassRow("QListWidget", "qtPresetClothListWidget qtPresetHairListWidget qtPresetWindListWidget");
    FormChecks::AddClassRow("QPushButton",
                            "qtExpandPushButton qtOpenFilePushButton qtPaintPushButton qtSaveFilePushButton");
    FormChecks::AddClassRow("QRadioButton", "qtRigidBodyRadioButton qtSoftClothRadioButton");
    FormChecks::AddClassRow("QTabWidget", "qtPresetTabWidget");
    FormChecks::AddClassRow("QWidget", "SoftClothPreset qtClothTab qtHairTab qtWindTab");
    FormChecks::AddClassRow("QLabel", "label");
}

void TestPresetForm::namesAreOfTheirClasses()
{
    const PresetFixture fixture;
    FormChecks::Classes(*fixture.section);
}

void TestPresetForm::tabPagesAreInOrder()
{
    const PresetFixture fixture;
    const auto* tabs = fixture.Find<QTabWidget>("qtPresetTabWidget");
    QStringList names;
    for (int page = 0; page < tabs->count(); ++page) {
        names.append(tabs->widget(page)->objectName());
    }
    QCOMPARE(names,
             (QStringList{QStringLiteral("qtClothTab"), QStringLiteral("qtHairTab"), QStringLiteral("qtWindTab")}));
    QCOMPARE(tabs->currentIndex(), 0);
}

void TestPresetForm::listsHaveTheirItems_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("atLeast");
    QTest::newRow("cloth") << 0 << QStringLiteral("qtPresetClothListWidget") << 8;
    QTest::newRow("hair") << 1 << QStringLiteral("qtPresetHairListWidget") << 5;
    QTest::newRow("wind") << 2 << QStringLiteral("qtPresetWindListWidget") << 5;
}

void TestPresetForm::listsHaveTheirItems()
{
    QFETCH(const int, page);
    QFETCH(const QString, name);
    QFETCH(const int, atLeast);
    const PresetFixture fixture;
    const QListWidget& list = fixture.List(page);
    QCOMPARE(list.objectName(), name);
    QVERIFY(list.count() >= atLeast);
    for (int i = 0; i < list.count(); ++i) {
        QVERIFY(!list.item(i)->text().isEmpty());
        // An empty data folder decorates nothing.
        QVERIFY(list.item(i)->icon().isNull());
        QVERIFY(!list.item(i)->data(Qt::UserRole).isValid());
    }
}

void TestPresetForm::everyControlTellsWhatItDoes()
{
    const PresetFixture fixture;
    for (const char* name :
         {"qtActivePhysicsCheckBox", "qtAffectAllMaterialsCheckBox", "qtUseWorldGravityCheckBox", "qtExpandPushButton",
          "qtOpenFilePushButton", "qtPaintPushButton", "qtSaveFilePushButton", "qtRigidBodyRadioButton",
          "qtSoftClothRadioButton", "qtPresetClothListWidget", "qtPresetHairListWidget", "qtPresetWindListWidget"}) {
        QVERIFY2(!fixture.Find<QWidget>(name)->toolTip().isEmpty(), name);
    }
    for (int page = 0; page < 3; ++page) {
        QVERIFY(!fixture.List(page).accessibleName().isEmpty());
    }
}

void TestPresetForm::tabLeadsThroughTheControls()
{
    PresetFixture fixture;
    Host::Object model = SampleModels::Hero();
    model.traits.type = 5;
    fixture.AddCloth(std::move(model));
    fixture.window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fixture.window));
    // The two radio buttons are one stop.
    FormChecks::TabOrder(*fixture.section,
                         "qtExpandPushButton qtActivePhysicsCheckBox qtRigidBodyRadioButton qtUseWorldGravityCheckBox "
                         "qtAffectAllMaterialsCheckBox qtPaintPushButton qtPresetTabWidget qtPresetClothListWidget "
                         "qtOpenFilePushButton qtSaveFilePushButton");
}

void TestPresetForm::slotsAreInOrder()
{
    const QMetaObject& meta = MV::CSoftClothPresetSection::staticMetaObject;
    QCOMPARE(meta.className(), "MV::CSoftClothPresetSection");
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        signatures.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    QCOMPARE(signatures,
             (QStringList{QStringLiteral("OnClickActivePhysicsCheckBox()"),
                          QStringLiteral("OnClickUseWorldGravityCheckBox()"),
                          QStringLiteral("OnClickAffectAllMaterialsCheckBox()"),
                          QStringLiteral("OnClickLoadIniPushButton()"), QStringLiteral("OnClickOpenFilePushButton()"),
                          QStringLiteral("OnClickSaveFilePushButton()"), QStringLiteral("OnClickPaintPushButton()"),
                          QStringLiteral("OnChangeCurrentItemOfPresetContentListWidget(QListWidget*)"),
                          QStringLiteral("PhysicsSoftClothMultiMaterialsDetected(BFHANDLE)")}));
}

void TestPresetForm::sectionValues()
{
    const PresetFixture fixture;
    MV::CSectionInterface& section = *fixture.section;
    QCOMPARE(section.GetSectionPage(), 4);
    QCOMPARE(section.GetSectionOrder(), 0);
    QCOMPARE(section.GetSectionApplications(), 7);
    QCOMPARE(section.GetSectionWidget(), fixture.section.data());
    QVERIFY(section.AbleToShowSection());
}

void TestPresetForm::startsHiddenAndNotInitialised()
{
    SectionFixture fixture;
    MV::CSoftClothPresetSection section(&fixture.plugin);
    QVERIFY(section.isHidden());
    QCOMPARE(section.parent(), &fixture.plugin);
    QVERIFY(section.children().isEmpty());
    QCOMPARE(section.UpdateUi(true), BF::Results::InvalidArgument);
    QCOMPARE(section.LoadProfileFile(QStringLiteral("/")), BF::Results::InvalidArgument);
    QCOMPARE(section.ConfirmMultipleMaterials(), BF::Results::InvalidArgument);
    QCOMPARE(fixture.TakeCalls(), QStringList());
}

void TestPresetForm::initWithoutHostDoesNothing()
{
    SectionFixture fixture;
    MV::CSoftClothPresetSection section(&fixture.plugin);
    QCOMPARE(section.Init({}, {}, nullptr), BF::Results::InvalidArgument);
    QVERIFY(section.children().isEmpty());
}

void TestPresetForm::initPassesTheFormsFailureUp()
{
    SectionFixture fixture(SectionFixture::Resources::None);
    ExpectWarning(QStringLiteral("SoftClothPreset.ui"));
    MV::CSoftClothPresetSection section(&fixture.plugin);
    QCOMPARE(section.Init({}, {}, &fixture.host), BF::Results::ResourceFailure);
    QCOMPARE(fixture.TakeCalls(), QStringList());
    QVERIFY(section.findChildren<QWidget*>().isEmpty());
}

void TestPresetForm::startRegistersHotKeysAndAsksForThePresets()
{
    SectionFixture fixture;
    QTemporaryDir folder;
    fixture.host.SetDataFolder(folder.path());
    MV::CSoftClothPresetSection section(&fixture.plugin);
    QCOMPARE(section.Init({}, {}, &fixture.host), BF::Results::Success);
    QCOMPARE(fixture.TakeCalls(),
             (QStringList{QStringLiteral("HotKey.RegisterSectionHotKeys([\"[Hot Key] Modify\", \"[Hot Key] Physics\"], "
                                         "\"MVSoftClothPresetSection\") -> 1"),
                          QStringLiteral("Scene.GetDataFolderPath(\"%1\", 3) -> 0")
                              .arg(QDir::toNativeSeparators(folder.path() + u'/'))}));
}

void TestPresetForm::hotKeysAreTranslatedWithTheirNotes()
{
    SectionFixture fixture;
    MV::CSoftClothPresetSection section(&fixture.plugin);
    const NotingTranslator translator;
    QCOMPARE(section.Init({}, {}, &fixture.host), BF::Results::Success);
    QCOMPARE(TranslatedTexts(translator),
             (QStringList{QStringLiteral("[Hot Key] Modify <Modify Panel hot key>"),
                          QStringLiteral("[Hot Key] Physics <LensFlare section hot key>")}));
}

void TestPresetForm::presetFolderFollowsTheDataFolderDirectly()
{
    SectionFixture fixture;
    const QTemporaryDir folder;
    Files::Write(folder.filePath(QStringLiteral("MyPhysicsSoftPreset/0/1_Mine.png")), ImageBytes({8, 8}));
    Files::Write(folder.filePath(QStringLiteral("My/PhysicsSoftPreset/0/2_Other.png")), ImageBytes({8, 8}));
    BareFolderHost host(folder.filePath(QStringLiteral("My")));
    MV::CSoftClothPresetSection section(&fixture.plugin);
    QCOMPARE(section.Init({}, {}, &host), BF::Results::Success);
    const auto* list = Child<QListWidget>(&section, "qtPresetClothListWidget");
    QVERIFY(!list->item(0)->icon().isNull());
    QVERIFY(list->item(1)->icon().isNull());
}

void TestPresetForm::failingDataFolderLeavesTheGalleryEmpty()
{
    SectionFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("GetDataFolderPath"), BF::Results::ResourceFailure);
    MV::CSoftClothPresetSection section(&fixture.plugin);
    QCOMPARE(section.Init({}, {}, &fixture.host), BF::Results::Success);
    const auto* list = Child<QListWidget>(&section, "qtPresetClothListWidget");
    QVERIFY(list->item(0)->icon().isNull());
}

void TestPresetForm::rigidBodyButtonActsInFamilyAOnly_data()
{
    QTest::addColumn<quint32>("app");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("acts");
    for (const quint32 app : {0x1U, 0x2U, 0x4U, 0x7U, 0x1800007U, 0x800001U}) {
        QTest::addRow("0x%x", app) << app << true << true;
    }
    for (const quint32 app : {0x800000U, 0x1000000U, 0x1800000U, 0x1800008U}) {
        QTest::addRow("0x%x", app) << app << false << false;
    }
    for (const quint32 app : {0x0U, 0x8U, 0x400000U, 0x2000000U}) {
        QTest::addRow("0x%x", app) << app << true << false;
    }
}

void TestPresetForm::rigidBodyButtonActsInFamilyAOnly()
{
    QFETCH(const quint32, app);
    QFETCH(const bool, visible);
    QFETCH(const bool, acts);
    SectionFixture fixture;
    fixture.plugin.SetCurrentApp(MV::ECompatibleApp(app));
    auto& section = fixture.Make<MV::CSoftClothPresetSection>();
    QVERIFY(fixture.Show(section));
    for (const char* name : radioButtons) {
        QCOMPARE(Child<QWidget>(&section, name)->isVisible(), visible);
    }
    Child<QRadioButton>(&section, "qtRigidBodyRadioButton")->click();
    QCOMPARE(fixture.TakeCalls().join(QLatin1Char(' ')).contains(QLatin1String("ConvertToRigidBody")), acts);
}

void TestPresetForm::expandButtonFoldsTheSection()
{
    PresetFixture fixture;
    fixture.AddCloth();
    const auto* group = fixture.Find<QGroupBox>("qtSectionGroupBox");
    QVERIFY(group->isVisible());
    fixture.Click("qtExpandPushButton");
    QVERIFY(!group->isVisible());
    QVERIFY(!fixture.section->GetSectionExpandState());
}

SOFTCLOTH_TEST(TestPresetForm)
#include "tst_preset_form.moc"
