#pragma once

#include "material/SoftClothMaterialTableUiComponent.h"

#include <MVPluginQt/ArrayList.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Handle.h>
#include <MVPluginQt/PluginDialog.h>
#include <MVPluginQt/Result.h>

#include <QVector>

class QCheckBox;

namespace MV {

class CMoviraInterface;
class CPhysicsSoftClothPlugin;

/// The modal table of all materials of an object, each beside the mesh that carries it, in which the user ticks those
/// that take part in the soft cloth. Confirming writes every row to the host, cancelling writes nothing.
class CSoftClothMaterialTable : public CPluginDialog, public CCoreBase
{
    Q_OBJECT

public:
    CSoftClothMaterialTable(QWidget* parent, CPhysicsSoftClothPlugin* plugin);
    ~CSoftClothMaterialTable() override;

    /// Builds the form.
    /// \return 0; 0x80000003 for a null \p host, and nothing is done; or the form's failure
    BF::Result Init(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host);

    /// Sets what the rows are about. Both lists hold ids as handles and are of equal length: the mesh at an index
    /// carries the material at that index. The rows themselves change with the next FillTable().
    void SetMaterialRows(const BF::CArrayList<BF::CHandle*>& materials, const BF::CArrayList<BF::CHandle*>& meshes);

    /// Fills the table again: names and ticks as the host reports them. The confirm button stays as it was.
    /// \return 0; or 0x80000002 when a row could not be made, the rows before it stay
    BF::Result FillTable();

    /// Lets the user confirm as long as at least one row is ticked.
    void UpdateConfirmEnabled();

protected:
    void showEvent(QShowEvent* event) override;
    /// Space in the table ticks or unticks the current row; the row of the check box with the focus is the current one.
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void OnClickCancelPushButton();
    void OnClickConfirmPushButton();

private:
    struct Row;

    void SetUpTable();
    QVector<Row> ReadRows() const;
    bool MakeRow(int row);
    void ShowRow(int row, const Row& content);
    void MoveButtonsBehindRows();

    [[maybe_unused]] CPhysicsSoftClothPlugin* m_plugin;
    CMoviraInterface* m_host = nullptr;
    CSoftClothMaterialTableUiComponent m_ui;
    BF::CArrayList<BF::CHandle*> m_materials;
    BF::CArrayList<BF::CHandle*> m_meshes;
    QVector<QCheckBox*> m_checkBoxes; ///< One per row.
    int m_fills = 0;                  ///< How often the table was filled.
};

} // namespace MV
