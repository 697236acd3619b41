#pragma once

#include "material/SoftClothMaterialDlgUiComponent.h"

#include <MVPluginQt/ArrayList.h>
#include <MVPluginQt/CoreBase.h>
#include <MVPluginQt/Enumerations.h>
#include <MVPluginQt/Handle.h>
#include <MVPluginQt/PluginDialog.h>
#include <MVPluginQt/Result.h>

#include <QMetaObject>
#include <QPointer>
#include <QSharedPointer>
#include <QWeakPointer>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

class QImage;

namespace MV {

class CEditService;
class CLargePreview;
class CMoviraInterface;
class CPhysicsSoftClothPlugin;
class CSceneService;
class CSoftClothMaterialTable;
class CUiService;
struct SoftClothSelection;

/// The modeless dialog in which the user chooses one material of the current object and gives it a weight image.
///
/// It keeps no values of materials: names, images and numbers are read from the host, edits are written straight back
/// and followed by a refresh of the whole panel. The chosen row's mesh and material go into the plug-in's selection.
///
/// Message boxes, file dialogs and the material table run an event loop of their own, in which the selection can
/// change and the dialog itself can be destroyed.
class CSoftClothMaterialDlg : public CPluginDialog, public CCoreBase
{
    Q_OBJECT

public:
    /// \param plugin  keeper of the selection that the dialog edits; outlives the dialog
    CSoftClothMaterialDlg(QWidget* parent, CPhysicsSoftClothPlugin* plugin);
    ~CSoftClothMaterialDlg() override;

    /// Builds the form, connects widgets and host events, and registers the hot keys.
    /// \return 0; 0x80000003 for a null \p host, and nothing is done; or the first failure
    BF::Result Init(const QString& pluginPath, const QString& resourceBase, CMoviraInterface* host);

    /// The table that the dialog fills and shows. It stays the plug-in's; the dialog may outlive it.
    void SetMaterialTable(const QSharedPointer<CSoftClothMaterialTable>& table) { m_materialTable = table; }

    /// Lists the materials of \p object that may take part in the soft cloth, all of them in the material table, and
    /// makes one row current, whose ids go into the selection.
    /// \param reset  true: the first material whose soft cloth is active, else the first one; false: the same row as
    ///               before, else the first one
    /// \return 0; 1 when there is nothing to list, and the selection's ids stay as they were; or the host's failure, at
    ///         which the rows made so far stay
    BF::Result ReloadMaterials(BF::CHandle* object, bool reset);

    /// Shows the materials' names as the host has them now; the meshes' names are left out.
    /// \return 0; 1 for an empty list; or the host's failure
    BF::Result RefreshMaterialStates();

    /// Chooses the material at \p index among the object's materials.
    /// \return true when another row was chosen, whose ids are in the selection then
    bool PickMaterial(std::size_t index);

    /// Shows the dialog again when the user has closed it and the host did not end the weight-map mode.
    /// \return whether that was so
    bool ShowAgainInOpenMode();

    /// The list, whose current row is the material that the panel edits; null without a form.
    const QListWidget* MaterialListWidget() const { return m_ui.materialListWidget; }

    /// How many materials the list shows.
    int MaterialCount() const;

    /// Makes the weight image the current texture without asking the host anything.
    void SelectWeightingLabel();

    /// Shows the host's values of the selected material.
    /// \return 0; 1 when the dialog is hidden or no material is selected; or the host's failure
    BF::Result UpdateUi();

    /// Lets Escape end the picking of a material while \p mode is that pick mode.
    BF::Result OnPickModeChanged(MV::EPickMode mode);

private Q_SLOTS:
    void OnChangeCurrentItemOfMaterialList();
    void OnClickOpenFilePushButton();
    void OnClickSaveFilePushButton();
    void OnClickDeleteFilePushButton();
    void OnClickLaunchFilePushButton();
    void OnClickUvRefPushButton();
    void OnClickOpenPathPushButton();
    void OnClickEmbedTexturePushButton();
    void OnClickPickMaterialPushButton();
    void OnClickShowMaterialTablePushButton();
    void OnLoadWeightImage(const QString& kFilePath);
    void OnItemSelectedChanged();
    void ShowDialog(MV::EDialogMode eMode);
    void OnFilterMaterialList();
    void DoHotkeyEscape();
    void OnMaterialTextureChanged(BFHANDLE hObject, const BF::CArrayList<unsigned long long>& kMaterialIndices,
                                  MV::ETextureChannel eChannel);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    /// A material on the mesh that carries it.
    struct Material
    {
        std::size_t mesh = 0;
        std::size_t material = 0;
    };
    /// What the host draws into a thumbnail.
    struct Drawing
    {
        BF::CHandle* thumbnail = nullptr;
        BF::CHandle* source = nullptr; ///< Null for none.
    };
    struct WeightImage;

    // Shell.
    CSceneService& Scene() const;
    CEditService& Edit() const;
    CUiService& Ui() const;
    SoftClothSelection& Selection() const;
    void ConnectWidgets();
    void ConnectHostEvents();
    BF::Result RegisterHotKeys();
    void SetImageLoading(bool loading);
    void EnableEditWidgets(bool enable);
    void EnableAdjustWidgets(bool enable);
    void ShowPicking();
    void ShowPath(const QString& path);
    void ShowMessage(const QString& text);

    // Material list.
    CSoftClothMaterialTable* MaterialTable() const;
    BF::Result ReadMaterials(BF::CHandle* object, std::vector<Material>& materials) const;
    BF::Result FillMaterialTable(const std::vector<Material>& materials) const;
    BF::Result AddMaterialRow(const Material& material);
    void ChooseRow(int row);
    void SelectRow(int row);
    std::size_t RowDatum(int row, int role) const;
    std::size_t CurrentMaterial() const;

    // Texture thumbnails.
    MV::ETextureChannel ChannelOf(const QItemLabel* label) const;
    BF::Result FindTexture(MV::ETextureChannel channel, Drawing& drawing, bool& canBeEdited) const;
    BF::Result ShowThumbnail(QItemLabel* label, bool redraw);
    BF::Result DrawThumbnail(QItemLabel* label, const Drawing& drawing);
    BF::Result FindDrawing(const QItemLabel* label, Drawing& drawing) const;
    void FindSource(Drawing& drawing) const;
    void MakeLabelCurrent(QItemLabel* label);
    const QItemLabel* PreviewedLabel() const;
    void ShowPreview();
    QImage RenderPreview(const QSize& pixels) const;

    // Weight image.
    BF::Result LoadWeightImage(const QString& path);
    bool TellLoadProblem(BF::Result loaded);
    BF::Result EmbedWeightImage();
    void WriteWeightAdjust(bool flag1, bool flag2);
    BF::Result ReloadWeightAdjust();
    BF::Result FindWeightThumbnail(BF::CHandle*& thumbnail, bool& isDefault) const;
    BF::Result ReadWeightImage(WeightImage& image) const;
    BF::Result UpdateWeightSettings(bool redraw, bool reload);
    void EnableWeightWidgets(const WeightImage& image);
    BF::Result FindImageToEdit(std::wstring& path) const;
    BF::Result EditUvTexture(bool& hasTexture);

    CPhysicsSoftClothPlugin* m_plugin;
    CMoviraInterface* m_host = nullptr;
    CSoftClothMaterialDlgUiComponent m_ui;
    QWeakPointer<CSoftClothMaterialTable> m_materialTable;
    int m_rebuild = 0;                    ///< Number of the latest rebuild of the list.
    int m_materialTableCode = 0;          ///< How the table was left the last time.
    QPointer<CLargePreview> m_preview;    ///< Belongs to its label; null without one.
    QItemLabel* m_currentLabel = nullptr; ///< The texture that the buttons work on; null for none yet.
    bool m_imageLoading = false;          ///< The host is loading images.
    bool m_isPicking = false;             ///< The host lets the user pick a material.
    bool m_isShownForMode = false;        ///< Shown by the weight-map mode, which has not ended since.
    std::array<QMetaObject::Connection, 2> m_imageLoadEvents; ///< Not cut by our death: their context is the sender.
};

} // namespace MV
