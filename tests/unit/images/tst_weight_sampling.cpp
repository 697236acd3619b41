#include "host/images/WeightSampling.h"
#include "host/scene/Entities.h"

#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

#include <limits>

using Host::AdjustTable;
using Host::MaterialSlot;
using Host::Mesh;

class TestWeightSampling : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void uvLiesInPixel_data();
    void uvLiesInPixel();
    void grayOfPixelIsThatOfTheColour();
    void verticesUnderBlackDoNotMove_data();
    void verticesUnderBlackDoNotMove();
    void sharedVerticesCountOnce();
    void verticesOfOtherSlotsDoNotCount();
    void adjustmentDecides();
    void meshWithoutUvsLiesInTheLowerLeftCorner();
    void noImageMovesNothing();
    void gridIsCountedExactly_data();
    void gridIsCountedExactly();
};

namespace {

const Host::GrayTable unchanged = AdjustTable(0, 0);

/// A unit square of one quad.
Mesh Quad()
{
    Mesh mesh;
    mesh.positions.resize(4);
    mesh.uvs = {{0.0F, 0.0F}, {1.0F, 0.0F}, {1.0F, 1.0F}, {0.0F, 1.0F}};
    mesh.materialSlots = {{1, {0, 1, 2, 0, 2, 3}, {}}};
    return mesh;
}

} // namespace

void TestWeightSampling::uvLiesInPixel_data()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    QTest::addColumn<float>("u");
    QTest::addColumn<float>("v");
    QTest::addColumn<QPoint>("pixel");
    const struct
    {
        const char* name = nullptr;
        float u = 0.0F;
        float v = 0.0F;
        QPoint pixel;
    } rows[] = {
        {"lower left corner", 0.0F, 0.0F, {0, 4}},
        {"upper right corner", 1.0F, 1.0F, {9, 0}},
        {"upper left corner", 0.0F, 1.0F, {0, 0}},
        {"middle", 0.5F, 0.5F, {5, 2}},
        {"in a pixel", 0.37F, 0.29F, {3, 3}},
        {"just below the border of a pixel", 0.2999F, 0.1999F, {2, 4}},
        {"just above it", 0.3001F, 0.2001F, {3, 3}},
        {"one tile to the right", 1.37F, 0.29F, {3, 3}},
        {"one tile to the left", -0.63F, 0.29F, {3, 3}},
        {"one tile up", 0.37F, 1.29F, {3, 3}},
        {"many tiles down", 0.37F, -9.71F, {3, 3}},
        {"next corner", 2.0F, 3.0F, {0, 4}},
        {"minus a corner", -1.0F, -2.0F, {0, 4}},
        {"a hair below 0", -1e-9F, -1e-9F, {9, 0}},
        {"far out", 1e30F, -1e30F, {0, 4}},
        {"not a number", nan, nan, {0, 4}},
        {"infinite", infinite, -infinite, {0, 4}},
    };
    for (const auto& row : rows) {
        QTest::newRow(row.name) << row.u << row.v << row.pixel;
    }
}

void TestWeightSampling::uvLiesInPixel()
{
    QFETCH(float, u);
    QFETCH(float, v);
    QFETCH(QPoint, pixel);
    QCOMPARE(Host::PixelAt({u, v}, {10, 5}), pixel);
}

void TestWeightSampling::grayOfPixelIsThatOfTheColour()
{
    QImage gray(1, 1, QImage::Format_Grayscale8);
    gray.fill(77);
    QCOMPARE(int(Host::GrayOfPixel(gray, 0, 0)), 77);
    QCOMPARE(int(Host::GrayOfPixel(SampleImages::Filled({1, 1}, Qt::red), 0, 0)), qGray(255, 0, 0));
    QCOMPARE(int(Host::GrayOfPixel(SampleImages::Filled({1, 1}, Qt::white), 0, 0)), 255);
    QCOMPARE(int(Host::GrayOfPixel(SampleImages::Filled({1, 1}, QColor(255, 255, 255, 102)), 0, 0)), 102);
}

void TestWeightSampling::verticesUnderBlackDoNotMove_data()
{
    QTest::addColumn<QImage>("image");
    QTest::addColumn<int>("moving");
    QTest::newRow("white") << SampleImages::Filled({8, 8}, Qt::white) << 4;
    QTest::newRow("black") << SampleImages::Filled({8, 8}, Qt::black) << 0;
    QTest::newRow("left half black") << SampleImages::HalfBlack({8, 8}) << 2;
    QTest::newRow("nearly black") << SampleImages::Filled({8, 8}, QColor(1, 1, 1)) << 4;
    QTest::newRow("one pixel") << SampleImages::Filled({1, 1}, Qt::white) << 4;
    QTest::newRow("transparent") << SampleImages::Filled({8, 8}, QColor(255, 255, 255, 0)) << 0;
    QImage corner = SampleImages::Filled({8, 8}, Qt::black);
    corner.setPixelColor(7, 0, Qt::white);
    QTest::newRow("white in the upper right corner") << corner << 1;
    QImage inside = SampleImages::Filled({8, 8}, Qt::black);
    inside.setPixelColor(4, 4, Qt::white);
    QTest::newRow("white where no vertex is") << inside << 0;
}

void TestWeightSampling::verticesUnderBlackDoNotMove()
{
    QFETCH(QImage, image);
    QFETCH(int, moving);
    const Mesh quad = Quad();
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], image, unchanged), moving);
}

void TestWeightSampling::sharedVerticesCountOnce()
{
    Mesh quad = Quad();
    for (int i = 0; i < 5; ++i) {
        quad.materialSlots[0].indices.insert(quad.materialSlots[0].indices.end(), {0, 1, 2});
    }
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], SampleImages::Filled({2, 2}, Qt::white), unchanged),
             4);
}

void TestWeightSampling::verticesOfOtherSlotsDoNotCount()
{
    Mesh quad = Quad();
    quad.materialSlots = {{1, {0, 1, 2}, {}}, {2, {2, 3, 2}, {}}, {3, {}, {}}};
    const QImage white = SampleImages::Filled({2, 2}, Qt::white);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], white, unchanged), 3);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[1], white, unchanged), 2);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[2], white, unchanged), 0);
}

void TestWeightSampling::adjustmentDecides()
{
    const Mesh quad = Quad();
    const QImage half = SampleImages::HalfBlack({8, 8});
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], half, AdjustTable(1, 0)), 4);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], half, AdjustTable(-99, 0)), 2);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], half, AdjustTable(-100, 0)), 0);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], half, AdjustTable(0, -1)), 4);
}

void TestWeightSampling::meshWithoutUvsLiesInTheLowerLeftCorner()
{
    Mesh quad = Quad();
    quad.uvs.clear();
    QImage image = SampleImages::Filled({8, 8}, Qt::black);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], image, unchanged), 0);
    image.setPixelColor(0, 7, Qt::white);
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], image, unchanged), 4);
}

void TestWeightSampling::noImageMovesNothing()
{
    const Mesh quad = Quad();
    QCOMPARE(Host::CountMovingVertices(quad, quad.materialSlots[0], QImage(), unchanged), 0);
}

void TestWeightSampling::gridIsCountedExactly_data()
{
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("half");
    QTest::newRow("one square") << 2 << 2;
    QTest::newRow("20,164 vertices") << 142 << 71 * 142;
    QTest::newRow("a quarter of a million") << 500 << 250 * 500;
}

void TestWeightSampling::gridIsCountedExactly()
{
    QFETCH(int, side);
    QFETCH(int, half);
    Mesh mesh;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            mesh.positions.emplace_back(float(x), float(y), 0.0F);
            mesh.uvs.emplace_back(float(x) / float(side - 1), float(y) / float(side - 1));
        }
    }
    MaterialSlot slot;
    for (int y = 0; y + 1 < side; ++y) {
        for (int x = 0; x + 1 < side; ++x) {
            const auto corner = quint32(y * side + x);
            const auto below = corner + quint32(side);
            slot.indices.insert(slot.indices.end(), {corner, corner + 1, below, below, corner + 1, below + 1});
        }
    }
    QCOMPARE(Host::CountMovingVertices(mesh, slot, SampleImages::Filled({3, 3}, Qt::white), unchanged), side * side);
    QCOMPARE(Host::CountMovingVertices(mesh, slot, SampleImages::HalfBlack({64, 64}), unchanged), half);
}

SOFTCLOTH_TEST_WITH(TestWeightSampling, QCoreApplication)

#include "tst_weight_sampling.moc"
