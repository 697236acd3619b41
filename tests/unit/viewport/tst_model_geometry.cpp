#include "host/viewport/ModelGeometry.h"
#include "tests/support/TestCase.h"

#include <cmath>
#include <limits>

/// What of a mesh is drawn.
class TestModelGeometry : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void partsAreTheMaterials();
    void verticesBelongToOneMaterial();
    void trianglesWithoutAreaAreLeftOut_data();
    void trianglesWithoutAreaAreLeftOut();
    void trianglesThatAreNowhereAreLeftOutAndCounted_data();
    void trianglesThatAreNowhereAreLeftOutAndCounted();
    void smallTrianglesAreKept();
    void boundsAreThoseOfWhatIsDrawn();
    void missingUvsAreZero();
    void givenNormalsAreKeptAtLengthOne();
    void missingNormalsStandOnTheTriangles();
    void wrongNormalsAreReplacedOneByOne();
    void cornersInOnePlaceHaveOneNormal();
    void nothingIsNothing();

private:
    /// A square of two triangles in the plane z = 0, and beside it a triangle of another material that shares two of
    /// its vertices.
    static Host::Mesh MakeMesh();
};

Host::Mesh TestModelGeometry::MakeMesh()
{
    Host::Mesh mesh;
    mesh.positions = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {2, 0, 0}};
    mesh.uvs = {{0, 0}, {0.5F, 0}, {0.5F, 1}, {0, 1}, {1, 0}};
    mesh.materialSlots.resize(2);
    mesh.materialSlots[0].material = 11;
    mesh.materialSlots[0].indices = {0, 1, 2, 0, 2, 3};
    mesh.materialSlots[1].material = 22;
    mesh.materialSlots[1].indices = {1, 4, 2};
    return mesh;
}

void TestModelGeometry::partsAreTheMaterials()
{
    const Host::MeshGeometry geometry = Host::BuildGeometry(MakeMesh());
    QCOMPARE(geometry.parts.size(), std::size_t(2));
    QCOMPARE(geometry.parts[0].material, Host::Id(11));
    QCOMPARE(geometry.parts[0].slot, std::size_t(0));
    QCOMPARE(geometry.parts[0].firstIndex, std::size_t(0));
    QCOMPARE(geometry.parts[0].indexCount, std::size_t(6));
    QCOMPARE(geometry.parts[1].material, Host::Id(22));
    QCOMPARE(geometry.parts[1].firstIndex, std::size_t(6));
    QCOMPARE(geometry.parts[1].indexCount, std::size_t(3));
    QCOMPARE(geometry.lostTriangles, std::size_t(0));
}

void TestModelGeometry::verticesBelongToOneMaterial()
{
    const Host::Mesh mesh = MakeMesh();
    const Host::MeshGeometry geometry = Host::BuildGeometry(mesh);
    QCOMPARE(geometry.positions.size(), std::size_t(7));
    QCOMPARE(geometry.sources, (std::vector<quint32>{0, 1, 2, 3, 1, 4, 2}));
    for (const Host::GeometryPart& part : geometry.parts) {
        const std::vector<quint32>& indices = mesh.materialSlots[part.slot].indices;
        for (std::size_t i = 0; i < part.indexCount; ++i) {
            const quint32 vertex = geometry.indices[part.firstIndex + i];
            QVERIFY(vertex >= part.firstVertex && vertex < part.firstVertex + part.vertexCount);
            QCOMPARE(geometry.sources[vertex], indices[i]);
            QCOMPARE(geometry.positions[vertex], mesh.positions[indices[i]]);
            QCOMPARE(geometry.uvs[vertex], mesh.uvs[indices[i]]);
        }
    }
}

void TestModelGeometry::trianglesWithoutAreaAreLeftOut_data()
{
    QTest::addColumn<QVector<quint32>>("corners");
    QTest::newRow("one corner twice") << QVector<quint32>{0, 1, 1};
    QTest::newRow("one corner three times") << QVector<quint32>{2, 2, 2};
    QTest::newRow("on a line") << QVector<quint32>{0, 1, 4};
}

void TestModelGeometry::trianglesWithoutAreaAreLeftOut()
{
    QFETCH(const QVector<quint32>, corners);
    Host::Mesh mesh = MakeMesh();
    mesh.materialSlots[1].indices.assign(corners.cbegin(), corners.cend());
    const Host::MeshGeometry geometry = Host::BuildGeometry(mesh);
    QCOMPARE(geometry.indices.size(), std::size_t(6));
    QCOMPARE(geometry.parts.size(), std::size_t(1));
    QCOMPARE(geometry.lostTriangles, std::size_t(0));
}

void TestModelGeometry::trianglesThatAreNowhereAreLeftOutAndCounted_data()
{
    QTest::addColumn<QVector3D>("corner");
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    QTest::newRow("no number") << QVector3D(nan, 0, 0);
    QTest::newRow("no number, z") << QVector3D(0, 0, nan);
    QTest::newRow("infinite") << QVector3D(0, infinite, 0);
    QTest::newRow("infinite, below") << QVector3D(0, 0, -infinite);
    QTest::newRow("too far") << QVector3D(1e30F, 0, 0);
}

void TestModelGeometry::trianglesThatAreNowhereAreLeftOutAndCounted()
{
    QFETCH(const QVector3D, corner);
    Host::Mesh mesh = MakeMesh();
    mesh.positions[4] = corner;
    const Host::MeshGeometry geometry = Host::BuildGeometry(mesh);
    QCOMPARE(geometry.indices.size(), std::size_t(6));
    QCOMPARE(geometry.lostTriangles, std::size_t(1));
    QCOMPARE(geometry.bounds.high, QVector3D(1, 1, 0));
    mesh.positions[4] = {2, 0, 0};
    mesh.materialSlots[1].indices = {1, 2, 5};
    QCOMPARE(Host::BuildGeometry(mesh).lostTriangles, std::size_t(1));
}

void TestModelGeometry::smallTrianglesAreKept()
{
    Host::Mesh mesh = MakeMesh();
    for (QVector3D& position : mesh.positions) {
        position *= 1e-15F;
    }
    const Host::MeshGeometry geometry = Host::BuildGeometry(mesh);
    QCOMPARE(geometry.indices.size(), std::size_t(9));
    QCOMPARE(geometry.normals.front(), QVector3D(0, 0, 1));
}

void TestModelGeometry::boundsAreThoseOfWhatIsDrawn()
{
    Host::Mesh mesh = MakeMesh();
    mesh.positions.emplace_back(0.0F, 50.0F, 0.0F);
    const Host::Bounds bounds = Host::BuildGeometry(mesh).bounds;
    QCOMPARE(bounds.low, QVector3D(0, 0, 0));
    QCOMPARE(bounds.high, QVector3D(2, 1, 0));
    QVERIFY(!bounds.isEmpty);
}

void TestModelGeometry::missingUvsAreZero()
{
    Host::Mesh mesh = MakeMesh();
    mesh.uvs.clear();
    QCOMPARE(Host::BuildGeometry(mesh).uvs, std::vector<QVector2D>(7));
}

void TestModelGeometry::givenNormalsAreKeptAtLengthOne()
{
    Host::Mesh mesh = MakeMesh();
    mesh.normals.assign(mesh.positions.size(), {0.0F, -5.0F, 0.0F});
    const Host::MeshGeometry geometry = Host::BuildGeometry(mesh);
    QCOMPARE(geometry.normals, std::vector<QVector3D>(7, {0.0F, -1.0F, 0.0F}));
}

void TestModelGeometry::missingNormalsStandOnTheTriangles()
{
    const Host::MeshGeometry geometry = Host::BuildGeometry(MakeMesh());
    QCOMPARE(geometry.normals, std::vector<QVector3D>(7, {0.0F, 0.0F, 1.0F}));
}

void TestModelGeometry::wrongNormalsAreReplacedOneByOne()
{
    Host::Mesh mesh = MakeMesh();
    mesh.normals.assign(mesh.positions.size(), {1.0F, 0.0F, 0.0F});
    mesh.normals[0] = {0.0F, 0.0F, 0.0F};
    mesh.normals[3] = {std::numeric_limits<float>::quiet_NaN(), 1.0F, 0.0F};
    const Host::MeshGeometry geometry = Host::BuildGeometry(mesh);
    QCOMPARE(geometry.normals[0], QVector3D(0, 0, 1));
    QCOMPARE(geometry.normals[1], QVector3D(1, 0, 0));
    QCOMPARE(geometry.normals[3], QVector3D(0, 0, 1));
}

void TestModelGeometry::cornersInOnePlaceHaveOneNormal()
{
    // A roof whose two halves have vertices of their own at the ridge.
    Host::Mesh mesh;
    mesh.positions = {{0, 1, 0}, {0, 1, 1}, {1, 0, 0}, {0, 1, 1}, {0, 1, 0}, {-1, 0, 0}};
    mesh.materialSlots.resize(1);
    mesh.materialSlots[0].indices = {0, 1, 2, 3, 4, 5};
    const std::vector<QVector3D> normals = Host::BuildGeometry(mesh).normals;
    QVERIFY((normals[0] - QVector3D(0, 1, 0)).length() < 1e-6F);
    QCOMPARE(normals[0], normals[4]);
    QCOMPARE(normals[1], normals[3]);
    QVERIFY((normals[2] - QVector3D(1, 1, 0).normalized()).length() < 1e-6F);
}

void TestModelGeometry::nothingIsNothing()
{
    const Host::MeshGeometry geometry = Host::BuildGeometry({});
    QVERIFY(geometry.indices.empty() && geometry.parts.empty() && geometry.bounds.isEmpty);
}

SOFTCLOTH_TEST_WITH(TestModelGeometry, QCoreApplication)
#include "tst_model_geometry.moc"
