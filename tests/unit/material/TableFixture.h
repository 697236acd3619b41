#pragma once

#include "tests/unit/material/DialogFixture.h"

#include "panel/HostIds.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTableWidget>

/// The material table of the sample object, by itself.
struct TableFixture : DialogFixture
{
    TableFixture() { Add(); }

    /// Gives the table all materials of the object.
    void SetRows()
    {
        BF::CArrayList<BF::CHandle*> materials;
        BF::CArrayList<BF::CHandle*> meshes;
        for (const Host::ClothAddress& address : Host::Scene::SlotsOf(*object)) {
            materials.Add(MV::IdAsHandle(address.material));
            meshes.Add(MV::IdAsHandle(address.mesh));
        }
        table->SetMaterialRows(materials, meshes);
    }

    void Fill()
    {
        SetRows();
        table->FillTable();
        Take();
    }

    void ShowTable()
    {
        table->show();
        QVERIFY(QTest::qWaitForWindowExposed(table.data()));
        QApplication::setActiveWindow(table.data());
    }

    QTableWidget& Rows() const { return *Child<QTableWidget>(table.data(), "qtMaterialTableWidget"); }
    QPushButton& Confirm() const { return *Child<QPushButton>(table.data(), "qtConfirmPushButton"); }
    QPushButton& Cancel() const { return *Child<QPushButton>(table.data(), "qtCancelPushButton"); }
    QCheckBox& Box(int row) const { return *Rows().cellWidget(row, 0)->findChild<QCheckBox*>(); }
    void Tick(int row) const { QTest::mouseClick(&Box(row), Qt::LeftButton, {}, Box(row).rect().center()); }

    QStringList Texts() const
    {
        QStringList texts;
        for (int row = 0; row < Rows().rowCount(); ++row) {
            texts.append(QStringLiteral("%1 %2 %3")
                             .arg(QLatin1Char(Box(row).isChecked() ? 'x' : '-'))
                             .arg(Rows().item(row, 1)->text(), Rows().item(row, 2)->text()));
        }
        return texts;
    }
};
