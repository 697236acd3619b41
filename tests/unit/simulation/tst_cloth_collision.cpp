#include "host/simulation/BodyCollider.h"
#include "host/simulation/Cloth.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/ClothSamples.h"

#include <algorithm>
#include <cmath>

using namespace ClothSamples;
using Host::BodyCollider;
using Host::Cloth;
using Host::ClothFrame;
using Host::ClothShape;
using Host::Vector;
using Host::Vectors;

/// Bodies and the cloth's own surfaces as obstacles.
class TestClothCollision : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nearestPointsHaveTheirSide();
    void overlappingPiecesAreSolidsOfTheirOwn();
    void sheetsAreNoBody();
    void clothOnABallKeepsTheMargin_data();
    void clothOnABallKeepsTheMargin();
    void fastClothDoesNotPassThrough_data();
    void fastClothDoesNotPassThrough();
    void movingBodyPushesTheCloth();
    void withoutCollisionClothFallsThrough();
    void frictionHoldsOnASlope_data();
    void frictionHoldsOnASlope();
    void layersKeepTheirDistance();
};

namespace {

Host::SolverValues Colliding(float margin)
{
    Host::SolverValues values = Ideal(240.0F);
    values.stretchModulus = 1e7F;
    values.bendModulus = 1e3F;
    values.dampingRate = 0.5F;
    values.collidesWithBody = true;
    values.bodyMargin = margin;
    return values;
}

/// The smallest distance of a vertex from the middle.
float NearestToMiddle(const Cloth& cloth)
{
    float nearest = 1e9F;
    for (const Vector& place : cloth.Positions()) {
        nearest = std::min(nearest, place.norm());
    }
    return nearest;
}

ClothSamples::Body Box(float x, float y, float z)
{
    ClothSamples::Body box;
    for (int i = 0; i < 8; ++i) {
        box.places.emplace_back((i & 1) != 0 ? x : -x, (i & 2) != 0 ? y : -y, (i & 4) != 0 ? z : -z, 0.0F);
    }
    box.triangles = {{0, 2, 1}, {1, 2, 3}, {4, 5, 6}, {5, 7, 6}, {0, 1, 4}, {1, 5, 4},
                     {2, 6, 3}, {3, 6, 7}, {0, 4, 2}, {2, 4, 6}, {1, 3, 5}, {3, 7, 5}};
    return box;
}

} // namespace

void TestClothCollision::nearestPointsHaveTheirSide()
{
    const auto box = Box(1.0F, 2.0F, 3.0F);
    const BodyCollider body(box.places, box.triangles);
    const struct
    {
        Vector point;
        float distance;
        Vector normal;
    } rows[] = {
        {{2.0F, 0.0F, 0.0F, 0.0F}, 1.0F, {1.0F, 0.0F, 0.0F, 0.0F}},
        {{0.5F, 0.0F, 0.0F, 0.0F}, -0.5F, {1.0F, 0.0F, 0.0F, 0.0F}},
        {{0.0F, 2.5F, 0.3F, 0.0F}, 0.5F, {0.0F, 1.0F, 0.0F, 0.0F}},
        {{0.0F, -1.75F, 0.3F, 0.0F}, -0.25F, {0.0F, -1.0F, 0.0F, 0.0F}},
        // Beyond an edge and beyond a corner.
        {{4.0F, 6.0F, 0.5F, 0.0F}, 5.0F, {0.6F, 0.8F, 0.0F, 0.0F}},
        {{2.0F, 4.0F, 5.0F, 0.0F}, 3.0F, {1.0F / 3.0F, 2.0F / 3.0F, 2.0F / 3.0F, 0.0F}},
    };
    for (const auto& row : rows) {
        std::array<BodyCollider::Nearest, BodyCollider::mostPieces> found;
        QCOMPARE(body.FindNearest(row.point, 10.0F, 0.0F, found), std::size_t{1});
        QVERIFY(std::fabs(found[0].distance - row.distance) < 1e-5F);
        QVERIFY((found[0].normal - row.normal).norm() < 1e-5F);
    }
    std::array<BodyCollider::Nearest, BodyCollider::mostPieces> found;
    QCOMPARE(body.FindNearest({3.0F, 0.0F, 0.0F, 0.0F}, 1.5F, 0.0F, found), std::size_t{0});
}

void TestClothCollision::overlappingPiecesAreSolidsOfTheirOwn()
{
    // A point inside one box and outside the other, nearer to the latter's surface.
    auto boxes = Box(1.0F, 1.0F, 1.0F);
    const auto second = Box(1.0F, 1.0F, 1.0F);
    for (const Vector& place : second.places) {
        boxes.places.push_back(place + Vector(1.5F, 0.0F, 0.0F, 0.0F));
    }
    for (const auto& triangle : second.triangles) {
        boxes.triangles.push_back({triangle[0] + 8, triangle[1] + 8, triangle[2] + 8});
    }
    const BodyCollider body(boxes.places, boxes.triangles);
    std::array<BodyCollider::Nearest, BodyCollider::mostPieces> found;
    QCOMPARE(body.FindNearest({0.4F, 0.0F, 0.0F, 0.0F}, 5.0F, 1.0F, found), std::size_t{2});
    QVERIFY(std::fabs(found[0].distance - 0.1F) < 1e-5F);
    QVERIFY(std::fabs(found[1].distance + 0.6F) < 1e-5F);
}

void TestClothCollision::sheetsAreNoBody()
{
    const ClothShape sheet = Sheet(4, 4, 1.0F);
    QVERIFY(BodyCollider(sheet.rest, sheet.triangles).IsEmpty());
    const auto ball = Ball(10.0F);
    QVERIFY(!BodyCollider(ball.places, ball.triangles).IsEmpty());
    // A ball without its cap is still a body, half a ball is not.
    auto open = ball.triangles;
    open.erase(std::remove_if(open.begin(), open.end(),
                              [&](const auto& t) { return ball.places[std::size_t(t[0])].y() > 9.0F; }),
               open.end());
    QVERIFY(open.size() < ball.triangles.size());
    QVERIFY(!BodyCollider(ball.places, open).IsEmpty());
    open.erase(std::remove_if(open.begin(), open.end(),
                              [&](const auto& t) { return ball.places[std::size_t(t[0])].y() > 0.0F; }),
               open.end());
    QVERIFY(BodyCollider(ball.places, open).IsEmpty());
}

void TestClothCollision::clothOnABallKeepsTheMargin_data()
{
    QTest::addColumn<float>("margin");
    for (const double margin : {0.3, 0.8, 2.0}) {
        QTest::newRow(qPrintable(QString::number(margin))) << float(margin);
    }
}

void TestClothCollision::clothOnABallKeepsTheMargin()
{
    QFETCH(float, margin);
    const auto ball = Ball(20.0F, 96, 48);
    BodyCollider body(ball.places, ball.triangles);
    Cloth cloth(LyingSheet(28, 1.5F, 24.0F));
    Host::SolverValues values = Colliding(margin);
    values.friction = 1.0F;
    cloth.SetValues(values);
    for (int i = 0; i < 120; ++i) {
        Run(cloth, 1.0 / 60.0, Falling(), &body);
        // The ball's facets lie a little inside of its radius.
        const float nearest = NearestToMiddle(cloth);
        QVERIFY2(nearest > 20.0F + margin - 0.06F, qPrintable(QString::number(double(nearest))));
    }
    QVERIFY(NearestToMiddle(cloth) < 20.0F + margin + 0.1F); // it lies on it
}

void TestClothCollision::fastClothDoesNotPassThrough_data()
{
    QTest::addColumn<float>("speed");
    QTest::newRow("5 m/s") << 500.0F;
    QTest::newRow("20 m/s") << 2000.0F;
    QTest::newRow("60 m/s: more than the body is thick in each substep") << 6000.0F;
}

void TestClothCollision::fastClothDoesNotPassThrough()
{
    QFETCH(float, speed);
    const auto plate = Box(100.0F, 2.0F, 100.0F);
    BodyCollider body(plate.places, plate.triangles);
    Cloth cloth(LyingSheet(10, 2.0F, 50.0F));
    cloth.SetValues(Colliding(0.5F));
    cloth.SetVelocities(Vectors(cloth.Positions().size(), Vector(0.0F, -speed, 0.0F, 0.0F)));
    Run(cloth, 1.0, Falling(), &body);
    for (const Vector& place : cloth.Positions()) {
        QVERIFY(place.y() > 2.45F);
        QVERIFY(place.y() < 60.0F); // and it is not thrown off
    }
}

void TestClothCollision::movingBodyPushesTheCloth()
{
    const auto ball = Ball(10.0F);
    BodyCollider body(ball.places, ball.triangles);
    ClothShape shape = HangingSheet(30, 30, 1.5F);
    for (Vector& place : shape.rest) {
        place += Vector(-22.0F, 22.0F, 15.0F, 0.0F);
    }
    Cloth cloth(shape);
    cloth.SetValues(Colliding(0.5F));
    Vectors places = ball.places;
    for (int frame = 1; frame <= 60; ++frame) {
        const Vector middle(0.0F, 0.0F, 25.0F * std::sin(0.05F * float(frame)), 0.0F);
        for (std::size_t i = 0; i < places.size(); ++i) {
            places[i] = ball.places[i] + middle;
        }
        body.SetFrame(places, 1.0 / 60.0);
        Run(cloth, 1.0 / 60.0, Falling(), &body);
        for (const Vector& place : cloth.Positions()) {
            const float distance = (place - middle).norm();
            QVERIFY2(distance > 10.25F, qPrintable(QString::number(double(distance))));
        }
    }
}

void TestClothCollision::withoutCollisionClothFallsThrough()
{
    const auto ball = Ball(20.0F);
    BodyCollider body(ball.places, ball.triangles);
    Cloth cloth(LyingSheet(10, 2.0F, 24.0F));
    Host::SolverValues values = Colliding(0.5F);
    values.collidesWithBody = false;
    values.dampingRate = 0.0F;
    cloth.SetValues(values);
    Run(cloth, 1.0, Falling(), &body);
    QVERIFY(cloth.Positions()[0].y() < -400.0F);
}

void TestClothCollision::frictionHoldsOnASlope_data()
{
    QTest::addColumn<float>("friction");
    QTest::addColumn<double>("slope");
    QTest::newRow("rough, flat enough") << 0.6F << 0.5;
    QTest::newRow("rough, too steep") << 0.6F << 0.7;
    QTest::newRow("smooth, flat") << 0.1F << 0.05;
    QTest::newRow("smooth, steeper") << 0.1F << 0.3;
    QTest::newRow("none") << 0.0F << 0.1;
}

void TestClothCollision::frictionHoldsOnASlope()
{
    QFETCH(float, friction);
    QFETCH(double, slope);
    const auto plate = Box(2000.0F, 10.0F, 2000.0F);
    BodyCollider body(plate.places, plate.triangles);
    Cloth cloth(LyingSheet(4, 2.0F, 10.5F));
    Host::SolverValues values = Colliding(0.5F);
    values.dampingRate = 0.0F;
    values.friction = friction;
    cloth.SetValues(values);
    const double angle = std::atan(slope);
    ClothFrame frame;
    frame.acceleration = {float(981.0 * std::sin(angle)), float(-981.0 * std::cos(angle)), 0.0F, 0.0F};
    Run(cloth, 1.0, frame, &body);
    const double way = double(cloth.Positions()[0].x() - cloth.Shape().rest[0].x());
    const double exact = std::max(0.0, 0.5 * 981.0 * (std::sin(angle) - double(friction) * std::cos(angle)));
    QVERIFY2(std::fabs(way - exact) < 0.05 * exact + 0.2,
             qPrintable(QStringLiteral("%1 instead of %2").arg(way).arg(exact)));
}

void TestClothCollision::layersKeepTheirDistance()
{
    // Two sheets in one cloth: the upper one falls onto the held lower one.
    ClothShape shape = LyingSheet(12, 2.0F, 0.0F);
    const ClothShape upper = LyingSheet(8, 2.0F, 4.0F);
    const auto base = int(shape.rest.size());
    std::fill(shape.freedom.begin(), shape.freedom.end(), 0.0F);
    shape.rest.insert(shape.rest.end(), upper.rest.begin(), upper.rest.end());
    shape.freedom.insert(shape.freedom.end(), upper.freedom.begin(), upper.freedom.end());
    for (const auto& triangle : upper.triangles) {
        shape.triangles.push_back({triangle[0] + base, triangle[1] + base, triangle[2] + base});
    }
    for (const bool collides : {true, false}) {
        Cloth cloth(shape);
        Host::SolverValues values = Colliding(0.0F);
        values.collidesWithItself = collides;
        values.selfMargin = 0.8F;
        cloth.SetValues(values);
        Run(cloth, 1.0);
        float lowest = 1e9F;
        for (std::size_t i = std::size_t(base); i < shape.rest.size(); ++i) {
            lowest = std::min(lowest, cloth.Positions()[i].y());
        }
        QCOMPARE(lowest > 0.75F, collides);
    }
}

SOFTCLOTH_TEST_WITH(TestClothCollision, QCoreApplication)

#include "tst_cloth_collision.moc"
