#include "host/services/HostApplication.h"
#include "host/viewport/PickRays.h"
#include "host/viewport/ViewedScene.h"
#include "tests/support/SampleImages.h"
#include "tests/support/TestCase.h"

#include <QTemporaryDir>

#include <limits>
#include <memory>

/// What is under the pointer, and what the view knows of the scene; without a display.
class TestPickRays : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nearestTriangleIsHit();
    void bothSidesAreHit();
    void nothingIsHitBesideTheModel();
    void materialIsTheTriangles();
    void holesOfTheOpacityAreSeenThrough();
    void movedMeshIsHitWhereItIs();
    void deletedObjectIsNotHit();
    void hiddenTrianglesAreNotHit();
    void emptySceneIsNotHit();
    void weightsAreThoseTheHostCounts();

protected:
    void SetUp() override { m_host = std::make_unique<Host::HostApplication>(); }
    void TearDown() override { m_host.reset(); }

private:
    /// A square of 2 x 2 at \p z around the z axis, of two materials: the first one's triangle is to the lower right.
    const Host::Object& AddSquare(float z, const Host::Texture& opacity = {}) const;
    static Host::Ray Towards(float x, float y, float from = 100.0F)
    {
        return {{x, y, from}, {0.0F, 0.0F, from > 0.0F ? -1.0F : 1.0F}};
    }

    std::unique_ptr<Host::HostApplication> m_host;
};

const Host::Object& TestPickRays::AddSquare(float z, const Host::Texture& opacity) const
{
    Host::Object object;
    object.name = QStringLiteral("Square");
    object.materials.resize(2);
    if (!opacity.filePath.isEmpty()) {
        object.materials[0].textures[MV::ETextureChannel::Opacity] = opacity;
        object.materials[1].textures[MV::ETextureChannel::Opacity] = opacity;
    }
    Host::Mesh mesh;
    mesh.positions = {{-1, -1, z}, {1, -1, z}, {1, 1, z}, {-1, 1, z}};
    mesh.uvs = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    mesh.materialSlots.resize(2);
    mesh.materialSlots[0].material = 1;
    mesh.materialSlots[0].indices = {0, 1, 2};
    mesh.materialSlots[1].material = 2;
    mesh.materialSlots[1].indices = {0, 2, 3};
    object.meshes.push_back(std::move(mesh));
    return *m_host->CurrentScene().FindObject(m_host->AddModel(std::move(object)));
}

void TestPickRays::nearestTriangleIsHit()
{
    const Host::Object& far = AddSquare(-5.0F);
    const Host::Object& near = AddSquare(5.0F);
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    const std::optional<Host::RayHit> hit = rays.Find(scene, Towards(0.5F, -0.2F));
    QVERIFY(hit);
    QCOMPARE(hit->object, near.handle);
    QCOMPARE(hit->mesh, near.meshes[0].id);
    QVERIFY((hit->place - QVector3D(0.5F, -0.2F, 5.0F)).length() < 1e-3F);
    QCOMPARE(rays.Find(scene, Towards(0.5F, -0.2F, -100.0F))->object, far.handle);
}

void TestPickRays::bothSidesAreHit()
{
    AddSquare(0.0F);
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QVERIFY(rays.Find(scene, Towards(0.5F, 0.0F)));
    QVERIFY(rays.Find(scene, Towards(0.5F, 0.0F, -100.0F)));
}

void TestPickRays::nothingIsHitBesideTheModel()
{
    AddSquare(0.0F);
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QVERIFY(!rays.Find(scene, Towards(1.01F, 0.0F)));
    QVERIFY(!rays.Find(scene, {{0.0F, 0.0F, 10.0F}, {0.0F, 0.0F, 1.0F}}));
}

void TestPickRays::materialIsTheTriangles()
{
    const Host::Object& object = AddSquare(0.0F);
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QCOMPARE(rays.Find(scene, Towards(0.5F, -0.5F))->material, object.materials[0].id);
    QCOMPARE(rays.Find(scene, Towards(-0.5F, 0.5F))->material, object.materials[1].id);
}

void TestPickRays::holesOfTheOpacityAreSeenThrough()
{
    const QTemporaryDir folder;
    QImage image({4, 4}, QImage::Format_RGB32);
    image.fill(Qt::white);
    // The lowest line of the image is where v is smallest.
    for (int x = 0; x < 4; ++x) {
        image.setPixelColor(x, 3, Qt::black);
    }
    const QString file = SampleImages::WriteImage(folder.filePath(QStringLiteral("holes.png")), image);
    const Host::Object& behind = AddSquare(0.0F);
    const Host::Object& front = AddSquare(1.0F, {file, {}});
    const Host::Object& nearest = AddSquare(2.0F, {file, {}});
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QCOMPARE(rays.Find(scene, Towards(0.5F, -0.9F))->object, behind.handle);
    QCOMPARE(rays.Find(scene, Towards(0.5F, 0.2F))->object, nearest.handle);
    QCOMPARE(rays.Find(scene, Towards(0.5F, 0.2F, -100.0F))->object, behind.handle);
    Q_UNUSED(front)
}

void TestPickRays::movedMeshIsHitWhereItIs()
{
    const Host::Object& object = AddSquare(0.0F);
    const Host::Mesh& mesh = object.meshes[0];
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QVERIFY(rays.Find(scene, Towards(0.5F, 0.0F)));
    std::vector<QVector3D> moved = mesh.positions;
    for (QVector3D& position : moved) {
        position += QVector3D(10.0F, 0.0F, 0.0F);
    }
    scene.SetPositions(object.handle, mesh.id, moved, std::vector<QVector3D>(4, {0.0F, 0.0F, 1.0F}));
    QVERIFY(!rays.Find(scene, Towards(0.5F, 0.0F)));
    QCOMPARE(rays.Find(scene, Towards(10.5F, 0.0F))->material, object.materials[0].id);
    scene.ResetPositions();
    QVERIFY(rays.Find(scene, Towards(0.5F, 0.0F)));
    QVERIFY(!rays.Find(scene, Towards(10.5F, 0.0F)));
}

void TestPickRays::deletedObjectIsNotHit()
{
    const Host::Object& object = AddSquare(0.0F);
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QVERIFY(rays.Find(scene, Towards(0.5F, 0.0F)));
    m_host->DeleteObjects({object.handle});
    scene.Refresh();
    QVERIFY(!rays.Find(scene, Towards(0.5F, 0.0F)));
    m_host->Undo();
    scene.Refresh();
    QVERIFY(rays.Find(scene, Towards(0.5F, 0.0F)));
}

void TestPickRays::hiddenTrianglesAreNotHit()
{
    Host::Object object;
    object.materials.resize(1);
    Host::Mesh mesh;
    mesh.positions.assign(3, QVector3D(std::numeric_limits<float>::quiet_NaN(), 0.0F, 0.0F));
    mesh.materialSlots.resize(1);
    mesh.materialSlots[0].material = 1;
    mesh.materialSlots[0].indices = {0, 1, 2};
    object.meshes.push_back(std::move(mesh));
    m_host->AddModel(std::move(object));
    AddSquare(0.0F);
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QVERIFY(rays.Find(scene, Towards(0.5F, 0.0F)));
    QVERIFY(scene.Problems().endsWith(QStringLiteral(": 1")));
}

void TestPickRays::emptySceneIsNotHit()
{
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    Host::PickRays rays;
    QVERIFY(!rays.Find(scene, Towards(0.0F, 0.0F)));
    QVERIFY(scene.BoundsOfAll().isEmpty);
}

void TestPickRays::weightsAreThoseTheHostCounts()
{
    const QTemporaryDir folder;
    QImage image({2, 2}, QImage::Format_RGB32);
    image.fill(Qt::black);
    image.setPixelColor(1, 0, QColor(200, 200, 200));
    const QString file = SampleImages::WriteImage(folder.filePath(QStringLiteral("corner.png")), image);
    const Host::Object& object = AddSquare(0.0F);
    m_host->CurrentScene().FindSlot(Host::Scene::SlotsOf(object)[0])->cloth.weight.image.filePath = file;
    Host::ViewedScene scene(*m_host);
    scene.Refresh();
    QVERIFY(scene.Meshes()[0].weights.empty());
    scene.ShowWeights(true);
    const Host::ViewedMesh& mesh = scene.Meshes()[0];
    QVERIFY(mesh.parts[0].hasWeights);
    QVERIFY(!mesh.parts[1].hasWeights);
    // Vertex 2, at the upper right.
    QCOMPARE(std::vector<quint8>(mesh.weights.begin(), mesh.weights.begin() + 3), (std::vector<quint8>{0, 0, 200}));
}

SOFTCLOTH_TEST(TestPickRays)
#include "tst_pick_rays.moc"
