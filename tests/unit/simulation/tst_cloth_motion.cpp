#include "host/simulation/Cloth.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/ClothSamples.h"

#include <algorithm>
#include <cmath>
#include <cstring>

using namespace ClothSamples;
using Host::Cloth;
using Host::ClothFrame;
using Host::ClothShape;
using Host::Vector;
using Host::Vectors;

/// The solver against what mechanics says.
class TestClothMotion : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void freeFallIsExact_data();
    void freeFallIsExact();
    void pendulumSwingsInItsPeriod_data();
    void pendulumSwingsInItsPeriod();
    void hangingThreadComesToTheCatenary();
    void elasticThreadStretchesByItsWeight_data();
    void elasticThreadStretchesByItsWeight();
    void tetherLimitIsKept_data();
    void tetherLimitIsKept();
    void heldVerticesFollowExactly();
    void tiedVerticesStayWithinTheirDistance();
    void sameInputGivesTheSameMotion();
    void strangeFrequencyEndsFramesOnTime();
    void acceleratedFrameIsAsTheMovingObject();
    void spinningFrameKeepsFreeThingsStraight();
    void runawayIsNoticed();
};

namespace {

const double gravity = 981.0;

/// A single thread of \p links parts from \p a to \p b that hangs down in a V as long as \p length.
ClothShape SlackThread(int links, float span, float length)
{
    const float depth = std::sqrt(length * length - span * span) / 2.0F;
    Vectors places;
    for (int i = 0; i <= links; ++i) {
        const float share = float(i) / float(links);
        places.emplace_back(span * share, -depth * (1.0F - std::fabs(2.0F * share - 1.0F)), 0.0F, 0.0F);
    }
    ClothShape shape = Thread(places);
    shape.freedom.front() = 0.0F;
    shape.freedom.back() = 0.0F;
    return shape;
}

/// How far the middle of an inextensible chain hangs down.
double CatenarySag(double span, double length)
{
    // length = 2 a sinh(span / 2a), solved by halving.
    double low = span / 100.0;
    double high = span * 100.0;
    for (int i = 0; i < 200; ++i) {
        const double a = 0.5 * (low + high);
        (2.0 * a * std::sinh(span / (2.0 * a)) > length ? low : high) = a;
    }
    return low * (std::cosh(span / (2.0 * low)) - 1.0);
}

} // namespace

void TestClothMotion::freeFallIsExact_data()
{
    QTest::addColumn<float>("frequency");
    for (const int frequency : {60, 90, 100, 120, 144, 240, 250, 333, 480, 500, 777, 960, 1000}) {
        QTest::newRow(qPrintable(QString::number(frequency))) << float(frequency);
    }
}

void TestClothMotion::freeFallIsExact()
{
    QFETCH(float, frequency);
    Cloth cloth(Sheet(2, 2, 5.0F));
    cloth.SetValues(Ideal(frequency));
    Run(cloth, 1.0);
    for (std::size_t i = 0; i < cloth.Positions().size(); ++i) {
        const Vector error =
            cloth.Positions()[i] - cloth.Shape().rest[i] - Vector(0.0F, -0.5F * float(gravity), 0.0F, 0.0F);
        QVERIFY2(error.norm() < 0.05F, qPrintable(QString::number(double(error.norm()))));
    }
}

void TestClothMotion::pendulumSwingsInItsPeriod_data()
{
    QTest::addColumn<float>("frequency");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("60") << 60.0F << 2.5e-3; // loses height fast, which makes it slower
    QTest::newRow("120") << 120.0F << 1e-3;
    QTest::newRow("240") << 240.0F << 1e-3;
    QTest::newRow("480") << 480.0F << 1e-3;
}

void TestClothMotion::pendulumSwingsInItsPeriod()
{
    QFETCH(float, frequency);
    QFETCH(double, tolerance);
    const double length = 50.0;
    const double angle = 0.05;
    ClothShape shape =
        Thread({Vector::Zero(), {float(length * std::sin(angle)), float(-length * std::cos(angle)), 0.0F, 0.0F}});
    shape.freedom[0] = 0.0F;
    Cloth cloth(shape);
    cloth.SetValues(Ideal(frequency));
    // Times at which it passes the middle.
    std::vector<double> passes;
    for (int frame = 1; frame <= 60 * 15; ++frame) {
        const double before = double(cloth.Positions()[1].x());
        Run(cloth, 1.0 / 60.0);
        const double after = double(cloth.Positions()[1].x());
        if ((before > 0.0) != (after > 0.0)) {
            passes.push_back((frame - 1 + before / (before - after)) / 60.0);
        }
    }
    const double period = 2.0 * (passes.back() - passes.front()) / double(passes.size() - 1);
    const double pi = 3.14159265358979;
    const double small = 2.0 * pi * std::sqrt(length / gravity);
    const double exact = small * (1.0 + angle * angle / 16.0 + 11.0 * std::pow(angle, 4) / 3072.0);
    QVERIFY2(std::fabs(period / exact - 1.0) < tolerance, qPrintable(QStringLiteral("%1 %2").arg(period).arg(exact)));
}

void TestClothMotion::hangingThreadComesToTheCatenary()
{
    const float span = 100.0F;
    const float length = 120.0F;
    const double exact = CatenarySag(double(span), double(length));
    std::vector<double> errors;
    for (const float frequency : {240.0F, 960.0F, 3840.0F}) {
        Cloth cloth(SlackThread(20, span, length));
        Host::SolverValues values = Ideal(frequency);
        values.dampingRate = 3.0F;
        cloth.SetValues(values);
        Run(cloth, 10.0);
        errors.push_back(std::fabs(-double(cloth.Positions()[10].y()) / exact - 1.0));
    }
    QVERIFY2(errors[0] < 0.10 && errors[1] < 0.01 && errors[2] < 0.002,
             qPrintable(QStringLiteral("%1 %2 %3").arg(errors[0]).arg(errors[1]).arg(errors[2])));
}

void TestClothMotion::elasticThreadStretchesByItsWeight_data()
{
    QTest::addColumn<float>("frequency");
    QTest::addColumn<double>("tolerance");
    QTest::newRow("240") << 240.0F << 0.8;
    QTest::newRow("960") << 960.0F << 0.05;
    QTest::newRow("3840") << 3840.0F << 0.01; // a substep's fall is ten times the last digit of a place
}

void TestClothMotion::elasticThreadStretchesByItsWeight()
{
    QFETCH(float, frequency);
    QFETCH(double, tolerance);
    // Of 100 cm, with a modulus that its own weight stretches by 5 %: the mean of the strain from top to bottom.
    const int links = 20;
    Vectors places;
    for (int i = 0; i <= links; ++i) {
        places.emplace_back(0.0F, -100.0F * float(i) / float(links), 0.0F, 0.0F);
    }
    ClothShape shape = Thread(places);
    shape.freedom[0] = 0.0F;
    Cloth cloth(shape);
    Host::SolverValues values = Ideal(frequency);
    values.stretchModulus = float(0.5 * gravity * 100.0 / 0.05);
    values.dampingRate = 3.0F;
    cloth.SetValues(values);
    Run(cloth, 10.0);
    const double stretch = -double(cloth.Positions().back().y()) / 100.0 - 1.0;
    QVERIFY2(std::fabs(stretch / 0.05 - 1.0) < tolerance, qPrintable(QString::number(stretch)));
}

void TestClothMotion::tetherLimitIsKept_data()
{
    QTest::addColumn<float>("limit");
    for (const double limit : {0.8, 1.0, 1.02, 1.35, 1.8}) {
        QTest::newRow(qPrintable(QString::number(limit))) << float(limit);
    }
}

void TestClothMotion::tetherLimitIsKept()
{
    QFETCH(float, limit);
    Cloth cloth(HangingSheet(20, 40, 2.0F));
    Host::SolverValues values = Ideal(120.0F);
    values.stretchModulus = 1e3F; // gives way to everything
    values.tetherLimit = limit;
    values.tetherRate = std::numeric_limits<float>::infinity();
    cloth.SetValues(values);
    ClothFrame frame = Falling();
    frame.acceleration.z() = 700.0F;
    float most = 0.0F;
    for (int i = 0; i < 150; ++i) {
        Run(cloth, 1.0 / 60.0, frame);
        for (const Host::Tether& tether : cloth.TetherList()) {
            const float length =
                (cloth.Positions()[std::size_t(tether.vertex)] - cloth.Positions()[std::size_t(tether.anchor)]).norm();
            most = std::max(most, length / (tether.length * limit));
        }
    }
    QVERIFY2(most < 1.01F, qPrintable(QString::number(double(most))));
    QVERIFY(most > 0.99F); // it is what holds
}

void TestClothMotion::heldVerticesFollowExactly()
{
    Cloth cloth(HangingSheet(10, 10, 2.0F));
    cloth.SetValues(Ideal(250.0F));
    Vectors followed = cloth.Shape().rest;
    for (int i = 0; i < 200; ++i) {
        for (Vector& place : followed) {
            place.x() += std::sin(0.1F * float(i));
            place.y() += 0.3F * std::cos(0.07F * float(i));
        }
        cloth.Step(Falling(), followed, nullptr);
        for (std::size_t k = 0; k <= 10; ++k) {
            QVERIFY(cloth.Positions()[k] == followed[k]);
        }
    }
    QVERIFY(cloth.Positions().back() != followed.back());
}

void TestClothMotion::tiedVerticesStayWithinTheirDistance()
{
    ClothShape shape = HangingSheet(10, 10, 2.0F);
    for (std::size_t i = 11; i < shape.freedom.size(); ++i) {
        shape.freedom[i] = Host::AllowedDistance(int(i));
    }
    Cloth cloth(shape);
    cloth.SetValues(Ideal(240.0F));
    ClothFrame frame = Falling();
    frame.acceleration.z() = 2000.0F;
    float most = 0.0F;
    for (int i = 0; i < 120; ++i) {
        Run(cloth, 1.0 / 60.0, frame);
        for (std::size_t k = 11; k < shape.freedom.size(); ++k) {
            most = std::max(most, (cloth.Positions()[k] - shape.rest[k]).norm() / shape.freedom[k]);
        }
    }
    QVERIFY(most < 1.001F);
    QVERIFY(most > 0.9F);
}

void TestClothMotion::sameInputGivesTheSameMotion()
{
    const Host::ClothShape shape = HangingSheet(20, 20, 2.0F);
    const auto run = [&] {
        Cloth cloth(shape);
        Host::SolverValues values = Ideal(250.0F);
        values.bendModulus = 1e4F;
        values.dragRate = 2.0F;
        values.collidesWithItself = true;
        values.selfMargin = 0.5F;
        cloth.SetValues(values);
        ClothFrame frame = Falling();
        frame.airVelocity = {300.0F, 100.0F, 500.0F, 0.0F};
        Run(cloth, 3.0, frame);
        return cloth.Positions();
    };
    const Vectors one = run();
    const Vectors other = run();
    QCOMPARE(std::memcmp(one.data(), other.data(), one.size() * sizeof(Vector)), 0);
}

void TestClothMotion::strangeFrequencyEndsFramesOnTime()
{
    // A uniform motion is where it has to be after each frame, whatever the number of substeps in it.
    Cloth cloth(Sheet(1, 1, 5.0F));
    cloth.SetValues(Ideal(157.0F));
    for (int frame = 1; frame <= 120; ++frame) {
        Run(cloth, 1.0 / 60.0);
        const double exact = -0.5 * gravity * frame * frame / 3600.0;
        QVERIFY(std::fabs(double(cloth.Positions()[0].y()) - exact) < 0.05);
    }
}

void TestClothMotion::acceleratedFrameIsAsTheMovingObject()
{
    // Without gravity, a free thing stays behind by what the object gains; with a scale of 0 it goes along.
    for (const float scale : {0.0F, 0.5F, 1.0F}) {
        Cloth cloth(Sheet(1, 1, 5.0F));
        Host::SolverValues values = Ideal(240.0F);
        values.linearInertia = scale;
        cloth.SetValues(values);
        ClothFrame frame;
        frame.linearAcceleration = {100.0F, 0.0F, 0.0F, 0.0F};
        Run(cloth, 1.0, frame);
        QVERIFY(std::fabs(cloth.Positions()[0].x() + 50.0F * scale) < 0.05F);
    }
}

void TestClothMotion::spinningFrameKeepsFreeThingsStraight()
{
    // What rests in the scene goes round in the other direction as seen from an object that turns.
    ClothShape shape = Thread({{30.0F, 0.0F, 0.0F, 0.0F}, {30.1F, 0.0F, 0.0F, 0.0F}});
    Cloth cloth(shape);
    Host::SolverValues values = Ideal(960.0F);
    values.stretchModulus = 0.0F;
    cloth.SetValues(values);
    const float spin = 2.0F;
    // It rests in the scene from the start: as seen from the object it moves.
    ClothFrame starting;
    starting.angularVelocity = {0.0F, spin, 0.0F, 0.0F};
    cloth.SetVelocities({{0.0F, 0.0F, 30.0F * spin, 0.0F}, {0.0F, 0.0F, 30.1F * spin, 0.0F}});
    Run(cloth, 1.0, starting);
    const Vector exact(30.0F * std::cos(spin), 0.0F, 30.0F * std::sin(spin), 0.0F);
    const float error = (cloth.Positions()[0] - exact).norm();
    QVERIFY2(error < 0.3F, qPrintable(QString::number(double(error))));
}

void TestClothMotion::runawayIsNoticed()
{
    Cloth cloth(HangingSheet(4, 4, 2.0F));
    cloth.SetValues(Ideal(240.0F));
    Run(cloth, 0.5);
    QVERIFY(cloth.IsSound());
    ClothFrame frame;
    frame.acceleration = {0.0F, std::numeric_limits<float>::quiet_NaN(), 0.0F, 0.0F};
    Run(cloth, 1.0 / 60.0, frame);
    QVERIFY(!cloth.IsSound());
    cloth.Reset(cloth.Shape().rest);
    Run(cloth, 0.5);
    QVERIFY(cloth.IsSound());
    frame.acceleration = {0.0F, -1e9F, 0.0F, 0.0F};
    Cloth loose(Sheet(2, 2, 2.0F));
    loose.SetValues(Ideal(240.0F));
    Run(loose, 1.0, frame);
    QVERIFY(!loose.IsSound());
}

SOFTCLOTH_TEST_WITH(TestClothMotion, QCoreApplication)

#include "tst_cloth_motion.moc"
