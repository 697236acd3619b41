#include "host/simulation/PanelMapping.h"

#include "tests/support/TestCase.h"

#include <cmath>
#include <limits>

using Host::ClothValues;
using Host::SolverValues;
using Host::ToSolverValues;

class TestPanelMapping : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valueIsTranslated_data();
    void valueIsTranslated();
    void valuesThatAreNotShownChangeNothing();
    void blackHoldsAndWhiteFrees();
    void externalWindIsExact();
    void randomWindIsDrawnAtItsFrequency();
    void randomWindStaysBetweenTheFactors();
};

namespace {

using Set = void (*)(ClothValues&);
using Get = float (*)(const SolverValues&);
const float infinite = std::numeric_limits<float>::infinity();
const float notANumber = std::numeric_limits<float>::quiet_NaN();

struct Row
{
    const char* name;
    Set set;
    Get get;
    float expected;
};

const Row rows[] = {
    {"frequency", [](ClothValues& v) { v.property.solverFrequency = 300; },
     [](const SolverValues& s) { return s.frequency; }, 300.0F},
    {"least frequency", [](ClothValues& v) { v.property.solverFrequency = 1; },
     [](const SolverValues& s) { return s.frequency; }, 60.0F},
    {"greatest frequency", [](ClothValues& v) { v.property.solverFrequency = std::numeric_limits<qint64>::max(); },
     [](const SolverValues& s) { return s.frequency; }, 1000.0F},
    {"gravity", [](ClothValues&) {}, [](const SolverValues& s) { return s.gravity; }, 981.0F},
    {"no gravity", [](ClothValues& v) { v.useGlobalGravity = false; }, [](const SolverValues& s) { return s.gravity; },
     0.0F},
    {"rigid", [](ClothValues& v) { v.property.stiffness = 1.0F; },
     [](const SolverValues& s) { return s.stretchModulus; }, infinite},
    {"more than rigid", [](ClothValues& v) { v.property.stiffness = 1.7F; },
     [](const SolverValues& s) { return s.stretchModulus; }, infinite},
    {"no stiffness", [](ClothValues& v) { v.property.stiffness = 0.0F; },
     [](const SolverValues& s) { return s.stretchModulus; }, 0.0F},
    // 1 - 1/e of the error within a tenth of a second: ten times a second, over a metre.
    {"stiffness", [](ClothValues& v) { v.property.stiffness = 1.0F - std::exp(-1.0F); },
     [](const SolverValues& s) { return s.stretchModulus; }, 1e6F},
    {"stiffness at twice the frequency",
     [](ClothValues& v) {
         v.property.stiffness = 1.0F - std::exp(-1.0F);
         v.property.stiffnessFrequency = 20.0F;
     },
     [](const SolverValues& s) { return s.stretchModulus; }, 4e6F},
    {"bending", [](ClothValues& v) { v.property.bending = 1.0F - std::exp(-1.0F); },
     [](const SolverValues& s) { return s.bendModulus; }, 490.0F * 490.0F},
    {"no bending", [](ClothValues& v) { v.property.bending = 0.0F; },
     [](const SolverValues& s) { return s.bendModulus; }, 0.0F},
    {"tether limit", [](ClothValues& v) { v.property.tetherLimit = 1.35F; },
     [](const SolverValues& s) { return s.tetherLimit; }, 1.35F},
    {"no tether", [](ClothValues& v) { v.property.tetherLimit = 0.0F; },
     [](const SolverValues& s) { return s.tetherLimit; }, 0.0F},
    {"tether stiffness", [](ClothValues& v) { v.property.tetherStiffness = 1.0F - std::exp(-1.0F); },
     [](const SolverValues& s) { return s.tetherRate; }, 10.0F},
    {"tether stiffness of a missing key", [](ClothValues& v) { v.property.tetherStiffness = 1.01F; },
     [](const SolverValues& s) { return s.tetherRate; }, infinite},
    {"damping", [](ClothValues& v) { v.property.damping = 1.0F - std::exp(-2.0F); },
     [](const SolverValues& s) { return s.dampingRate; }, 2.0F},
    {"full damping still moves", [](ClothValues& v) { v.property.damping = 1.0F; },
     [](const SolverValues& s) { return s.dampingRate; }, 6.9078F},
    {"drag", [](ClothValues& v) { v.property.drag = 0.4F; }, [](const SolverValues& s) { return s.dragRate; }, 2.0F},
    {"drag of a heavy cloth",
     [](ClothValues& v) {
         v.property.drag = 0.4F;
         v.property.mass = 4;
     },
     [](const SolverValues& s) { return s.dragRate; }, 0.5F},
    {"drag of a cloth without mass",
     [](ClothValues& v) {
         v.property.drag = 0.4F;
         v.property.mass = 0;
     },
     [](const SolverValues& s) { return s.dragRate; }, 20.0F},
    {"friction", [](ClothValues& v) { v.property.friction = 0.7F; }, [](const SolverValues& s) { return s.friction; },
     0.7F},
    {"negative friction", [](ClothValues& v) { v.property.friction = -1.0F; },
     [](const SolverValues& s) { return s.friction; }, 0.0F},
    {"friction that is no number", [](ClothValues& v) { v.property.friction = notANumber; },
     [](const SolverValues& s) { return s.friction; }, 0.0F},
    {"linear inertia", [](ClothValues& v) { v.property.linearInertiaScale = 0.3F; },
     [](const SolverValues& s) { return s.linearInertia; }, 0.3F},
    {"angular inertia", [](ClothValues& v) { v.property.angularInertiaScale = 0.4F; },
     [](const SolverValues& s) { return s.angularInertia; }, 0.4F},
    {"centrifugal inertia", [](ClothValues& v) { v.property.centrifugalInertiaScale = 1.4F; },
     [](const SolverValues& s) { return s.centrifugalInertia; }, 1.4F},
    {"body margin", [](ClothValues& v) { v.collision.rigidMargin = 0.8F; },
     [](const SolverValues& s) { return s.bodyMargin; }, 0.8F},
    {"negative margin", [](ClothValues& v) { v.collision.rigidMargin = -0.8F; },
     [](const SolverValues& s) { return s.bodyMargin; }, 0.0F},
    {"endless margin", [](ClothValues& v) { v.collision.rigidMargin = infinite; },
     [](const SolverValues& s) { return s.bodyMargin; }, 0.0F},
    {"self margin", [](ClothValues& v) { v.collision.selfMargin = 0.6F; },
     [](const SolverValues& s) { return s.selfMargin; }, 0.6F},
    {"body collision", [](ClothValues& v) { v.collision.collideWithRigid = false; },
     [](const SolverValues& s) { return s.collidesWithBody ? 1.0F : 0.0F; }, 0.0F},
    {"self collision", [](ClothValues& v) { v.collision.selfCollision = true; },
     [](const SolverValues& s) { return s.collidesWithItself ? 1.0F : 0.0F; }, 1.0F},
};

bool AreSame(float a, float b)
{
    return a == b || std::fabs(a - b) <= 1e-4F * std::fabs(b);
}

} // namespace

void TestPanelMapping::valueIsTranslated_data()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const Row& row : rows) {
        QTest::newRow(row.name) << number++;
    }
}

void TestPanelMapping::valueIsTranslated()
{
    QFETCH(int, number);
    const Row& row = rows[number];
    ClothValues values;
    row.set(values);
    const float translated = row.get(ToSolverValues(values));
    QVERIFY2(AreSame(translated, row.expected), qPrintable(QString::number(double(translated))));
}

void TestPanelMapping::valuesThatAreNotShownChangeNothing()
{
    ClothValues values;
    values.property.collisionMassScale = 1.0F;
    values.property.sleepLinearVelocity = 10.0F;
    values.property.wakeCounterValue = 10.0F;
    const SolverValues changed = ToSolverValues(values);
    const SolverValues usual = ToSolverValues({});
    for (const Row& row : rows) {
        QCOMPARE(row.get(changed), row.get(usual));
    }
}

void TestPanelMapping::blackHoldsAndWhiteFrees()
{
    QCOMPARE(Host::AllowedDistance(0), 0.0F);
    QCOMPARE(Host::AllowedDistance(255), infinite);
    float before = 0.0F;
    for (int gray = 1; gray < 255; ++gray) {
        QVERIFY(Host::AllowedDistance(gray) > before);
        before = Host::AllowedDistance(gray);
    }
    QVERIFY(std::fabs(Host::AllowedDistance(127) - 9.92F) < 0.01F);
    QVERIFY(std::isfinite(before));
}

void TestPanelMapping::externalWindIsExact()
{
    MV::SoftClothWindData data;
    data.externalAcceleration = {400.0F, 20.0F, -120.0F};
    const Host::Wind wind(7);
    for (const double time : {0.0, 0.3, 17.0}) {
        QVERIFY(wind.Acceleration(data, time) == Host::Vector(400.0F, 20.0F, -120.0F, 0.0F));
        QVERIFY(wind.Velocity(data, time) == Host::Vector(400.0F, 20.0F, -120.0F, 0.0F));
    }
}

void TestPanelMapping::randomWindIsDrawnAtItsFrequency()
{
    MV::SoftClothWindData data;
    data.randomAcceleration = {100.0F, 100.0F, 100.0F};
    data.frequency = 2.0F;
    const Host::Wind wind(7);
    QVERIFY(wind.Acceleration(data, 0.01) == wind.Acceleration(data, 0.49));
    QVERIFY(wind.Acceleration(data, 0.01) != wind.Acceleration(data, 0.51));
    QVERIFY(wind.Acceleration(data, 0.01) == Host::Wind(7).Acceleration(data, 0.01));
    QVERIFY(wind.Acceleration(data, 0.01) != Host::Wind(8).Acceleration(data, 0.01));
    data.frequency = 0.0F;
    QVERIFY(wind.Acceleration(data, 0.01) == wind.Acceleration(data, 1000.0));
}

void TestPanelMapping::randomWindStaysBetweenTheFactors()
{
    MV::SoftClothWindData data;
    data.randomAcceleration = {100.0F, 0.0F, 50.0F};
    data.randomFactor = {2.0F, 6.0F};
    data.frequency = 10.0F;
    const Host::Wind wind(3);
    float low = 0.0F;
    float high = 0.0F;
    for (int i = 0; i < 2000; ++i) {
        const Host::Vector a = wind.Acceleration(data, 0.05 + 0.1 * i);
        QVERIFY(std::fabs(a.x()) <= 600.0F && a.y() == 0.0F && std::fabs(a.z()) <= 300.0F);
        low = std::min(low, a.x());
        high = std::max(high, a.x());
    }
    QVERIFY(low < -540.0F && high > 540.0F);
}

SOFTCLOTH_TEST_WITH(TestPanelMapping, QCoreApplication)

#include "tst_panel_mapping.moc"
