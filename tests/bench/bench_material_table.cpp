// Filling the material table.
#include "material/SoftClothMaterialTable.h"
#include "panel/HostIds.h"
#include "tests/bench/BenchPanel.h"
#include "tests/bench/QuickHost.h"
#include "tests/bench/Report.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QTableWidget>

#include <memory>

namespace {

constexpr int rowCount = 10000;
constexpr double bound = 1.3;
constexpr int repetitions = 3; // A table takes longer to be destroyed than to be filled.

void FillBareTable(QTableWidget& table)
{
    table.setRowCount(rowCount);
    for (int row = 0; row < rowCount; ++row) {
        auto* holder = new QWidget;
        auto* layout = new QHBoxLayout(holder);
        auto* box = new QCheckBox;
        box->setCheckState(Qt::Checked);
        layout->addWidget(box);
        layout->setAlignment(Qt::AlignCenter);
        layout->setContentsMargins(0, 0, 0, 0);
        table.setCellWidget(row, 0, holder);
        for (const int column : {1, 2}) {
            auto* item = new QTableWidgetItem(QStringLiteral("Material %1").arg(row));
            item->setFlags(item->flags() & ~Qt::ItemIsEditable);
            table.setItem(row, column, item);
        }
    }
}

BF::CArrayList<BF::CHandle*> Handles(int count, std::size_t first)
{
    BF::CArrayList<BF::CHandle*> handles;
    for (int i = 0; i < count; ++i) {
        handles.Add(MV::IdAsHandle(first + std::size_t(i)));
    }
    return handles;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    BenchPanel<QuickHost> panel;
    const auto materials = Handles(rowCount, 1000000);
    const auto meshes = Handles(rowCount, 1);
    // Both start with a new table each time: rows that are taken out of one are destroyed later, by the event loop.
    std::unique_ptr<MV::CSoftClothMaterialTable> dialog;
    std::unique_ptr<QTableWidget> bare;
    const Bench::Work bareWork{[&] { FillBareTable(*bare); }, [&] { bare = std::make_unique<QTableWidget>(0, 3); }};
    const auto fill = [&] { dialog->FillTable(); };
    const auto makeDialog = [&] {
        dialog = std::make_unique<MV::CSoftClothMaterialTable>(&panel.window, &panel.plugin);
        if (dialog->Init({}, {}, &panel.host).IsFailure()) {
            qFatal("the dialog does not start");
        }
        dialog->SetMaterialRows(materials, meshes);
    };
    const auto showDialog = [&] {
        makeDialog();
        dialog->show();
        QApplication::processEvents();
    };
    const auto showAndHideDialog = [&] {
        showDialog();
        dialog->hide();
    };

    Bench::Report report(QStringLiteral("Material table, %1 rows").arg(rowCount));
    const auto compare = [&](const char* state, const std::function<void()>& prepare) {
        report.Compare(QLatin1String(state), {fill, prepare}, bareWork, bound, repetitions);
        const auto* table = dialog->findChild<QTableWidget*>(QStringLiteral("qtMaterialTableWidget"));
        if (table->rowCount() != rowCount || bare->rowCount() != rowCount) {
            qFatal("the tables are not complete");
        }
    };
    compare("dialog hidden", makeDialog);
    compare("dialog hidden, was shown before", showAndHideDialog);
    compare("dialog visible", showDialog);
    report.Measure(QStringLiteral("filled again, dialog visible"), {fill}, rowCount);
    return report.Print();
}
