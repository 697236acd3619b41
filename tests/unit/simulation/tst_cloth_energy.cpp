#include "host/simulation/BodyCollider.h"
#include "host/simulation/Cloth.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/ClothSamples.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace ClothSamples;
using Host::Cloth;
using Host::ClothFrame;
using Host::ClothShape;
using Host::Vector;
using Host::Vectors;

/// Where the energy of a cloth goes: nowhere by itself, into the air by drag, away by damping.
class TestClothEnergy : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void energyNeverGrowsWithoutWind_data();
    void energyNeverGrowsWithoutWind();
    void energyNeverGrowsAgainstObstacles_data();
    void energyNeverGrowsAgainstObstacles();
    void airTakesASailAlong();
    void dragIsNoDamping();
};

namespace {

const double gravity = 981.0;

/// What falling through \p depth is worth.
double FallOf(const Cloth& cloth, double depth)
{
    double worth = 0.0;
    for (const float mass : cloth.Masses()) {
        worth += double(mass) * gravity * depth;
    }
    return worth;
}

/// Swings for \p seconds, and fails when the highest energy of a second exceeds that of the second before: what is
/// stored in the stretch comes and goes in between. In the end some must be gone.
void SwingDown(Cloth& cloth, int seconds, double tolerance, Host::BodyCollider* body = nullptr)
{
    const Vector down = Falling().acceleration;
    const double scale = FallOf(cloth, 40.0);
    Run(cloth, 1.0 / 60.0, Falling(), body);
    const double first = cloth.Energy(down);
    double before = first;
    for (int second = 0; second < seconds; ++second) {
        double highest = -1e30;
        for (int frame = 0; frame < 60; ++frame) {
            Run(cloth, 1.0 / 60.0, Falling(), body);
            highest = std::max(highest, cloth.Energy(down));
        }
        QVERIFY2(highest < before + tolerance * scale,
                 qPrintable(QStringLiteral("second %1: %2").arg(second).arg((highest - before) / scale)));
        before = highest;
    }
    QVERIFY(before < first - 0.05 * scale);
}

} // namespace

void TestClothEnergy::energyNeverGrowsWithoutWind_data()
{
    QTest::addColumn<float>("frequency");
    QTest::addColumn<float>("modulus");
    QTest::addColumn<float>("bend");
    QTest::addColumn<float>("drag");
    QTest::newRow("rigid") << 240.0F << std::numeric_limits<float>::infinity() << 0.0F << 0.0F;
    QTest::newRow("rigid, few substeps") << 60.0F << std::numeric_limits<float>::infinity() << 0.0F << 0.0F;
    QTest::newRow("elastic") << 240.0F << 5e5F << 0.0F << 0.0F;
    QTest::newRow("rigid, 75 substeps") << 75.0F << std::numeric_limits<float>::infinity() << 0.0F << 0.0F;
    QTest::newRow("rigid to bending as well")
        << 240.0F << std::numeric_limits<float>::infinity() << std::numeric_limits<float>::infinity() << 0.0F;
    QTest::newRow("stiff") << 240.0F << 1e7F << 1e6F << 0.0F;
    QTest::newRow("in the air") << 240.0F << 1e7F << 1e4F << 2.0F;
}

void TestClothEnergy::energyNeverGrowsWithoutWind()
{
    QFETCH(float, frequency);
    QFETCH(float, modulus);
    QFETCH(float, bend);
    QFETCH(float, drag);
    // Swings down from lying flat.
    ClothShape shape = HangingSheet(20, 20, 2.0F);
    for (Vector& place : shape.rest) {
        place = {place.x(), 0.0F, -place.y(), 0.0F};
    }
    Cloth cloth(shape);
    Host::SolverValues values = Ideal(frequency);
    values.stretchModulus = modulus;
    values.bendModulus = bend;
    values.dragRate = drag;
    cloth.SetValues(values);
    SwingDown(cloth, 10, 1e-3);
}

void TestClothEnergy::energyNeverGrowsAgainstObstacles_data()
{
    QTest::addColumn<bool>("body");
    QTest::addColumn<bool>("itself");
    QTest::addColumn<float>("tether");
    QTest::newRow("body") << true << false << 0.0F;
    QTest::newRow("itself") << false << true << 0.0F;
    QTest::newRow("tethers") << false << false << 1.0F;
    QTest::newRow("all of them") << true << true << 1.0F;
}

/// Hangs from one edge, swings down and against a ball.
void TestClothEnergy::energyNeverGrowsAgainstObstacles()
{
    QFETCH(bool, body);
    QFETCH(bool, itself);
    QFETCH(float, tether);
    ClothShape shape = HangingSheet(16, 16, 2.5F);
    for (Vector& place : shape.rest) {
        place = {place.x() - 20.0F, 0.0F, -place.y(), 0.0F};
    }
    auto ball = Ball(10.0F, 24, 12);
    for (Vector& place : ball.places) {
        place += Vector(0.0F, -25.0F, -5.0F, 0.0F);
    }
    Host::BodyCollider collider(ball.places, ball.triangles);
    Cloth cloth(shape);
    Host::SolverValues values = Ideal(240.0F);
    values.bendModulus = 1e4F;
    values.collidesWithBody = body;
    values.bodyMargin = 0.5F;
    values.collidesWithItself = itself;
    values.selfMargin = 0.5F;
    values.tetherLimit = tether;
    values.tetherRate = std::numeric_limits<float>::infinity();
    cloth.SetValues(values);
    SwingDown(cloth, 5, 2e-3, &collider);
}

/// Without gravity a sheet across the wind gains on it as exp(-rate × time) says; one along the wind stays.
void TestClothEnergy::airTakesASailAlong()
{
    Host::SolverValues values = Ideal(240.0F);
    values.dragRate = 3.0F;
    ClothFrame across;
    across.airVelocity = {0.0F, 0.0F, 200.0F, 0.0F};
    Cloth sail(Sheet(6, 6, 5.0F));
    sail.SetValues(values);
    Run(sail, 0.5, across);
    const double exact = 200.0 * (1.0 - std::exp(-3.0 * 0.5));
    for (const Vector& velocity : sail.Velocities()) {
        QVERIFY2(std::fabs(double(velocity.z()) / exact - 1.0) < 0.01, qPrintable(QString::number(velocity.z())));
    }
    ClothFrame along;
    along.airVelocity = {200.0F, 0.0F, 0.0F, 0.0F};
    Cloth edge(Sheet(6, 6, 5.0F));
    edge.SetValues(values);
    Run(edge, 0.5, along);
    for (const Vector& velocity : edge.Velocities()) {
        QVERIFY(velocity.norm() < 0.1F);
    }
}

/// Damping slows down whatever moves; drag lets through what cuts the air with its edge.
void TestClothEnergy::dragIsNoDamping()
{
    const auto speedAfter = [](const Vector& velocity, float drag, float damping) {
        Cloth cloth(Sheet(6, 6, 5.0F));
        Host::SolverValues values = Ideal(240.0F);
        values.dragRate = drag;
        values.dampingRate = damping;
        cloth.SetValues(values);
        cloth.SetVelocities(Vectors(cloth.Positions().size(), velocity));
        Run(cloth, 1.0, {});
        return double(cloth.Velocities()[24].norm());
    };
    const Vector edgeOn(100.0F, 0.0F, 0.0F, 0.0F);
    const Vector faceOn(0.0F, 0.0F, 100.0F, 0.0F);
    const double slowed = 100.0 * std::exp(-2.0);
    QVERIFY(std::fabs(speedAfter(edgeOn, 0.0F, 2.0F) - slowed) < 0.2);
    QVERIFY(std::fabs(speedAfter(faceOn, 0.0F, 2.0F) - slowed) < 0.2);
    QVERIFY(std::fabs(speedAfter(edgeOn, 2.0F, 0.0F) - 100.0) < 0.2);
    QVERIFY(std::fabs(speedAfter(faceOn, 2.0F, 0.0F) - slowed) < 0.2);
}

SOFTCLOTH_TEST_WITH(TestClothEnergy, QCoreApplication)

#include "tst_cloth_energy.moc"
