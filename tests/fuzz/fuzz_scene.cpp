// Scene files: what loads is sound, and comes back the same from a file of its own.
#include "tests/fuzz/Fuzz.h"

#include "host/scene/Scene.h"
#include "host/scene/SceneFile.h"

#include <QFile>

#include <memory>

namespace {

void Check(const Host::Scene& scene)
{
    for (const auto& object : scene.AllObjects()) {
        for (const Host::Mesh& mesh : object->meshes) {
            for (const Host::MaterialSlot& slot : mesh.materialSlots) {
                for (const quint32 index : slot.indices) {
                    if (index >= mesh.positions.size()) {
                        Fuzz::Fail(QStringLiteral("a triangle without a vertex"));
                    }
                }
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::StartApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::unique_ptr<Host::Scene> scene;
    const QString path = Fuzz::WriteFile("scene.json", Fuzz::Bytes(data, size));
    if (!Host::LoadScene(path, scene).ok) {
        return 0;
    }
    Check(*scene);
    const Host::SceneFileResult saved = Host::SaveScene(*scene, path);
    if (!saved.ok) {
        Fuzz::Fail(saved.error);
    }
    std::unique_ptr<Host::Scene> again;
    const Host::SceneFileResult loaded = Host::LoadScene(path, again);
    if (!loaded.ok || again->AllObjects().size() != scene->AllObjects().size() ||
        again->UndoStack().count() != scene->UndoStack().count()) {
        Fuzz::Fail(QLatin1String("a saved scene does not come back: ") + loaded.error);
    }
    while (scene->UndoStack().canUndo()) {
        scene->UndoStack().undo();
    }
    return 0;
}

QVector<QByteArray> FuzzSeeds()
{
    Host::Scene scene;
    Host::Object object;
    object.name = QStringLiteral("Flag");
    object.materials.resize(1);
    object.materials[0].name = QStringLiteral("Silk");
    Host::Mesh mesh;
    mesh.name = QStringLiteral("Sheet");
    mesh.positions = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};
    mesh.uvs = {{0, 0}, {1, 0}, {0, 1}};
    mesh.materialSlots.push_back({1, {0, 1, 2}, {}});
    mesh.materialSlots[0].cloth.weight.image.embedded = "GIF89a";
    object.meshes.push_back(mesh);
    Host::Object& added = scene.AddObject(object);
    const QString path = Fuzz::Folder() + QLatin1String("/seed.json");
    QVector<QByteArray> seeds{"{}", "[]", "", "{\"format\": 1}"};
    const auto save = [&] {
        QFile file(path);
        if (!Host::SaveScene(scene, path).ok || !file.open(QIODevice::ReadOnly)) {
            Fuzz::Fail(QStringLiteral("no seed"));
        }
        seeds.append(file.readAll());
    };
    save();
    Host::SceneEdit edit;
    edit.text = QStringLiteral("Off");
    edit.materials.push_back({added.materials[0].id, {}, Host::MaterialState{false}});
    scene.Push(std::move(edit));
    save();
    return seeds;
}
