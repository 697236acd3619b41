#include "plugin/services/SoftClothRecords.h"

#include "tests/support/PropertyRows.h"
#include "tests/support/TestCase.h"

#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Result.h>

#include <algorithm>
#include <cstddef>

/// What the panel and the host exchange byte by byte: records, their defaults, and the numbers behind the names.
class TestSoftClothRecords : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void recordHasItsSize();
    void fieldHasItsDefault_data();
    void fieldHasItsDefault();
    void reservedBytesAreZero();
    void nameHasItsNumber_data();
    void nameHasItsNumber();
    void resultHasItsCode_data();
    void resultHasItsCode();
};

namespace {

template <class Enum>
void NumberRow(const char* name, Enum value, qint64 expected)
{
    QTest::newRow(name) << qint64(value) << expected;
}

} // namespace

/// Those of the others, and the places of their fields, are pinned where they are declared.
void TestSoftClothRecords::recordHasItsSize()
{
    QCOMPARE(sizeof(MV::WeightImageState), std::size_t(3));
    QCOMPARE(sizeof(BF::Result), std::size_t(4));
}

void TestSoftClothRecords::fieldHasItsDefault_data()
{
    const MV::SoftClothCollisionData collision;
    const MV::SoftClothWindData wind;
    const MV::WeightImageAdjust adjust;
    const MV::WeightImageState state;
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("expected");
    for (const PropertyRow& row : PropertyRows::All()) {
        QTest::newRow(row.name) << float(row.Get({})) << float(row.fresh);
    }
    QTest::newRow("collideWithRigid") << float(collision.collideWithRigid) << 1.0F;
    QTest::newRow("selfCollision") << float(collision.selfCollision) << 0.0F;
    QTest::newRow("rigidMargin") << collision.rigidMargin << 0.0F;
    QTest::newRow("selfMargin") << collision.selfMargin << 0.0F;
    const std::array<const char*, 3> axes{"X", "Y", "Z"};
    for (std::size_t axis = 0; axis < axes.size(); ++axis) {
        QTest::addRow("externalAcceleration %s", axes[axis]) << wind.externalAcceleration[axis] << 0.0F;
        QTest::addRow("randomAcceleration %s", axes[axis]) << wind.randomAcceleration[axis] << 0.0F;
    }
    QTest::newRow("frequency") << wind.frequency << 1.0F;
    QTest::newRow("randomFactor, lower") << wind.randomFactor[0] << 1.0F;
    QTest::newRow("randomFactor, upper") << wind.randomFactor[1] << 2.0F;
    QTest::newRow("adjust zero") << float(adjust.zero) << 0.0F;
    QTest::newRow("brightness") << float(adjust.brightness) << 0.0F;
    QTest::newRow("contrast") << float(adjust.contrast) << 0.0F;
    QTest::newRow("hasFile") << float(state.hasFile) << 0.0F;
    QTest::newRow("embedded") << float(state.embedded) << 0.0F;
    QTest::newRow("reload") << float(state.reload) << 0.0F;
}

void TestSoftClothRecords::fieldHasItsDefault()
{
    QFETCH(float, value);
    QFETCH(float, expected);
    QCOMPARE(value, expected);
}

void TestSoftClothRecords::reservedBytesAreZero()
{
    const MV::SoftClothPropertyData property;
    QVERIFY(std::all_of(property.reserved.begin(), property.reserved.end(), [](unsigned char b) { return b == 0; }));
}

void TestSoftClothRecords::nameHasItsNumber_data()
{
    using Property = MV::ESoftClothPropertyType;
    using Collision = MV::ESoftClothCollisionType;
    using Wind = MV::ESoftClothWindType;
    using Channel = MV::ETextureChannel;
    QTest::addColumn<qint64>("value");
    QTest::addColumn<qint64>("expected");
    NumberRow("property Mass", Property::Mass, 0);
    NumberRow("property SolverFrequency", Property::SolverFrequency, 1);
    NumberRow("property TetherStiffness", Property::TetherStiffness, 2);
    NumberRow("property TetherLimit", Property::TetherLimit, 3);
    NumberRow("property Friction", Property::Friction, 4);
    NumberRow("property Damping", Property::Damping, 5);
    NumberRow("property Drag", Property::Drag, 6);
    NumberRow("property Stiffness", Property::Stiffness, 7);
    NumberRow("property Bending", Property::Bending, 9);
    NumberRow("property InertiaScale", Property::InertiaScale, 13);
    NumberRow("property All", Property::All, 19);
    NumberRow("collision CollideWithRigid", Collision::CollideWithRigid, 0);
    NumberRow("collision SelfCollision", Collision::SelfCollision, 1);
    NumberRow("collision RigidMargin", Collision::RigidMargin, 2);
    NumberRow("collision SelfMargin", Collision::SelfMargin, 3);
    NumberRow("collision All", Collision::All, 4);
    NumberRow("wind ExternalAcceleration", Wind::ExternalAcceleration, 0);
    NumberRow("wind RandomAcceleration", Wind::RandomAcceleration, 1);
    NumberRow("wind Frequency", Wind::Frequency, 2);
    NumberRow("wind RandomFactor", Wind::RandomFactor, 3);
    NumberRow("wind All", Wind::All, 4);
    NumberRow("app FamilyA", MV::ECompatibleApp::FamilyA, 0x7);
    NumberRow("app FamilyB", MV::ECompatibleApp::FamilyB, 0x1800000);
    NumberRow("app Both", MV::ECompatibleApp::Both, 0x1800007);
    NumberRow("dialog mode None", MV::EDialogMode::None, 0);
    NumberRow("dialog mode WeightMap", MV::EDialogMode::WeightMap, 25);
    NumberRow("pick mode None", MV::EPickMode::None, 0);
    NumberRow("pick mode Material", MV::EPickMode::Material, 7);
    NumberRow("engine SoftCloth", MV::EPhysicsEngineType::SoftCloth, 1);
    NumberRow("changed Topology", MV::EObjectChangedDataType::Topology, 0x2);
    NumberRow("changed Replaced", MV::EObjectChangedDataType::Replaced, 0x4);
    NumberRow("changed MaterialList", MV::EObjectChangedDataType::MaterialList, 0x8);
    NumberRow("changed Removed", MV::EObjectChangedDataType::Removed, 0x40);
    NumberRow("changed MaterialNames", MV::EObjectChangedDataType::MaterialNames, 0x100);
    NumberRow("channel Weight", Channel::Weight, -1);
    NumberRow("channel Diffuse", Channel::Diffuse, 0);
    NumberRow("channel Opacity", Channel::Opacity, 1);
    NumberRow("channel Bump", Channel::Bump, 2);
    NumberRow("channel Specular", Channel::Specular, 3);
    NumberRow("channel Glow", Channel::Glow, 4);
    NumberRow("channel Reflection", Channel::Reflection, 5);
    NumberRow("channel DiffuseBlend", Channel::DiffuseBlend, 6);
    NumberRow("channel Refraction", Channel::Refraction, 7);
    NumberRow("channel Cube", Channel::Cube, 8);
    NumberRow("channel Displacement", Channel::Displacement, 9);
    NumberRow("channel Metallic", Channel::Metallic, 10);
    NumberRow("channel Roughness", Channel::Roughness, 11);
    NumberRow("channel AlphaRemap", Channel::AlphaRemap, 12);
    NumberRow("channel DiffuseAndOpacity", Channel::DiffuseAndOpacity, 14);
}

void TestSoftClothRecords::nameHasItsNumber()
{
    QFETCH(qint64, value);
    QFETCH(qint64, expected);
    QCOMPARE(value, expected);
}

void TestSoftClothRecords::resultHasItsCode_data()
{
    QTest::addColumn<BF::Result>("result");
    QTest::addColumn<quint32>("code");
    QTest::addColumn<bool>("isFailure");
    QTest::newRow("Success") << BF::Results::Success << 0U << false;
    QTest::newRow("NothingDone") << BF::Results::NothingDone << 1U << false;
    QTest::newRow("Cancelled") << BF::Results::Cancelled << 2U << false;
    QTest::newRow("ResourceFailure") << BF::Results::ResourceFailure << 0x80000002U << true;
    QTest::newRow("InvalidArgument") << BF::Results::InvalidArgument << 0x80000003U << true;
    QTest::newRow("IndexOutOfRange") << BF::Results::IndexOutOfRange << 0x80000004U << true;
    QTest::newRow("MissingDisabledPixmap") << BF::Results::MissingDisabledPixmap << 0x80000005U << true;
    QTest::newRow("Refused") << BF::Results::Refused << 0x80000006U << true;
}

void TestSoftClothRecords::resultHasItsCode()
{
    QFETCH(BF::Result, result);
    QFETCH(quint32, code);
    QFETCH(bool, isFailure);
    QCOMPARE(quint32(result.Code()), code);
    QCOMPARE(result.IsFailure(), isFailure);
    QCOMPARE(result.IsSuccess(), code == 0);
    QVERIFY(result == BF::Result(code));
    QVERIFY(result != BF::Result(code + 1));
}

SOFTCLOTH_TEST_WITH(TestSoftClothRecords, NoApplication)

#include "tst_soft_cloth_records.moc"
