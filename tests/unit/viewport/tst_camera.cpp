#include "host/viewport/Camera.h"
#include "tests/support/TestCase.h"

#include <QtMath>

#include <cmath>

Q_DECLARE_METATYPE(Host::Camera::View)

/// The arithmetic of the view's camera.
class TestCamera : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void targetIsInTheMiddle();
    void viewsLookFromTheirSides_data();
    void viewsLookFromTheirSides();
    void orbitTurnsAboutTheTarget();
    void orbitStopsAtThePoles();
    void draggingToTheRightBringsTheLeftSideForward();
    void panMovesTheTargetWithThePointer();
    void zoomKeepsWhatIsUnderThePointer_data();
    void zoomKeepsWhatIsUnderThePointer();
    void zoomThereAndBackIsNoZoom();
    void zoomEndsSomewhere();
    void framedIsAllSeenAndLarge_data();
    void framedIsAllSeenAndLarge();
    void framingNothingChangesNothing();
    void framingAPointComesNear();
    void rayGoesThroughWhatIsSeenThere_data();
    void rayGoesThroughWhatIsSeenThere();
    void behindTheEyeIsNotSeen();
    void nothingOfTheSceneIsCutOff();
    void smallestViewsWork();

private:
    /// Compares two places that may differ by rounding at the scale of \p size.
    static void CompareNear(const QVector3D& actual, const QVector3D& expected, float size = 100.0F)
    {
        QVERIFY2((actual - expected).length() < size * 1e-4F,
                 qPrintable(QStringLiteral("(%1, %2, %3) is not (%4, %5, %6)")
                                .arg(double(actual.x()))
                                .arg(double(actual.y()))
                                .arg(double(actual.z()))
                                .arg(double(expected.x()))
                                .arg(double(expected.y()))
                                .arg(double(expected.z()))));
    }
    static void CompareNear(const QPointF& actual, const QPointF& expected)
    {
        const QPointF way = actual - expected;
        QVERIFY2(std::hypot(way.x(), way.y()) < 0.1, qPrintable(QStringLiteral("%1, %2 is not %3, %4")
                                                                    .arg(actual.x())
                                                                    .arg(actual.y())
                                                                    .arg(expected.x())
                                                                    .arg(expected.y())));
    }
    static Host::Camera MakeCamera(const QSizeF& size = {800.0, 600.0})
    {
        Host::Camera camera;
        camera.SetSize(size);
        camera.Frame(Character());
        return camera;
    }
    static Host::Bounds Character()
    {
        Host::Bounds bounds;
        bounds.Add({-40.0F, 0.0F, -20.0F});
        bounds.Add({40.0F, 170.0F, 25.0F});
        return bounds;
    }
};

void TestCamera::targetIsInTheMiddle()
{
    const Host::Camera camera = MakeCamera();
    CompareNear(camera.Target(), {0.0F, 85.0F, 2.5F});
    CompareNear(*camera.Project(camera.Target()), {400.0, 300.0});
}

void TestCamera::viewsLookFromTheirSides_data()
{
    QTest::addColumn<Host::Camera::View>("view");
    QTest::addColumn<QVector3D>("direction");
    QTest::addColumn<QVector3D>("upwards");
    QTest::newRow("front") << Host::Camera::View::Front << QVector3D(0, 0, 1) << QVector3D(0, 1, 0);
    QTest::newRow("side") << Host::Camera::View::Side << QVector3D(1, 0, 0) << QVector3D(0, 1, 0);
    QTest::newRow("top") << Host::Camera::View::Top << QVector3D(0, 1, 0) << QVector3D(0, 0, -1);
}

void TestCamera::viewsLookFromTheirSides()
{
    QFETCH(const Host::Camera::View, view);
    QFETCH(const QVector3D, direction);
    QFETCH(const QVector3D, upwards);
    Host::Camera camera = MakeCamera();
    const float distance = camera.Distance();
    camera.Look(view);
    QCOMPARE(camera.Distance(), distance);
    CompareNear(camera.Eye(), camera.Target() + direction * distance);
    const QPointF above = *camera.Project(camera.Target() + upwards * 10.0F);
    QVERIFY(qAbs(above.x() - 400.0) < 0.1 && above.y() < 290.0);
}

void TestCamera::orbitTurnsAboutTheTarget()
{
    Host::Camera camera = MakeCamera();
    const QVector3D target = camera.Target();
    const QVector3D eye = camera.Eye();
    const float distance = camera.Distance();
    camera.Orbit({120.0, -35.0});
    CompareNear(camera.Target(), target);
    QVERIFY((camera.Eye() - eye).length() > distance / 10.0F);
    QVERIFY(qAbs((camera.Eye() - camera.Target()).length() - distance) < 0.1F);
}

void TestCamera::orbitStopsAtThePoles()
{
    Host::Camera camera = MakeCamera();
    camera.Orbit({0.0, 10000.0});
    CompareNear(camera.Eye(), camera.Target() + QVector3D(0.0F, camera.Distance(), 0.0F));
    camera.Orbit({0.0, -20000.0});
    CompareNear(camera.Eye(), camera.Target() - QVector3D(0.0F, camera.Distance(), 0.0F));
}

void TestCamera::draggingToTheRightBringsTheLeftSideForward()
{
    Host::Camera camera = MakeCamera();
    camera.Look(Host::Camera::View::Front);
    camera.Orbit({50.0, 0.0});
    QVERIFY(camera.Eye().x() < -1.0F);
    camera.Look(Host::Camera::View::Front);
    camera.Orbit({0.0, 50.0});
    QVERIFY(camera.Eye().y() > camera.Target().y() + 1.0F);
}

void TestCamera::panMovesTheTargetWithThePointer()
{
    Host::Camera camera = MakeCamera();
    const QVector3D before = camera.Target();
    camera.Pan({37.0, -12.0});
    CompareNear(*camera.Project(before), {437.0, 288.0});
}

void TestCamera::zoomKeepsWhatIsUnderThePointer_data()
{
    QTest::addColumn<double>("steps");
    QTest::addColumn<QPointF>("pixel");
    QTest::newRow("in, middle") << 1.0 << QPointF(400, 300);
    QTest::newRow("in, corner") << 3.0 << QPointF(10, 20);
    QTest::newRow("out, side") << -4.0 << QPointF(790, 300);
    QTest::newRow("part of a step") << 0.25 << QPointF(123, 456);
}

void TestCamera::zoomKeepsWhatIsUnderThePointer()
{
    QFETCH(const double, steps);
    QFETCH(const QPointF, pixel);
    Host::Camera camera = MakeCamera();
    const Host::Ray ray = camera.RayThrough(pixel);
    const QVector3D forward = (camera.Target() - camera.Eye()).normalized();
    const float way = camera.Distance() / QVector3D::dotProduct(ray.direction, forward);
    const QVector3D held = ray.origin + ray.direction * way;
    const float distance = camera.Distance();
    camera.Zoom(steps, pixel);
    QVERIFY(steps > 0.0 ? camera.Distance() < distance : camera.Distance() > distance);
    CompareNear(*camera.Project(held), pixel);
}

void TestCamera::zoomThereAndBackIsNoZoom()
{
    Host::Camera camera = MakeCamera();
    const QVector3D eye = camera.Eye();
    camera.Zoom(5.0, {100.0, 100.0});
    camera.Zoom(-5.0, {100.0, 100.0});
    CompareNear(camera.Eye(), eye);
}

void TestCamera::zoomEndsSomewhere()
{
    Host::Camera camera = MakeCamera();
    for (const double steps : {1e4, -1e5, 1e5}) {
        camera.Zoom(steps, {400.0, 300.0});
        QVERIFY(camera.Distance() > 0.0F && std::isfinite(camera.Distance()));
        QVERIFY(std::isfinite(camera.Target().length()));
    }
}

void TestCamera::framedIsAllSeenAndLarge_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<QVector3D>("half");
    QTest::newRow("character") << QSizeF(800, 600) << QVector3D(40, 85, 22);
    QTest::newRow("character in a high view") << QSizeF(300, 900) << QVector3D(40, 85, 22);
    QTest::newRow("character in a low view") << QSizeF(1200, 200) << QVector3D(40, 85, 22);
    QTest::newRow("flat") << QSizeF(800, 600) << QVector3D(100, 0, 100);
    QTest::newRow("coin") << QSizeF(800, 600) << QVector3D(0.01F, 0.01F, 0.001F);
    QTest::newRow("town") << QSizeF(800, 600) << QVector3D(1e6F, 1e4F, 1e6F);
}

void TestCamera::framedIsAllSeenAndLarge()
{
    QFETCH(const QSizeF, size);
    QFETCH(const QVector3D, half);
    Host::Bounds bounds;
    bounds.Add(QVector3D(5, 6, 7) - half);
    bounds.Add(QVector3D(5, 6, 7) + half);
    Host::Camera camera;
    camera.SetSize(size);
    for (int turn = 0; turn < 8; ++turn) {
        camera.Orbit({110.0, turn % 2 == 0 ? 40.0 : -70.0});
        camera.SetReach(bounds);
        camera.Frame(bounds);
        double used = 0.0;
        for (const QVector3D& corner : bounds.Corners()) {
            const std::optional<QPointF> pixel = camera.Project(corner);
            QVERIFY(pixel);
            used = std::max({used, qAbs(pixel->x() / size.width() - 0.5), qAbs(pixel->y() / size.height() - 0.5)});
        }
        QVERIFY2(used > 0.4 && used < 0.5, qPrintable(QString::number(used)));
    }
}

void TestCamera::framingNothingChangesNothing()
{
    Host::Camera camera = MakeCamera();
    const QMatrix4x4 before = camera.ViewMatrix();
    camera.Frame({});
    QCOMPARE(camera.ViewMatrix(), before);
}

void TestCamera::framingAPointComesNear()
{
    Host::Bounds bounds;
    bounds.Add({3.0F, 4.0F, 5.0F});
    Host::Camera camera;
    camera.Frame(bounds);
    CompareNear(camera.Target(), {3.0F, 4.0F, 5.0F});
    QVERIFY(camera.Distance() > 0.0F && camera.Distance() < 10.0F);
}

void TestCamera::rayGoesThroughWhatIsSeenThere_data()
{
    QTest::addColumn<QPointF>("pixel");
    QTest::newRow("middle") << QPointF(400, 300);
    QTest::newRow("upper left") << QPointF(0, 0);
    QTest::newRow("lower right") << QPointF(799, 599);
}

void TestCamera::rayGoesThroughWhatIsSeenThere()
{
    QFETCH(const QPointF, pixel);
    const Host::Camera camera = MakeCamera();
    const Host::Ray ray = camera.RayThrough(pixel);
    CompareNear(*camera.Project(ray.origin + ray.direction * 50.0F), pixel);
    CompareNear(*camera.Project(ray.origin + ray.direction * 500.0F), pixel);
    QVERIFY(qAbs(ray.direction.length() - 1.0F) < 1e-5F);
}

void TestCamera::behindTheEyeIsNotSeen()
{
    const Host::Camera camera = MakeCamera();
    QVERIFY(!camera.Project(camera.Eye() * 2.0F - camera.Target()));
}

void TestCamera::nothingOfTheSceneIsCutOff()
{
    Host::Camera camera = MakeCamera();
    Host::Bounds wide;
    wide.Add({-1e5F, 0.0F, -1e5F});
    wide.Add({1e5F, 100.0F, 1e5F});
    camera.SetReach(wide);
    for (const QVector3D& corner : wide.Corners()) {
        const QVector4D clip = camera.ProjectionMatrix() * (camera.ViewMatrix() * QVector4D(corner, 1.0F));
        QVERIFY(clip.w() < 0.0F || clip.z() <= clip.w());
    }
}

void TestCamera::smallestViewsWork()
{
    for (const QSizeF& size : {QSizeF(1, 1), QSizeF(0, 0), QSizeF(1, 2000)}) {
        Host::Camera camera = MakeCamera(size);
        const std::optional<QPointF> middle = camera.Project(camera.Target());
        QVERIFY(middle && std::isfinite(middle->x()) && std::isfinite(middle->y()));
    }
}

SOFTCLOTH_TEST_WITH(TestCamera, QCoreApplication)
#include "tst_camera.moc"
