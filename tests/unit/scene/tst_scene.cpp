#include "host/scene/Handles.h"
#include "host/scene/Scene.h"

#include "tests/support/TestCase.h"
#include "tests/unit/scene/SampleScene.h"

#include <QSet>
#include <QSignalSpy>

using Host::ClothAddress;
using Host::Id;
using Host::Object;
using Host::Scene;

class TestScene : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void idsAreNeverRepeatedAcrossScenes();
    void addedObjectGetsIdsAndKeepsItsAddress();
    void slotsAreNamedByMaterialIds();
    void slotThatNamesNoMaterialIsLeftOut();
    void everythingIsFoundByItsId();
    void unknownThingsAreNotFound_data();
    void unknownThingsAreNotFound();
    void slotNeedsItsOwnMeshAndMaterial();
    void deletedObjectIsNotFoundButKept();
    void slotsOfAreInMeshOrder();
    void selectionLeavesOutUnknownAndRepeatedHandles();
    void sameSelectionIsNoChange();
};

namespace {

/// Deletes \p object as the host does.
void Delete(Scene& scene, const Object& object)
{
    Host::SceneEdit edit;
    edit.objects.push_back({object.handle, {}, {false, false, false}});
    scene.Push(edit);
}

} // namespace

void TestScene::idsAreNeverRepeatedAcrossScenes()
{
    QSet<Id> ids;
    int count = 0;
    for (int i = 0; i < 3; ++i) {
        Scene scene;
        const Object& object = scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
        ids.insert(Host::ToId(object.handle));
        for (const auto& mesh : object.meshes) {
            ids.insert(mesh.id);
        }
        for (const auto& material : object.materials) {
            ids.insert(material.id);
        }
        count += 1 + 2 + 3;
    }
    QCOMPARE(ids.size(), count);
    QVERIFY(!ids.contains(0));
}

void TestScene::addedObjectGetsIdsAndKeepsItsAddress()
{
    Scene scene;
    QSignalSpy changes(&scene, &Scene::ObjectsChanged);
    Object& first = scene.AddObject(Sample::Robe(QStringLiteral("First")));
    QCOMPARE(changes.size(), 1);
    for (int i = 0; i < 50; ++i) {
        scene.AddObject(Sample::Robe(QStringLiteral("Other")));
    }
    QCOMPARE(scene.Objects().front(), &first);
    QCOMPARE(scene.Objects().size(), std::size_t{51});
    QCOMPARE(scene.FindObject(first.handle), &first);
}

void TestScene::slotsAreNamedByMaterialIds()
{
    Scene scene;
    const Object& object = scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
    QCOMPARE(object.meshes[0].materialSlots[0].material, object.materials[0].id);
    QCOMPARE(object.meshes[0].materialSlots[1].material, object.materials[1].id);
    QCOMPARE(object.meshes[1].materialSlots[1].material, object.materials[2].id);
}

void TestScene::slotThatNamesNoMaterialIsLeftOut()
{
    Scene scene;
    Object robe = Sample::Robe(QStringLiteral("Robe"));
    robe.meshes[0].materialSlots[0].material = 0;
    robe.meshes[1].materialSlots[0].material = 4;
    const Object& object = scene.AddObject(robe);
    QCOMPARE(object.meshes[0].materialSlots.size(), std::size_t{1});
    QCOMPARE(object.meshes[0].materialSlots[0].material, object.materials[1].id);
    QCOMPARE(object.meshes[1].materialSlots.size(), std::size_t{1});
    QCOMPARE(object.meshes[1].materialSlots[0].material, object.materials[2].id);
}

void TestScene::everythingIsFoundByItsId()
{
    Scene scene;
    scene.AddObject(Sample::Robe(QStringLiteral("Other")));
    Object& object = scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
    Host::Mesh& mesh = object.meshes[1];
    Host::Material& material = object.materials[2];
    QCOMPARE(scene.FindMesh(mesh.id), &mesh);
    QCOMPARE(scene.OwnerOfMesh(mesh.id), &object);
    QCOMPARE(scene.FindMaterial(material.id), &material);
    QCOMPARE(scene.OwnerOfMaterial(material.id), &object);
    QCOMPARE(scene.FindSlot({object.handle, mesh.id, material.id}), &mesh.materialSlots[1]);
    QCOMPARE(scene.NameOf(object.handle), QStringLiteral("Robe"));
    QCOMPARE(scene.NameOf(Host::ToHandle(mesh.id)), QStringLiteral("Belt"));
    QCOMPARE(scene.NameOf(Host::ToHandle(material.id)), QStringLiteral("Leather"));
}

void TestScene::unknownThingsAreNotFound_data()
{
    QTest::addColumn<quintptr>("id");
    QTest::newRow("none") << quintptr{0};
    QTest::newRow("never given out") << quintptr{0x0badf00d};
    QTest::newRow("all bits") << ~quintptr{0};
    QTest::newRow("given out to nobody here") << quintptr{Host::NewId()};
}

void TestScene::unknownThingsAreNotFound()
{
    QFETCH(quintptr, id);
    Scene scene;
    const Object& object = scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
    BF::CHandle* const handle = Host::ToHandle(id);
    QVERIFY(!scene.FindObject(handle));
    QVERIFY(!scene.FindMesh(id));
    QVERIFY(!scene.FindMaterial(id));
    QVERIFY(!scene.OwnerOfMesh(id));
    QVERIFY(!scene.OwnerOfMaterial(id));
    QVERIFY(!scene.FindSlot({handle, id, id}));
    QVERIFY(!scene.FindSlot({object.handle, id, object.materials[0].id}));
    QVERIFY(scene.NameOf(handle).isNull());
}

void TestScene::slotNeedsItsOwnMeshAndMaterial()
{
    Scene scene;
    const Object& a = scene.AddObject(Sample::Robe(QStringLiteral("A")));
    const Object& b = scene.AddObject(Sample::Robe(QStringLiteral("B")));
    QVERIFY(scene.FindSlot({a.handle, a.meshes[0].id, a.materials[0].id}));
    QVERIFY(!scene.FindSlot({b.handle, a.meshes[0].id, a.materials[0].id}));
    QVERIFY(!scene.FindSlot({a.handle, b.meshes[0].id, a.materials[0].id}));
    QVERIFY(!scene.FindSlot({a.handle, a.meshes[1].id, a.materials[0].id}));
}

void TestScene::deletedObjectIsNotFoundButKept()
{
    Scene scene;
    const Object& object = scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
    Delete(scene, object);
    QVERIFY(scene.Objects().empty());
    QCOMPARE(scene.AllObjects().size(), std::size_t{1});
    QVERIFY(!scene.FindObject(object.handle));
    QVERIFY(!scene.FindMesh(object.meshes[0].id));
    QVERIFY(!scene.FindMaterial(object.materials[0].id));
    QVERIFY(!scene.FindSlot({object.handle, object.meshes[0].id, object.materials[0].id}));
    QVERIFY(scene.NameOf(object.handle).isNull());
    QVERIFY(!scene.SetSelection({object.handle}));
}

void TestScene::slotsOfAreInMeshOrder()
{
    Scene scene;
    const Object& object = scene.AddObject(Sample::Robe(QStringLiteral("Robe")));
    const std::vector<ClothAddress> addresses = Scene::SlotsOf(object);
    QCOMPARE(addresses.size(), std::size_t{4});
    const std::size_t expected[][2] = {{0, 0}, {0, 1}, {1, 1}, {1, 2}};
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        QCOMPARE(addresses[i].object, object.handle);
        QCOMPARE(addresses[i].mesh, object.meshes[expected[i][0]].id);
        QCOMPARE(addresses[i].material, object.materials[expected[i][1]].id);
    }
}

void TestScene::selectionLeavesOutUnknownAndRepeatedHandles()
{
    Scene scene;
    BF::CHandle* const a = scene.AddObject(Sample::Robe(QStringLiteral("A"))).handle;
    BF::CHandle* const b = scene.AddObject(Sample::Robe(QStringLiteral("B"))).handle;
    QVERIFY(scene.SetSelection({b, nullptr, Host::ToHandle(1), a, b}));
    QCOMPARE(scene.Selection(), (QVector<BF::CHandle*>{b, a}));
}

void TestScene::sameSelectionIsNoChange()
{
    Scene scene;
    BF::CHandle* const a = scene.AddObject(Sample::Robe(QStringLiteral("A"))).handle;
    QSignalSpy changes(&scene, &Scene::SelectionChanged);
    QVERIFY(!scene.SetSelection({}));
    QVERIFY(scene.SetSelection({a}));
    QVERIFY(!scene.SetSelection({a, a, nullptr}));
    QCOMPARE(changes.size(), 1);
    QVERIFY(scene.SetSelection({}));
    QCOMPARE(changes.size(), 2);
}

SOFTCLOTH_TEST_WITH(TestScene, QCoreApplication)

#include "tst_scene.moc"
