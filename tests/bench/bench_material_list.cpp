// Listing the materials of an object in the material dialog.
#include "material/SoftClothMaterialDlg.h"
#include "panel/HostIds.h"
#include "plugin/services/SceneService.h"
#include "tests/bench/BenchPanel.h"
#include "tests/bench/QuickHost.h"
#include "tests/bench/Report.h"

#include <QApplication>
#include <QListWidget>

namespace {

constexpr std::size_t materialsPerMesh = 100;
constexpr int compared = 10000;

QString RowText(const std::wstring& material, const std::wstring& mesh)
{
    return QString::fromStdWString(material + L"( " + mesh + L" )");
}

/// What the dialog asks the host, and the rows that it shows.
void FillBareList(QListWidget& list, MV::CSceneService& scene, BF::CHandle* object)
{
    list.clear();
    BF::CArrayList<std::size_t> meshes;
    scene.GetMeshList(object, meshes);
    for (const std::size_t mesh : meshes) {
        BF::CArrayList<std::size_t> materials;
        scene.GetMaterialList(mesh, materials, 0);
        for (const std::size_t material : materials) {
            bool active = false;
            std::wstring materialName;
            std::wstring meshName;
            if (!scene.IsMaterialSoftClothEnabled(material)) {
                continue;
            }
            scene.GetObjectName(materialName, MV::IdAsHandle(material));
            scene.GetObjectName(meshName, MV::IdAsHandle(mesh));
            scene.IsSoftClothActive(object, mesh, material, active);
            auto* item = new QListWidgetItem(RowText(materialName, meshName));
            item->setData(Qt::UserRole, QVariant::fromValue<quint64>(material));
            item->setData(Qt::UserRole + 1, QVariant::fromValue<quint64>(mesh));
            list.addItem(item);
        }
    }
    list.setCurrentRow(list.count() - 1);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    BenchPanel<QuickHost> panel;
    MV::CSoftClothMaterialDlg& dialog = *panel.plugin.MaterialDlg();
    // The table that the dialog fills along with its list is a subject of its own.
    dialog.SetMaterialTable({});
    BF::CHandle* object = MV::IdAsHandle(1);
    QListWidget bare;
    const Bench::Work product{[&] { dialog.ReloadMaterials(object, true); }};
    const Bench::Work bareWork{[&] { FillBareList(bare, *panel.host.GetSceneService(), object); }};

    Bench::Report report(QStringLiteral("Material list"));
    panel.host.Fill(compared / materialsPerMesh, materialsPerMesh);
    report.Compare(QStringLiteral("%1 materials").arg(compared), product, bareWork, 1.3);
    if (dialog.MaterialCount() != compared || bare.count() != compared) {
        qFatal("the lists are not complete");
    }
    for (const int rows : {100, 1000, 10000, 100000}) {
        panel.host.Fill(std::size_t(rows) / materialsPerMesh, materialsPerMesh);
        report.Measure(QStringLiteral("%1 materials").arg(rows), product, rows);
    }
    return report.Print();
}
