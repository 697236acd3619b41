#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"
#include "tests/support/UserDialogs.h"
#include "tests/unit/preset/PresetFixture.h"

#include <QSettings>

#include <cmath>

/// A profile that goes from one object to another and back into a file.
class TestProfileRoundTrip : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void savedLoadedAndSavedAgainIsTheSameFile();
    void loadedObjectHasTheSavedValues();
    void inertiaScalesLoseWhatIsBelowATenth_data();
    void inertiaScalesLoseWhatIsBelowATenth();
    void doublesPassThroughSinglePrecision();
    void percentagesLoseWhatIsBelowOne();
    void windLosesFractions();
    void unknownGroupsAndKeysSurvive();
};

namespace {

struct RoundTrip : PresetFixture
{
    RoundTrip()
    {
        first = &AddCloth(SampleModels::Flag());
        second = &AddCloth(SampleModels::Hero());
    }

    void Show(const Host::Object& object) { host.Select({object.handle}); }
    QByteArray Save(const Host::Object& object, const char* name)
    {
        Show(object);
        const QString path = Path(QLatin1String(name));
        UserDialogs::ChooseFile([&] { Click("qtSaveFilePushButton"); }, path);
        return Files::ReadText(path);
    }
    void Load(const Host::Object& object, const char* name)
    {
        Show(object);
        UserDialogs::ChooseFile([&] { Click("qtOpenFilePushButton"); }, Path(QLatin1String(name)));
    }
    QString Saved(const char* name, const char* key) const
    {
        return QSettings(Path(QLatin1String(name)), QSettings::IniFormat).value(QLatin1String(key)).toString();
    }

    Host::Object* first = nullptr;
    Host::Object* second = nullptr;
};

/// Values that a profile holds without loss, all other than the defaults.
Host::ClothState ExactCloth()
{
    Host::ClothState cloth;
    cloth.active = true;
    cloth.useGlobalGravity = false;
    cloth.property = PropertyRows::Samples();
    cloth.collision = {false, true, 1.5F, 0.25F};
    cloth.wind.externalAcceleration = {100, -200, 300};
    cloth.wind.randomAcceleration = {1, 2, -3};
    cloth.wind.frequency = 2.5F;
    cloth.wind.randomFactor = {3, 8};
    return cloth;
}

} // namespace

void TestProfileRoundTrip::savedLoadedAndSavedAgainIsTheSameFile()
{
    RoundTrip trip;
    trip.Cloth(*trip.first) = ExactCloth();
    const QByteArray saved = trip.Save(*trip.first, "one.ini");
    trip.Load(*trip.second, "one.ini");
    QCOMPARE(trip.Save(*trip.second, "two.ini"), saved);
    // And from what the host holds, not only from what the widgets still show.
    trip.Show(*trip.first);
    trip.Show(*trip.second);
    QCOMPARE(trip.Save(*trip.second, "three.ini"), saved);
}

void TestProfileRoundTrip::loadedObjectHasTheSavedValues()
{
    RoundTrip trip;
    trip.Cloth(*trip.first) = ExactCloth();
    trip.Save(*trip.first, "one.ini");
    trip.Load(*trip.second, "one.ini");
    QVERIFY(trip.Cloth(*trip.second) == ExactCloth());
    // The other materials of the object stay as they were.
    QCOMPARE(trip.Cloth(*trip.second, 1).property.mass, qint64(1));
}

void TestProfileRoundTrip::inertiaScalesLoseWhatIsBelowATenth_data()
{
    QTest::addColumn<float>("scale");
    QTest::addColumn<QString>("saved");
    QTest::addColumn<float>("loaded");
    QTest::newRow("1.25") << 1.25F << QStringLiteral("12") << 1.2F;
    QTest::newRow("0.99") << 0.99F << QStringLiteral("9") << 0.9F;
    QTest::newRow("0.05") << 0.05F << QStringLiteral("0") << 0.0F;
    QTest::newRow("-0.55") << -0.55F << QStringLiteral("-5") << -0.5F;
    QTest::newRow("2") << 2.0F << QStringLiteral("20") << 2.0F;
}

void TestProfileRoundTrip::inertiaScalesLoseWhatIsBelowATenth()
{
    QFETCH(const float, scale);
    QFETCH(const QString, saved);
    QFETCH(const float, loaded);
    RoundTrip trip;
    MV::SoftClothPropertyData& property = trip.Cloth(*trip.first).property;
    property.linearInertiaScale = scale;
    property.angularInertiaScale = scale;
    property.centrifugalInertiaScale = scale;
    trip.Save(*trip.first, "one.ini");
    for (const char* key : {"Linear", "Angular", "Centrifugal"}) {
        QCOMPARE(trip.Saved("one.ini", QByteArray("Property/") + key + "_Inertia_Scale"), saved);
    }
    trip.Load(*trip.second, "one.ini");
    const MV::SoftClothPropertyData& other = trip.Cloth(*trip.second).property;
    QCOMPARE(other.linearInertiaScale, loaded);
    QCOMPARE(other.angularInertiaScale, loaded);
    QCOMPARE(other.centrifugalInertiaScale, loaded);
}

void TestProfileRoundTrip::doublesPassThroughSinglePrecision()
{
    RoundTrip trip;
    MV::SoftClothPropertyData& property = trip.Cloth(*trip.first).property;
    property.sleepLinearVelocity = 0.1F;
    property.wakeCounterValue = 1.0F / 3.0F;
    trip.Save(*trip.first, "one.ini");
    trip.Load(*trip.second, "one.ini");
    QCOMPARE(trip.Cloth(*trip.second).property.sleepLinearVelocity, 0.1F);
    QCOMPARE(trip.Cloth(*trip.second).property.wakeCounterValue, 1.0F / 3.0F);
}

void TestProfileRoundTrip::percentagesLoseWhatIsBelowOne()
{
    RoundTrip trip;
    trip.Cloth(*trip.first).property.bending = 0.125F;
    trip.Save(*trip.first, "one.ini");
    QCOMPARE(trip.Saved("one.ini", "Property/Bending"), QStringLiteral("88"));
    trip.Load(*trip.second, "one.ini");
    QVERIFY(std::fabs(trip.Cloth(*trip.second).property.bending - 0.12F) < 1e-6F);
}

void TestProfileRoundTrip::windLosesFractions()
{
    RoundTrip trip;
    trip.Cloth(*trip.first).wind.externalAcceleration = {-2.7F, 0.9F, 12.5F};
    trip.Save(*trip.first, "one.ini");
    trip.Load(*trip.second, "one.ini");
    QCOMPARE(trip.Cloth(*trip.second).wind.externalAcceleration, (std::array<float, 3>{-2.0F, 0.0F, 12.0F}));
}

void TestProfileRoundTrip::unknownGroupsAndKeysSurvive()
{
    RoundTrip trip;
    Files::Write(trip.Path(QStringLiteral("one.ini")),
                 "[Property]\nColour=red\n[Ignored_Material_Name_List]\nBody=Skin\n[Zebra]\nstripes=9\n");
    const QByteArray saved = trip.Save(*trip.first, "one.ini");
    for (const char* line : {"\nColour=red\n", "\nBody=Skin\n", "\nstripes=9\n"}) {
        QVERIFY2(saved.contains(line), line);
    }
    // Saving it again changes nothing at all.
    QCOMPARE(trip.Save(*trip.first, "one.ini"), saved);
}

SOFTCLOTH_TEST(TestProfileRoundTrip)
#include "tst_profile_round_trip.moc"
