#include "sections/SoftClothCollisionSection.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/FileRefusal.h"
#include "tests/support/Files.h"
#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QCheckBox>
#include <QUndoStack>

/// What a loaded profile does to the panel and to the host.
class TestProfileLoad : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void groupsAreAppliedInFixedOrder();
    void onlyTheGroupsOfTheFileAreTouched_data();
    void onlyTheGroupsOfTheFileAreTouched();
    void gravityIsReadAsTruthValue_data();
    void gravityIsReadAsTruthValue();
    void changedGravityBoxWritesToo();
    void unchangedGravityBoxWritesOnce();
    void failedGravityWriteEndsTheLoading();
    void selectionIsReadAgainForEachGroup();
    void failuresOfTheSectionsAreNotExamined();
    void missingSectionsAreSkipped();
    void affectAllMaterialsGoesWithEveryWrite();
    void percentagesAreTakenAwayFromOne();
    void missingKeysAreZero();
    void everyGroupIsAnUndoStep();
    void refusedFilesChangeNothing_data();
    void refusedFilesChangeNothing();
    void unreadableFileChangesNothing();
    void readOnlyProfileIsLoaded();
    void oddFilesAreLoaded_data();
    void oddFilesAreLoaded();
    void profileWithoutSelectionReachesTheHost();
};

namespace {

constexpr const char* wholeProfile = "[Wind_Setting]\nWind_Frequency=2\n"
                                     "[Collision]\nSelf_Collision=true\n"
                                     "[Property]\nMass=3\n"
                                     "[Preset]\nUse_Global_Gravity=true\n";

struct LoadFixture : PresetFixture
{
    LoadFixture() { hero = &AddCloth(); }

    BF::Result Load(const QByteArray& content)
    {
        return section->LoadProfileFile(Files::Write(Path(QStringLiteral("profile.ini")), content));
    }
    QStringList Operations() { return OperationsOf(TakeActions()); }

    Host::Object* hero = nullptr;
};

} // namespace

void TestProfileLoad::groupsAreAppliedInFixedOrder()
{
    LoadFixture fixture;
    QCOMPARE(fixture.Load(wholeProfile), BF::Results::Success);
    QCOMPARE(OperationsOf(fixture.Take()),
             (QStringList{QStringLiteral("SetUseGlobalGravity"), QStringLiteral("SetSoftClothProperty"),
                          QStringLiteral("SetSoftClothCollision"), QStringLiteral("SetSoftClothWind")}));
    const Host::ClothState& cloth = fixture.Cloth(*fixture.hero);
    QCOMPARE(cloth.property.mass, qint64(3));
    QCOMPARE(cloth.collision.selfCollision, true);
    QCOMPARE(cloth.wind.frequency, 2.0F);
}

void TestProfileLoad::onlyTheGroupsOfTheFileAreTouched_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("operations");
    const auto row = [](const char* name, const char* content, const char* operations) {
        QTest::newRow(name) << QByteArray(content) << QString::fromLatin1(operations);
    };
    row("gravity", "[Preset]\nUse_Global_Gravity=true\n", "SetUseGlobalGravity");
    row("group without the key", "[Preset]\nOther=true\n", "SetUseGlobalGravity SetUseGlobalGravity");
    row("property", "[Property]\nMass=1\n", "SetSoftClothProperty");
    row("collision", "[Collision]\nSelf_Collision=true\n", "SetSoftClothCollision");
    row("wind", "[Wind_Setting]\nWind_Frequency=1\n", "SetSoftClothWind");
    row("nothing", "", "");
    row("lower case", "[preset]\nUse_Global_Gravity=false\n[property]\nMass=9\n", "");
    row("material names", "[Ignored_Material_Name_List]\nBody=Skin\n", "");
    row("header alone", "[Property]\n", "");
    row("unknown key", "[Collision]\nColour=red\n", "SetSoftClothCollision");
}

void TestProfileLoad::onlyTheGroupsOfTheFileAreTouched()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, operations);
    LoadFixture fixture;
    QCOMPARE(fixture.Load(content), BF::Results::Success);
    QCOMPARE(fixture.Operations().join(QLatin1Char(' ')), operations);
}

void TestProfileLoad::gravityIsReadAsTruthValue_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("gravity");
    const auto row = [](const char* value, bool gravity) { QTest::newRow(value) << QByteArray(value) << gravity; };
    row("true", true);
    row("True", true);
    row("1", true);
    row("yes", true);
    row("\"true\"", true);
    row("false", false);
    row("FALSE", false);
    row("0", false);
    row("", false);
    row("a, b", false);
}

void TestProfileLoad::gravityIsReadAsTruthValue()
{
    QFETCH(const QByteArray, value);
    QFETCH(const bool, gravity);
    LoadFixture fixture;
    fixture.Cloth(*fixture.hero).useGlobalGravity = !gravity;
    QCOMPARE(fixture.Load("[Preset]\nUse_Global_Gravity=" + value + '\n'), BF::Results::Success);
    QCOMPARE(fixture.Cloth(*fixture.hero).useGlobalGravity, gravity);
    QCOMPARE(fixture.IsChecked("qtUseWorldGravityCheckBox"), gravity);
}

void TestProfileLoad::changedGravityBoxWritesToo()
{
    LoadFixture fixture;
    QVERIFY(fixture.IsChecked("qtUseWorldGravityCheckBox"));
    QCOMPARE(fixture.Load("[Preset]\nUse_Global_Gravity=false\n"), BF::Results::Success);
    const QString write = fixture.Call("SetUseGlobalGravity", {QStringLiteral("false"), QStringLiteral("false")});
    QCOMPARE(fixture.Take(), (QStringList{write, write}));
}

void TestProfileLoad::unchangedGravityBoxWritesOnce()
{
    LoadFixture fixture;
    QCOMPARE(fixture.Load("[Preset]\nUse_Global_Gravity=true\n"), BF::Results::Success);
    QCOMPARE(fixture.Take(),
             QStringList{fixture.Call("SetUseGlobalGravity", {QStringLiteral("true"), QStringLiteral("false")})});
}

void TestProfileLoad::failedGravityWriteEndsTheLoading()
{
    LoadFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("SetUseGlobalGravity"), BF::Results::IndexOutOfRange);
    QByteArray content = wholeProfile;
    content.replace("Gravity=true", "Gravity=false");
    QCOMPARE(fixture.Load(content), BF::Results::IndexOutOfRange);
    // The box is set already; no group after the first is read.
    QCOMPARE(fixture.Operations(),
             (QStringList{QStringLiteral("SetUseGlobalGravity"), QStringLiteral("SetUseGlobalGravity")}));
    QVERIFY(!fixture.IsChecked("qtUseWorldGravityCheckBox"));
    QCOMPARE(fixture.Cloth(*fixture.hero).property.mass, qint64(1));
}

void TestProfileLoad::selectionIsReadAgainForEachGroup()
{
    LoadFixture fixture;
    const Host::Object& flag = fixture.AddCloth(SampleModels::Flag());
    fixture.host.Select({fixture.hero->handle});
    fixture.host.Journal().Clear();
    // Inside the first write the host selects another object; what follows is for that one.
    fixture.During("SetUseGlobalGravity", [&] { fixture.host.Select({flag.handle}); });
    QByteArray content = wholeProfile;
    content.replace("Gravity=true", "Gravity=false");
    QCOMPARE(fixture.Load(content), BF::Results::Success);
    QVERIFY(!fixture.Cloth(*fixture.hero).useGlobalGravity);
    QVERIFY(!fixture.Cloth(flag).useGlobalGravity);
    QCOMPARE(fixture.Cloth(*fixture.hero).property.mass, qint64(1));
    QCOMPARE(fixture.Cloth(flag).property.mass, qint64(3));
    QCOMPARE(fixture.Cloth(flag).wind.frequency, 2.0F);
}

void TestProfileLoad::failuresOfTheSectionsAreNotExamined()
{
    LoadFixture fixture;
    fixture.host.Faults().FailOperation(QStringLiteral("SetSoftClothProperty"), BF::Results::Refused);
    QCOMPARE(fixture.Load(wholeProfile), BF::Results::Success);
    QCOMPARE(fixture.Operations().constLast(), QStringLiteral("SetSoftClothWind"));
}

void TestProfileLoad::missingSectionsAreSkipped()
{
    LoadFixture fixture;
    delete fixture.plugin->PropertySection();
    QCOMPARE(fixture.Load(wholeProfile), BF::Results::Success);
    QCOMPARE(fixture.Operations(),
             (QStringList{QStringLiteral("SetUseGlobalGravity"), QStringLiteral("SetSoftClothCollision"),
                          QStringLiteral("SetSoftClothWind")}));
    delete fixture.plugin->CollisionSection();
    delete fixture.plugin->WindSection();
    QCOMPARE(fixture.Load(wholeProfile), BF::Results::Success);
    QCOMPARE(fixture.Operations(), QStringList{QStringLiteral("SetUseGlobalGravity")});
}

void TestProfileLoad::affectAllMaterialsGoesWithEveryWrite()
{
    LoadFixture fixture;
    fixture.Click("qtAffectAllMaterialsCheckBox");
    QCOMPARE(fixture.Load(wholeProfile), BF::Results::Success);
    const QStringList actions = fixture.TakeActions();
    for (const QString& call : actions) {
        QVERIFY2(call.contains(QLatin1String(", true) -> 0")), qPrintable(call));
    }
    for (const int slot : {0, 1, 2}) {
        QCOMPARE(fixture.Cloth(*fixture.hero, slot).property.mass, qint64(3));
        QCOMPARE(fixture.Cloth(*fixture.hero, slot).wind.frequency, 2.0F);
    }
}

void TestProfileLoad::percentagesAreTakenAwayFromOne()
{
    LoadFixture fixture;
    QCOMPARE(fixture.Load("[Property]\nStiffness=75\nBending=100\nTether_Stiffness=1\nAngular_Inertia_Scale=15\n"
                          "Centrifugal_Inertia_Scale=9\nLinear_Inertia_Scale=12\n"),
             BF::Results::Success);
    const MV::SoftClothPropertyData& property = fixture.Cloth(*fixture.hero).property;
    QCOMPARE(property.stiffness, 0.25F);
    QCOMPARE(property.bending, 0.0F);
    QCOMPARE(property.tetherStiffness, 1.0F);
    QCOMPARE(property.angularInertiaScale, 1.5F);
    QCOMPARE(property.centrifugalInertiaScale, 0.9F);
    QCOMPARE(property.linearInertiaScale, 1.2F);
}

void TestProfileLoad::missingKeysAreZero()
{
    LoadFixture fixture;
    QCOMPARE(fixture.Load("[Property]\nFriction=0.25\n[Collision]\nSelf_Collision_Margin=1\n"
                          "[Wind_Setting]\nWind_Random_Factor=2\n"),
             BF::Results::Success);
    const Host::ClothState& cloth = fixture.Cloth(*fixture.hero);
    QCOMPARE(cloth.property.mass, qint64(0));
    QCOMPARE(cloth.property.friction, 0.25F);
    QCOMPARE(cloth.property.collisionMassScale, 0.0F);
    QCOMPARE(cloth.property.tetherStiffness, 1.01F);
    QVERIFY(!cloth.collision.collideWithRigid);
    QCOMPARE(cloth.wind.frequency, 0.0F);
    QCOMPARE(cloth.wind.randomFactor, (std::array<float, 2>{2.0F, 0.0F}));
}

void TestProfileLoad::everyGroupIsAnUndoStep()
{
    LoadFixture fixture;
    const Host::ClothState before = fixture.Cloth(*fixture.hero);
    const int steps = fixture.host.CurrentScene().UndoStack().index();
    QCOMPARE(fixture.Load(wholeProfile), BF::Results::Success);
    // The gravity was true before, so that three steps remain.
    QCOMPARE(fixture.host.CurrentScene().UndoStack().index(), steps + 3);
    for (int i = 0; i < 3; ++i) {
        fixture.host.Undo();
    }
    QVERIFY(fixture.Cloth(*fixture.hero) == before);
}

void TestProfileLoad::refusedFilesChangeNothing_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("empty path") << QString();
    QTest::newRow("missing") << QStringLiteral("missing.ini");
    QTest::newRow("folder") << QStringLiteral("folder");
    QTest::newRow("under a file") << QStringLiteral("file.ini/profile.ini");
}

void TestProfileLoad::refusedFilesChangeNothing()
{
    QFETCH(const QString, path);
    LoadFixture fixture;
    Files::Write(fixture.Path(QStringLiteral("file.ini")), wholeProfile);
    Files::Write(fixture.Path(QStringLiteral("folder/file.ini")), wholeProfile);
    QCOMPARE(fixture.section->LoadProfileFile(path.isEmpty() ? path : fixture.Path(path)), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), QStringList{Journal::Message(QStringLiteral("InValid File Path."))});
}

void TestProfileLoad::unreadableFileChangesNothing()
{
    LoadFixture fixture;
    Files::OpenToAll(fixture.folder.path());
    const QString path = Files::Write(fixture.Path(QStringLiteral("secret.ini")), wholeProfile);
    const FileRefusal refusal(path, FileRefusal::Of::ReadingAndWriting);
    QCOMPARE(fixture.section->LoadProfileFile(path), BF::Results::NothingDone);
    QCOMPARE(fixture.Take(), QStringList{Journal::Message(QStringLiteral("File is Unreadable."))});
}

void TestProfileLoad::readOnlyProfileIsLoaded()
{
    LoadFixture fixture;
    Files::OpenToAll(fixture.folder.path());
    const QString path = Files::Write(fixture.Path(QStringLiteral("folder/profile.ini")), wholeProfile);
    QVERIFY(QFile::setPermissions(path, QFileDevice::Permissions(0x4444)));
    const QString folder = QFileInfo(path).path();
    QVERIFY(QFile::setPermissions(folder, QFileDevice::Permissions(0x5555)));
    {
        const OrdinaryUser user;
        QCOMPARE(fixture.section->LoadProfileFile(path), BF::Results::Success);
    }
    QCOMPARE(fixture.Cloth(*fixture.hero).property.mass, qint64(3));
    QVERIFY(QFile::setPermissions(folder, QFileDevice::Permissions(0x7777)));
    QCOMPARE(Files::Read(path), QByteArray(wholeProfile));
}

void TestProfileLoad::oddFilesAreLoaded_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("operations");
    QByteArray noise;
    for (int i = 0; i < 5000; ++i) {
        noise += char(i * 197 + i / 3);
    }
    const QString property = QStringLiteral("SetSoftClothProperty");
    const QString wind = QStringLiteral("SetSoftClothWind");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("noise") << noise << QString();
    QTest::newRow("noise, then a group") << noise + "\n[Property]\nMass=3\n" << property;
    QTest::newRow("zeros") << QByteArray(3000, '\0') << QString();
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF[Property]\nMass=3\n") << property;
    QTest::newRow("carriage returns") << QByteArray("[Property]\r\nMass=3\r\n") << property;
    QTest::newRow("latin 1") << QByteArray("[Property]\nMass=3\nNote=\xE4\xF6\xFC\n[Gr\xFC\xDF]\na=1\n") << property;
    QTest::newRow("short lists") << QByteArray("[Wind_Setting]\nExternal_Acceleration=7\nRandom_Acceleration=\n")
                                 << wind;
    QTest::newRow("long lists") << QByteArray("[Wind_Setting]\nExternal_Acceleration=1, 2, 3, 4, 5, 6, 7, 8\n") << wind;
    QTest::newRow("words for numbers") << QByteArray("[Property]\nMass=heavy\nFriction=some\nStiffness=?\n")
                                       << property;
    QTest::newRow("numbers out of range")
        << QByteArray(
               "[Property]\nMass=99999999999999999999\nFriction=1e999\nStiffness=-2147483649\nBending=2147483647\n"
               "Solver_Frequency=-1\nTether_Limit=nan\nLinear_Inertia_Scale=2147483647\n")
        << property;
    QTest::newRow("list for a number") << QByteArray("[Property]\nMass=1, 2\nFriction=0.5, 1\n") << property;
    QByteArray large = "[Wind_Setting]\n";
    while (large.size() < 10 * 1024 * 1024) {
        large += "key" + QByteArray::number(large.size()) + "=" + QByteArray(80, 'x') + '\n';
    }
    QTest::newRow("ten megabytes") << large << wind;
}

void TestProfileLoad::oddFilesAreLoaded()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, operations);
    LoadFixture fixture;
    QCOMPARE(fixture.Load(content), BF::Results::Success);
    QCOMPARE(fixture.Operations().join(QLatin1Char(' ')), operations);
    // The panel can still be refreshed from what the host holds now.
    QCOMPARE(fixture.plugin->UpdateAllUIs(true), BF::Results::Success);
}

void TestProfileLoad::profileWithoutSelectionReachesTheHost()
{
    PresetFixture fixture;
    const QString path = Files::Write(fixture.Path(QStringLiteral("a.ini")), wholeProfile);
    fixture.host.Journal().Clear();
    QCOMPARE(fixture.section->LoadProfileFile(path), BF::Results::InvalidArgument);
    const QString write = QStringLiteral("SetUseGlobalGravity(null, null, null, true, false) -> 0x80000003");
    QCOMPARE(fixture.Take(), (QStringList{write, write}));
}

SOFTCLOTH_TEST(TestProfileLoad)
#include "tst_profile_load.moc"
