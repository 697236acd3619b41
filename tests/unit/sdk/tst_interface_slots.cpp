#include "plugin/services/AuxService.h"
#include "plugin/services/EditService.h"
#include "plugin/services/FileService.h"
#include "plugin/services/HotKeyService.h"
#include "plugin/services/MoviraInterface.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/SoftClothService.h"
#include "plugin/services/UiService.h"
#include "tests/support/TestCase.h"
#include "ui/UiComponent.h"

#include <MVPluginQt/PluginInterface.h>
#include <MVPluginQt/SectionInterface.h>

#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

/// The host calls the interfaces by the place of a function in the table of virtual functions, with the arguments that
/// it knows: neither may ever change.
class TestInterfaceSlots : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void functionHasItsSlot_data();
    void functionHasItsSlot();
    void interfaceHasNoFurtherSlots_data();
    void interfaceHasNoFurtherSlots();
};

namespace {

using Apps = MV::ECompatibleApp;
using Channel = MV::ETextureChannel;
using H = BF::CHandle*;
using Id = std::size_t;
using R = BF::Result;
using WS = std::wstring;
template <class T>
using L = BF::CArrayList<T>;

/// The place of \p member in its table of virtual functions. \p Signature is given by the caller, so that a function
/// with other arguments does not compile.
template <class Signature, class Interface>
int SlotOf(Signature Interface::*member)
{
    // In the C++ ABI of everything but MSVC, a pointer to a virtual member function holds 1 + its offset in the table.
    struct
    {
        std::ptrdiff_t offsetPlusOne;
        std::ptrdiff_t thisAdjustment;
    } parts{};
    static_assert(sizeof(member) == sizeof(parts));
    std::memcpy(&parts, &member, sizeof(parts));
    return int(std::size_t(parts.offsetPlusOne - 1) / sizeof(void*));
}

/// An interface with one function more: its slot is the number of the interface's slots.
template <class Interface>
class Extended : public Interface
{
public:
    virtual void Next() = 0;

protected:
    ~Extended() = default; // NOLINT(modernize-use-override): virtual in some interfaces only
};

template <class Interface>
int SlotCount()
{
    return SlotOf<void()>(&Extended<Interface>::Next);
}

using Slots = std::vector<std::pair<const char*, int>>;

/// One row per function of \p slots, whose places count up from \p first.
void Rows(const char* interfaceName, const Slots& slots, int first = 0)
{
    int expected = first;
    for (const auto& [function, slot] : slots) {
        QTest::addRow("%s::%s", interfaceName, function) << slot << expected++;
    }
}

Slots MoviraInterfaceSlots()
{
    using S = MV::CMoviraInterface;
    return {
        {"GetEventSender", SlotOf<MV::CEventSender*()>(&S::GetEventSender)},
        {"GetEditService", SlotOf<MV::CEditService*()>(&S::GetEditService)},
        {"GetFileService", SlotOf<MV::CFileService*()>(&S::GetFileService)},
        {"GetSceneService", SlotOf<MV::CSceneService*()>(&S::GetSceneService)},
        {"GetUiService", SlotOf<MV::CUiService*()>(&S::GetUiService)},
        {"GetHotKeyService", SlotOf<MV::CHotKeyService*()>(&S::GetHotKeyService)},
        {"GetSoftClothService", SlotOf<MV::CSoftClothService*()>(&S::GetSoftClothService)},
        {"GetAuxService", SlotOf<MV::CAuxService*()>(&S::GetAuxService)},
    };
}

Slots SceneServiceSlots()
{
    using S = MV::CSceneService;
    return {
        {"GetMainWindow", SlotOf<QWidget*()>(&S::GetMainWindow)},
        {"IsPlaying", SlotOf<bool()>(&S::IsPlaying)},
        {"GetSelectedObjects", SlotOf<R(L<H>&, int)>(&S::GetSelectedObjects)},
        {"GetObjectType", SlotOf<R(H, quint32&)>(&S::GetObjectType)},
        {"GetObjectKind", SlotOf<R(H, int&)>(&S::GetObjectKind)},
        {"GetSelectedObject", SlotOf<H(int)>(&S::GetSelectedObject)},
        {"GetMeshHandle", SlotOf<R(Id, H&)>(&S::GetMeshHandle)},
        {"GetSelectedObjectCount", SlotOf<int()>(&S::GetSelectedObjectCount)},
        {"GetObjectName", SlotOf<R(WS&, H)>(&S::GetObjectName)},
        {"GetDialogMode", SlotOf<MV::EDialogMode()>(&S::GetDialogMode)},
        {"GetCurrentPickMode", SlotOf<MV::EPickMode()>(&S::GetCurrentPickMode)},
        {"GetDefaultThumbnail", SlotOf<R(H&)>(&S::GetDefaultThumbnail)},
        {"GetThumbnailSourceImage", SlotOf<bool(H, H&)>(&S::GetThumbnailSourceImage)},
        {"GetThumbnailSource", SlotOf<R(Id, Channel, H&)>(&S::GetThumbnailSource)},
        {"OpenTexture", SlotOf<R(Id, Channel, bool)>(&S::OpenTexture)},
        {"GetMaterialTextureState", SlotOf<R(Id, Channel, bool&, bool&, bool&, bool&)>(&S::GetMaterialTextureState)},
        {"GetTextureThumbnail", SlotOf<R(Id, Channel, H&, bool&)>(&S::GetTextureThumbnail)},
        {"RenderThumbnail", SlotOf<R(int, int, H, H, QImage&)>(&S::RenderThumbnail)},
        {"GetTexturePath", SlotOf<R(H, std::size_t, Channel, WS&)>(&S::GetTexturePath)},
        {"GetMaterialIndex", SlotOf<R(H, Id, std::size_t&)>(&S::GetMaterialIndex)},
        {"ExportUvTexture", SlotOf<R(H, std::size_t, Channel, L<WS>&)>(&S::ExportUvTexture)},
        {"GetEmbeddedTexture", SlotOf<R(Id, Channel)>(&S::GetEmbeddedTexture)},
        {"LoadTextureSource", SlotOf<bool(Id, Channel)>(&S::LoadTextureSource)},
        {"IsTextureEmbedded", SlotOf<bool(Id)>(&S::IsTextureEmbedded)},
        {"GetDataFolderPath", SlotOf<R(WS&, int)>(&S::GetDataFolderPath)},
        {"GetPhysicsEngineType", SlotOf<R(int&)>(&S::GetPhysicsEngineType)},
        {"IsPhysicsActive", SlotOf<R(H, int, bool&)>(&S::IsPhysicsActive)},
        {"GetSoftClothConvertState", SlotOf<R(H, int&)>(&S::GetSoftClothConvertState)},
        {"IsSoftClothActive", SlotOf<R(H, Id, Id, bool&)>(&S::IsSoftClothActive)},
        {"IsMaterialSoftClothEnabled", SlotOf<bool(Id)>(&S::IsMaterialSoftClothEnabled)},
        {"GetUseGlobalGravity", SlotOf<R(H, Id, Id, bool&, bool)>(&S::GetUseGlobalGravity)},
        {"GetWeightTexture", SlotOf<R(H, Id, Id, H&)>(&S::GetWeightTexture)},
        {"GetWeightImageAdjust", SlotOf<R(H, Id, Id, MV::WeightImageAdjust&)>(&S::GetWeightImageAdjust)},
        {"GetWeightImagePath", SlotOf<R(H, Id, Id, WS&)>(&S::GetWeightImagePath)},
        {"GetWeightImageEditFile", SlotOf<R(H, Id, Id, WS&)>(&S::GetWeightImageEditFile)},
        {"GetWeightImageState", SlotOf<R(H, Id, Id, MV::WeightImageState&)>(&S::GetWeightImageState)},
        {"GetSoftClothProperty", SlotOf<R(H, Id, Id, MV::SoftClothPropertyData&)>(&S::GetSoftClothProperty)},
        {"GetSoftClothCollision", SlotOf<R(H, Id, Id, MV::SoftClothCollisionData&)>(&S::GetSoftClothCollision)},
        {"GetSoftClothWind", SlotOf<R(H, Id, Id, MV::SoftClothWindData&)>(&S::GetSoftClothWind)},
        {"GetSaveImageFileName", SlotOf<R(QString&, int, int, int, const QString&)>(&S::GetSaveImageFileName)},
        {"GetOpenImageFileName", SlotOf<R(QString&, int, int, int)>(&S::GetOpenImageFileName)},
        {"GetMeshList", SlotOf<R(H, L<Id>&)>(&S::GetMeshList)},
        {"GetMaterialList", SlotOf<R(Id, L<Id>&, int)>(&S::GetMaterialList)},
        {"GetDefaultFolder", SlotOf<R(QString&, int)>(&S::GetDefaultFolder)},
        {"IsPanelBlockedForObject", SlotOf<R(H, bool&)>(&S::IsPanelBlockedForObject)},
        {"IsPanelBlockedForObjectEx", SlotOf<bool(H)>(&S::IsPanelBlockedForObjectEx)},
        {"GetMaterialIdByIndex", SlotOf<Id(H, std::size_t)>(&S::GetMaterialIdByIndex)},
    };
}

Slots EditServiceSlots()
{
    using S = MV::CEditService;
    using Adjust = const MV::WeightImageAdjust&;
    return {
        {"ConvertToRigidBody", SlotOf<R(H)>(&S::ConvertToRigidBody)},
        {"CancelMultiMaterialSoftCloth", SlotOf<R(H)>(&S::CancelMultiMaterialSoftCloth)},
        {"SetPhysicsActive", SlotOf<R(H, int, bool, bool, bool)>(&S::SetPhysicsActive)},
        {"SetUseGlobalGravity", SlotOf<R(H, Id, Id, bool, bool)>(&S::SetUseGlobalGravity)},
        {"DeleteWeightImage", SlotOf<R(H, Id, Id)>(&S::DeleteWeightImage)},
        {"EmbedWeightImage", SlotOf<R(H, Id, Id)>(&S::EmbedWeightImage)},
        {"SetWeightImageAdjust", SlotOf<R(H, Id, Id, Adjust, bool, bool)>(&S::SetWeightImageAdjust)},
        {"SetIgnoredMaterialNames", SlotOf<R(H, const std::map<WS, L<WS>>&)>(&S::SetIgnoredMaterialNames)},
        {"SetSoftClothProperty",
         SlotOf<R(H, Id, Id, MV::ESoftClothPropertyType, const MV::SoftClothPropertyData&, bool)>(
             &S::SetSoftClothProperty)},
        {"SetSoftClothCollision",
         SlotOf<R(H, Id, Id, MV::ESoftClothCollisionType, const MV::SoftClothCollisionData&, bool)>(
             &S::SetSoftClothCollision)},
        {"SetSoftClothWind",
         SlotOf<R(H, Id, Id, MV::ESoftClothWindType, const MV::SoftClothWindData&, bool)>(&S::SetSoftClothWind)},
        {"UndoLastEdit", SlotOf<R()>(&S::UndoLastEdit)},
        {"SetMaterialSoftClothEnabled", SlotOf<R(Id, bool)>(&S::SetMaterialSoftClothEnabled)},
    };
}

Slots FileServiceSlots()
{
    using S = MV::CFileService;
    return {
        {"LoadWeightImage", SlotOf<R(H, Id, Id, const WS&, int)>(&S::LoadWeightImage)},
        {"LoadSoftIniProfile", SlotOf<R(const WS&)>(&S::LoadSoftIniProfile)},
        {"SaveWeightImage", SlotOf<R(H, Id, Id, const WS&)>(&S::SaveWeightImage)},
    };
}

Slots UiServiceSlots()
{
    using S = MV::CUiService;
    return {
        {"ChangePickMode", SlotOf<R(MV::EPickMode)>(&S::ChangePickMode)},
        {"CancelPickMode", SlotOf<R()>(&S::CancelPickMode)},
        {"SetDialogMode", SlotOf<R(MV::EDialogMode)>(&S::SetDialogMode)},
        {"RefreshScene", SlotOf<R(int)>(&S::RefreshScene)},
        {"LaunchImageEditor", SlotOf<R(const L<WS>&)>(&S::LaunchImageEditor)},
        {"ShowMessageBox", SlotOf<int(const QString&, const QString&, QWidget*, int, int, int)>(&S::ShowMessageBox)},
        {"ShowPanelPage", SlotOf<R(int, int, int)>(&S::ShowPanelPage)},
    };
}

Slots HotKeyServiceSlots()
{
    using S = MV::CHotKeyService;
    return {
        {"RegisterSectionHotKeys", SlotOf<quint64(const L<WS>&, const WS&)>(&S::RegisterSectionHotKeys)},
        {"DisableHotKeyAction", SlotOf<R(QAction*)>(&S::DisableHotKeyAction)},
        {"EnableHotKeyAction", SlotOf<R(QAction*)>(&S::EnableHotKeyAction)},
        {"RegisterEscapeAction", SlotOf<R(quint64, QAction*, QWidget*)>(&S::RegisterEscapeAction)},
    };
}

Slots PluginInterfaceSlots()
{
    using S = MV::CPluginInterface;
    return {
        {"Initialize", SlotOf<R(const QString&, const QString&, MV::CMoviraInterface*)>(&S::Initialize)},
        {"GetContextList", SlotOf<R(QList<QAction*>&)>(&S::GetContextList)},
        {"GetDockWidgetList", SlotOf<R(QList<QDockWidget*>&)>(&S::GetDockWidgetList)},
        {"GetSectionList", SlotOf<R(QList<MV::CSectionInterface*>&)>(&S::GetSectionList)},
        {"GetDialogList", SlotOf<R(QList<QDialog*>&)>(&S::GetDialogList)},
        {"GetMenusList", SlotOf<R(QList<QMenu*>&)>(&S::GetMenusList)},
        {"GetToolBarsList", SlotOf<R(QList<QToolBar*>&)>(&S::GetToolBarsList)},
        {"IsValid", SlotOf<bool(MV::CMoviraInterface*)>(&S::IsValid)},
        {"GetCompatibleApps", SlotOf<Apps()>(&S::GetCompatibleApps)},
        {"GetCurrentApp", SlotOf<Apps()>(&S::GetCurrentApp)},
        {"SetCurrentApp", SlotOf<void(Apps)>(&S::SetCurrentApp)},
        {"RestoreLayout", SlotOf<R()>(&S::RestoreLayout)},
    };
}

Slots SectionInterfaceSlots()
{
    using S = MV::CSectionInterface;
    return {
        {"GetSectionPage", SlotOf<int()>(&S::GetSectionPage)},
        {"GetSectionOrder", SlotOf<int()>(&S::GetSectionOrder)},
        {"GetSectionApplications", SlotOf<int()>(&S::GetSectionApplications)},
        {"GetSectionWidget", SlotOf<QWidget*()>(&S::GetSectionWidget)},
        {"GetSectionExpandState", SlotOf<bool()>(&S::GetSectionExpandState)},
        {"SetSectionExpandState", SlotOf<void(bool)>(&S::SetSectionExpandState)},
        {"AbleToShowSection", SlotOf<bool()>(&S::AbleToShowSection)},
    };
}

Slots UiComponentSlots()
{
    using S = CUiComponent;
    return {
        {"SetupUi", SlotOf<void(CQtUiLoader&)>(&S::SetupUi)},
        {"GetRootWidget", SlotOf<QWidget*()>(&S::GetRootWidget)},
    };
}

/// A virtual destructor takes two slots: one that destroys, one that also frees.
constexpr int destructorSlots = 2;

} // namespace

void TestInterfaceSlots::functionHasItsSlot_data()
{
    QTest::addColumn<int>("slot");
    QTest::addColumn<int>("expected");
    Rows("CMoviraInterface", MoviraInterfaceSlots());
    Rows("CSceneService", SceneServiceSlots());
    Rows("CEditService", EditServiceSlots());
    Rows("CFileService", FileServiceSlots());
    Rows("CUiService", UiServiceSlots());
    Rows("CHotKeyService", HotKeyServiceSlots());
    Rows("CSoftClothService", {{"ApplySingleMaterialSoftCloth",
                                SlotOf<R(H, Id, Id)>(&MV::CSoftClothService::ApplySingleMaterialSoftCloth)}});
    Rows("CAuxService", {{"QueryAuxState", SlotOf<R(int&)>(&MV::CAuxService::QueryAuxState)}});
    Rows("CPluginInterface", PluginInterfaceSlots());
    Rows("CSectionInterface", SectionInterfaceSlots());
    Rows("CUiComponent", UiComponentSlots(), destructorSlots);
}

void TestInterfaceSlots::functionHasItsSlot()
{
    QFETCH(int, slot);
    QFETCH(int, expected);
    QCOMPARE(slot, expected);
}

void TestInterfaceSlots::interfaceHasNoFurtherSlots_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("expected");
    QTest::newRow("CMoviraInterface") << SlotCount<MV::CMoviraInterface>() << 8;
    QTest::newRow("CSceneService") << SlotCount<MV::CSceneService>() << 47;
    QTest::newRow("CEditService") << SlotCount<MV::CEditService>() << 13;
    QTest::newRow("CFileService") << SlotCount<MV::CFileService>() << 3;
    QTest::newRow("CUiService") << SlotCount<MV::CUiService>() << 7;
    QTest::newRow("CHotKeyService") << SlotCount<MV::CHotKeyService>() << 4;
    QTest::newRow("CSoftClothService") << SlotCount<MV::CSoftClothService>() << 1;
    QTest::newRow("CAuxService") << SlotCount<MV::CAuxService>() << 1;
    QTest::newRow("CPluginInterface") << SlotCount<MV::CPluginInterface>() << 12;
    QTest::newRow("CSectionInterface") << SlotCount<MV::CSectionInterface>() << 7 + destructorSlots;
    QTest::newRow("CUiComponent") << SlotCount<CUiComponent>() << 2 + destructorSlots;
}

void TestInterfaceSlots::interfaceHasNoFurtherSlots()
{
    QFETCH(int, count);
    QFETCH(int, expected);
    QCOMPARE(count, expected);
}

SOFTCLOTH_TEST_WITH(TestInterfaceSlots, NoApplication)

#include "tst_interface_slots.moc"
