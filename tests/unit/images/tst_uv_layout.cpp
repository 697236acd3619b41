#include "host/images/UvLayout.h"
#include "host/scene/Entities.h"

#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

#include <QRandomGenerator>

#include <ctime>
#include <limits>

using Host::DrawUvLayout;
using Host::Mesh;

class TestUvLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void edgesAreDrawnOverTheTexture();
    void verticalAxisPointsUp();
    void repeatedTrianglesAreDrawnInTheUnitSquare_data();
    void repeatedTrianglesAreDrawnInTheUnitSquare();
    void longEdgeIsDrawnInTheTilesThatItCrosses();
    void scatteredUvsAreDrawnQuickly_data();
    void scatteredUvsAreDrawnQuickly();
    void impossibleUvsAreLeftOut_data();
    void impossibleUvsAreLeftOut();
    void onlyTheGivenSlotsAreDrawn();
    void sizeFitsImageEditors_data();
    void sizeFitsImageEditors();
};

namespace {

constexpr int side = 1024;

Mesh Triangle(const QVector2D& a, const QVector2D& b, const QVector2D& c)
{
    Mesh mesh;
    mesh.positions.resize(3);
    mesh.uvs = {a, b, c};
    mesh.materialSlots = {{1, {0, 1, 2}, {}}};
    return mesh;
}

QImage Layout(const Mesh& mesh)
{
    return DrawUvLayout(SampleImages::Filled({side, side}, Qt::gray), {{&mesh, &mesh.materialSlots[0]}});
}

/// Whether a line passes through \p u, \p v.
bool HasLine(const QImage& layout, double u, double v)
{
    const QPoint at(int(u * side), int((1.0 - v) * side));
    for (int dy = -2; dy <= 2; ++dy) {
        for (int dx = -2; dx <= 2; ++dx) {
            const QPoint near = at + QPoint(dx, dy);
            if (layout.rect().contains(near) && layout.pixelColor(near) != QColor(Qt::gray)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

void TestUvLayout::edgesAreDrawnOverTheTexture()
{
    const QImage layout = Layout(Triangle({0.1F, 0.1F}, {0.9F, 0.1F}, {0.1F, 0.9F}));
    QVERIFY(HasLine(layout, 0.5, 0.1));
    QVERIFY(HasLine(layout, 0.1, 0.5));
    QVERIFY(HasLine(layout, 0.5, 0.5));
    QVERIFY(!HasLine(layout, 0.3, 0.3)); // inside
    QVERIFY(!HasLine(layout, 0.7, 0.7)); // outside
}

void TestUvLayout::verticalAxisPointsUp()
{
    const QImage layout = Layout(Triangle({0.2F, 0.2F}, {0.8F, 0.2F}, {0.5F, 0.3F}));
    QVERIFY(HasLine(layout, 0.5, 0.2));
    QVERIFY(!HasLine(layout, 0.5, 0.8));
    QVERIFY(layout.pixelColor(side / 2, int(0.8 * side)) != QColor(Qt::gray));
}

void TestUvLayout::repeatedTrianglesAreDrawnInTheUnitSquare_data()
{
    QTest::addColumn<QVector2D>("shift");
    QTest::newRow("in the square") << QVector2D(0.0F, 0.0F);
    QTest::newRow("one to the right") << QVector2D(1.0F, 0.0F);
    QTest::newRow("to the lower left") << QVector2D(-2.0F, -3.0F);
    QTest::newRow("far") << QVector2D(60.0F, 60.0F);
}

void TestUvLayout::repeatedTrianglesAreDrawnInTheUnitSquare()
{
    QFETCH(QVector2D, shift);
    const QImage layout = Layout(Triangle(QVector2D(0.125F, 0.125F) + shift, QVector2D(0.875F, 0.125F) + shift,
                                          QVector2D(0.125F, 0.875F) + shift));
    QVERIFY(HasLine(layout, 0.5, 0.125));
    QVERIFY(HasLine(layout, 0.5, 0.5));
    QVERIFY(!HasLine(layout, 0.3, 0.3));
    QVERIFY(!HasLine(layout, 0.7, 0.7));

    const QImage across = Layout(
        Triangle(QVector2D(0.75F, 0.25F) + shift, QVector2D(1.25F, 0.25F) + shift, QVector2D(1.0F, 0.75F) + shift));
    QVERIFY(HasLine(across, 0.9, 0.25));
    QVERIFY(HasLine(across, 0.1, 0.25));
    QVERIFY(!HasLine(across, 0.5, 0.25));
}

void TestUvLayout::longEdgeIsDrawnInTheTilesThatItCrosses()
{
    // From (0.5, 0.5) a slope of a half through the tiles (0, 0), (1, 0), (1, 1) and (2, 1), but not (0, 1) nor (2, 0).
    const QImage layout = Layout(Triangle({0.5F, 0.5F}, {2.5F, 1.5F}, {0.5F, 0.5F}));
    QVERIFY(HasLine(layout, 0.9, 0.7));  // (0, 0)
    QVERIFY(HasLine(layout, 0.2, 0.85)); // (1, 0)
    QVERIFY(HasLine(layout, 0.7, 0.1));  // (1, 1)
    QVERIFY(HasLine(layout, 0.2, 0.35)); // (2, 1)
    QVERIFY(!HasLine(layout, 0.6, 0.8));
    QVERIFY(!HasLine(layout, 0.1, 0.65));
}

void TestUvLayout::scatteredUvsAreDrawnQuickly_data()
{
    QTest::addColumn<int>("triangles");
    QTest::newRow("few") << 500;
    QTest::newRow("many") << 3000;
}

void TestUvLayout::scatteredUvsAreDrawnQuickly()
{
    QFETCH(const int, triangles);
    QRandomGenerator random(1);
    Mesh mesh;
    mesh.materialSlots = {{1, {}, {}}};
    for (int i = 0; i < 3 * triangles; ++i) {
        mesh.uvs.emplace_back(float(random.bounded(128.0)) - 64.0F, float(random.bounded(128.0)) - 64.0F);
        mesh.materialSlots[0].indices.push_back(quint32(i));
    }
    mesh.positions.resize(mesh.uvs.size());
    const std::clock_t begin = std::clock(); // not disturbed by what else runs
    const QImage layout = Layout(mesh);
    const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    QVERIFY2(seconds < 10.0, qPrintable(QString::number(seconds))); // the processor time of one core
    QVERIFY(HasLine(layout, 0.5, 0.5));
}

void TestUvLayout::impossibleUvsAreLeftOut_data()
{
    QTest::addColumn<float>("value");
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
    QTest::newRow("minus infinite") << -std::numeric_limits<float>::infinity();
    QTest::newRow("very far") << 1e20F;
}

void TestUvLayout::impossibleUvsAreLeftOut()
{
    QFETCH(float, value);
    const QImage layout = Layout(Triangle({0.1F, 0.1F}, {0.9F, 0.1F}, {value, value}));
    QVERIFY(HasLine(layout, 0.5, 0.1));
    QVERIFY(!HasLine(layout, 0.5, 0.5));
    Mesh without = Triangle({}, {}, {});
    without.uvs.clear();
    QCOMPARE(Layout(without).pixelColor(3, 3), QColor(Qt::gray));
}

void TestUvLayout::onlyTheGivenSlotsAreDrawn()
{
    Mesh mesh = Triangle({0.1F, 0.1F}, {0.9F, 0.1F}, {0.1F, 0.9F});
    mesh.positions.resize(6);
    mesh.uvs.insert(mesh.uvs.end(), {{0.9F, 0.9F}, {0.9F, 0.2F}, {0.6F, 0.9F}});
    mesh.materialSlots.push_back({2, {3, 4, 5}, {}});
    QVERIFY(!HasLine(Layout(mesh), 0.9, 0.5));
    const QImage both = DrawUvLayout(SampleImages::Filled({side, side}, Qt::gray),
                                     {{&mesh, &mesh.materialSlots[0]}, {&mesh, &mesh.materialSlots[1]}});
    QVERIFY(HasLine(both, 0.9, 0.5));
    QVERIFY(HasLine(both, 0.5, 0.1));
}

void TestUvLayout::sizeFitsImageEditors_data()
{
    QTest::addColumn<QSize>("texture");
    QTest::addColumn<QSize>("layout");
    QTest::newRow("small") << QSize(64, 64) << QSize(1024, 1024);
    QTest::newRow("small and wide") << QSize(100, 50) << QSize(1024, 512);
    QTest::newRow("usual") << QSize(2048, 1500) << QSize(2048, 1500);
    QTest::newRow("large") << QSize(8192, 4096) << QSize(4096, 2048);
    QTest::newRow("one pixel") << QSize(1, 1) << QSize(1024, 1024);
}

void TestUvLayout::sizeFitsImageEditors()
{
    QFETCH(QSize, texture);
    QFETCH(QSize, layout);
    QCOMPARE(DrawUvLayout(SampleImages::Filled(texture, Qt::gray), {}).size(), layout);
}

SOFTCLOTH_TEST(TestUvLayout)

#include "tst_uv_layout.moc"
