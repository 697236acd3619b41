// Large scenes: what the host and the panel do with ten thousand objects or materials must take ten times as long as
// what they do with a thousand.
#include "host/scene/Scene.h"
#include "host/scene/SceneFile.h"
#include "host/services/HostApplication.h"
#include "host/workbench/SceneTree.h"
#include "tests/bench/BenchPanel.h"
#include "tests/bench/Report.h"
#include "tests/support/SampleModels.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <utility>

namespace {

using Host::HostApplication;
using Host::Object;
using Host::Scene;

constexpr int factor = 10;
constexpr int few = 1000;
constexpr int many = factor * few;
/// For what grows a little faster than the scene: sorting, trees, memory that does not fit into the caches.
constexpr double bound = 2.0;
constexpr int repetitions = 3;

/// A weight image like no other.
QByteArray WeightImage(int number)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(QRgb(number) | 0xff000000U);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

Object WithWeightImages(Object object, int& number)
{
    object.state.softCloth = true;
    for (Host::Mesh& mesh : object.meshes) {
        for (Host::MaterialSlot& slot : mesh.materialSlots) {
            slot.cloth.active = true;
            slot.cloth.weight.image.embedded = WeightImage(number++);
        }
    }
    return object;
}

void AddObjects(Scene& scene, int count)
{
    int number = 0;
    for (int i = 0; i < count; ++i) {
        const QString name = QStringLiteral("Flag %1").arg(i);
        scene.AddObject(
            WithWeightImages(SampleModels::Make(name, {{QStringLiteral("Sheet"), {QStringLiteral("Silk")}}}), number));
    }
}

void AddOneObject(Scene& scene, int materials)
{
    QStringList names;
    for (int i = 0; i < materials; ++i) {
        names.append(QStringLiteral("Silk %1").arg(i));
    }
    int number = 0;
    scene.AddObject(
        WithWeightImages(SampleModels::Make(QStringLiteral("Patchwork"), {{QStringLiteral("Sheet"), names}}), number));
}

QVector<BF::CHandle*> AllObjects(const Scene& scene)
{
    QVector<BF::CHandle*> all;
    for (const Object* object : scene.Objects()) {
        all.append(object->handle);
    }
    return all;
}

/// A host with a panel, a tree and a scene file.
struct Workplace
{
    Workplace(const std::function<void(Scene&, int)>& fill, int count)
    {
        Scene scene;
        fill(scene, count);
        if (!Host::SaveScene(scene, File()).ok) {
            qFatal("the scene is not saved");
        }
    }

    QString File() const { return folder.filePath(QStringLiteral("large.scene")); }

    void Open()
    {
        std::unique_ptr<Scene> scene;
        if (!Host::LoadScene(File(), scene).ok) {
            qFatal("the scene is not opened");
        }
        panel.host.ReplaceScene(std::move(scene), MV::EFileType::Scene);
    }

    void SelectAll() { panel.host.Select(AllObjects(panel.host.CurrentScene())); }
    void SelectNone() { panel.host.Select({}); }
    void DeleteAndUndo()
    {
        panel.host.DeleteObjects(AllObjects(panel.host.CurrentScene()));
        panel.host.Undo();
    }
    void Save() { Host::SaveScene(panel.host.CurrentScene(), File()); }

    QTemporaryDir folder;
    BenchPanel<HostApplication> panel;
    Host::SceneTree tree{panel.host};
};

using Step = void (Workplace::*)();

struct Operation
{
    const char* name;
    Step run;
    Step prepare;
};

void CompareSizes(Bench::Report& report, const QString& what, const std::function<void(Scene&, int)>& fill)
{
    Workplace large(fill, many);
    Workplace small(fill, few);
    large.Open();
    small.Open();
    const Operation operations[] = {
        {"open", &Workplace::Open, nullptr},
        {"select all", &Workplace::SelectAll, &Workplace::SelectNone},
        {"select none", &Workplace::SelectNone, &Workplace::SelectAll},
        {"delete all and undo", &Workplace::DeleteAndUndo, nullptr},
        {"save", &Workplace::Save, nullptr},
    };
    for (const Operation& operation : operations) {
        // What happens only once with either size is no part of the comparison.
        const auto inSmall = [&] {
            for (int i = 0; i < factor; ++i) {
                if (operation.prepare) {
                    (small.*operation.prepare)();
                }
                (small.*operation.run)();
            }
        };
        const auto inLarge = [&] {
            if (operation.prepare) {
                (large.*operation.prepare)();
            }
            (large.*operation.run)();
        };
        report.Compare(QStringLiteral("%1: %2").arg(what, QLatin1String(operation.name)), {inLarge}, {inSmall}, bound,
                       repetitions);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    Bench::Report report(QStringLiteral("Large scenes: %1, bare: %2 times %3").arg(many).arg(factor).arg(few));
    CompareSizes(report, QStringLiteral("objects"), AddObjects);
    CompareSizes(report, QStringLiteral("materials of one object"), AddOneObject);
    return report.Print();
}
