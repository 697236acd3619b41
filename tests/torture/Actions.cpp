#include "tests/torture/Actions.h"

#include "tests/support/PropertyRows.h"
#include "tests/torture/Stage.h"

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QShortcut>
#include <QTabWidget>
#include <QTest>

namespace Torture {

namespace {

using MV::CEventSender;
using MV::EDialogMode;
using MV::EFileType;
using MV::EPickMode;
using MV::ETextureChannel;
using Objects = BF::CArrayList<BF::CHandle*>;
using S = Stage;

constexpr const char* preset = "SoftClothPreset";
constexpr const char* property = "SoftClothProperty";
constexpr const char* collision = "SoftClothCollision";
constexpr const char* wind = "SoftClothWindSetting";
constexpr const char* dialog = "SoftClothMaterialDlg";

constexpr const char* setProperty = "SetSoftClothProperty";
constexpr const char* setCollision = "SetSoftClothCollision";
constexpr const char* setWind = "SetSoftClothWind";
constexpr const char* hotKeys = "EnableHotKeyAction DisableHotKeyAction";

void Open(S& s)
{
    s.OpenDialog();
}

void Picking(S& s)
{
    s.OpenDialog();
    s.App().SetPickMode(EPickMode::Material);
}

void AnswerOk(S& s)
{
    s.App().Answers().AddButton(QMessageBox::Ok);
}

void PressActive(S& s)
{
    s.Click(preset, "qtActivePhysicsCheckBox");
}

void ClickInDialog(S& s, const char* button)
{
    s.Click(dialog, button);
}

/// The host's image dialog answers with a file of the run.
void OpenImage(S& s, const char* file)
{
    s.App().Answers().AddFile(s.File(file));
    ClickInDialog(s, "qtOpenFilePushButton");
}

/// Calls a slot that no widget triggers.
void Invoke(S& s, const char* slot)
{
    if (QWidget* root = s.Form(preset)) {
        // The form's root is the section itself, or inside it.
        for (QObject* target = root; target; target = target->parent()) {
            if (target->metaObject()->indexOfSlot(slot) >= 0) {
                QMetaObject::invokeMethod(target, QByteArray(slot).chopped(2).constData());
                return;
            }
        }
    }
}

void PressFilter(S& s)
{
    auto* shortcut = s.Form(dialog) ? s.Form(dialog)->window()->findChild<QShortcut*>() : nullptr;
    if (shortcut) {
        QMetaObject::invokeMethod(shortcut, "activated");
    }
}

/// Types into each box of the property section.
std::vector<Action> PropertyEdits()
{
    std::vector<Action> actions;
    for (const PropertyRow& row : PropertyRows::WithBox()) {
        const QByteArray typed = QByteArray::number(row.sample);
        actions.push_back({QByteArray(row.name).replace(' ', '-') + "-edit", nullptr,
                           [box = row.box.name, typed](S& s) { s.Type(property, box, typed); }, setProperty});
    }
    return actions;
}

const std::vector<Action> edits{
    {"mass-arrow", nullptr, [](S& s) { s.Key(property, "qtMassEXSpinBox", Qt::Key_Up, 2); }, setProperty},
    {"stiffness-slide", nullptr, [](S& s) { s.Slide(property, "qtStiffnessCombospinbox", Qt::Key_PageUp); },
     setProperty},
    {"inertia-slide", nullptr, [](S& s) { s.Slide(property, "qtInertiaScaleCombospinbox", Qt::Key_Right); },
     setProperty},
    {"property-fold", nullptr, [](S& s) { s.Click(property, "qtExpandPushButton"); }, ""},
    {"edit-left-typed", nullptr,
     [](S& s) {
         if (auto* box = s.Find<QWidget>(property, "qtMassEXSpinBox")) {
             box->setFocus();
             QTest::keyClick(box, '9');
         }
         s.App().Select({s.flag});
     },
     ""},

    {"rigid-click", nullptr, [](S& s) { s.Click(collision, "qtCollideWithRigidCheckBox"); }, setCollision, "", true},
    {"self-click", nullptr, [](S& s) { s.Click(collision, "qtSelfCollisionCheckBox"); }, setCollision, "", true},
    {"rigid-margin-edit", nullptr, [](S& s) { s.Type(collision, "qtCollideWithRigidMarginDoubleEXSpinBox", "2.25"); },
     setCollision},
    {"self-margin-edit",
     [](S& s) {
         s.Scene().FindSlot(s.First())->cloth.collision.selfCollision = true;
         s.Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
     },
     [](S& s) { s.Type(collision, "qtSelfCollisionMarginDoubleEXSpinBox", "1.75"); }, setCollision},
    {"collision-fold", nullptr, [](S& s) { s.Click(collision, "qtExpandPushButton"); }, ""},

    {"external-x-edit", nullptr, [](S& s) { s.Type(wind, "qtExternalXEXSpinBox", "21"); }, setWind},
    {"external-y-edit", nullptr, [](S& s) { s.Type(wind, "qtExternalYEXSpinBox", "22"); }, setWind},
    {"external-z-edit", nullptr, [](S& s) { s.Type(wind, "qtExternalZEXSpinBox", "-23"); }, setWind},
    {"random-x-edit", nullptr, [](S& s) { s.Type(wind, "qtRandomXEXSpinBox", "24"); }, setWind},
    {"random-y-edit", nullptr, [](S& s) { s.Type(wind, "qtRandomYEXSpinBox", "25"); }, setWind},
    {"random-z-edit", nullptr, [](S& s) { s.Type(wind, "qtRandomZEXSpinBox", "26"); }, setWind},
    {"frequency-edit", nullptr, [](S& s) { s.Type(wind, "qtFrequencyCombodoublespinbox", "7.5"); }, setWind},
    {"frequency-slide", nullptr, [](S& s) { s.Slide(wind, "qtFrequencyCombodoublespinbox", Qt::Key_PageUp); }, setWind},
    {"slider-drag-low",
     [](S& s) {
         s.Scene().FindSlot(s.First())->cloth.wind.randomFactor = {0, 10};
         s.Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
     },
     [](S& s) { s.DragRandomFactor(0, 4); }, setWind},
    {"slider-drag-high",
     [](S& s) {
         s.Scene().FindSlot(s.First())->cloth.wind.randomFactor = {0, 10};
         s.Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged);
     },
     [](S& s) { s.DragRandomFactor(10, 6); }, setWind},
};

const std::vector<Action> presets{
    {"soft-cloth-off", nullptr, PressActive, "SetPhysicsActive", "", true},
    {"soft-cloth-off-in-dialog", Open, PressActive, "SetPhysicsActive SetDialogMode", "", true},
    {"soft-cloth-on-single",
     [](S& s) {
         s.SelectFlag();
         s.MakePlain();
     },
     PressActive, "ApplySingleMaterialSoftCloth SetPhysicsActive", "", true},
    {"soft-cloth-on-several-cancel", [](S& s) { s.MakePlain(); }, PressActive, "", "SetPhysicsActive", true},
    {"soft-cloth-on-several-ok", [](S& s) { s.MakePlain(); },
     [](S& s) {
         AnswerOk(s);
         PressActive(s);
     },
     "SetDialogMode", "", true},
    {"soft-cloth-on-none",
     [](S& s) {
         s.MakePlain();
         s.IgnoreAll(s.hero);
     },
     PressActive, "SetPhysicsActive", "", true},
    {"soft-cloth-on-again", [](S& s) { s.App().SetSoftClothActive(s.hero, false); }, PressActive, "SetPhysicsActive",
     "", true},
    {"gravity-click", nullptr, [](S& s) { s.Click(preset, "qtUseWorldGravityCheckBox"); }, "SetUseGlobalGravity", "",
     true},
    {"affect-all-click", nullptr, [](S& s) { s.Click(preset, "qtAffectAllMaterialsCheckBox"); }, ""},
    {"affect-all-then-mass", nullptr,
     [](S& s) {
         s.Click(preset, "qtAffectAllMaterialsCheckBox");
         s.Type(property, "qtMassEXSpinBox", "55");
     },
     setProperty},
    {"rigid-body", [](S& s) { s.SetType(5); }, [](S& s) { s.Click(preset, "qtRigidBodyRadioButton"); }, "",
     "ConvertToRigidBody ShowPanelPage", true},
    {"paint-on", nullptr, [](S& s) { s.Click(preset, "qtPaintPushButton"); }, "SetDialogMode"},
    {"paint-off", Open, [](S& s) { s.Click(preset, "qtPaintPushButton"); }, "SetDialogMode", "", true},
    {"preset-cloth", nullptr, [](S& s) { s.DoubleClickPreset("qtPresetClothListWidget", 2); },
     "SetSoftClothProperty SetSoftClothCollision", "SetUseGlobalGravity", true},
    {"preset-hair", nullptr, [](S& s) { s.DoubleClickPreset("qtPresetHairListWidget", 0); },
     "SetSoftClothProperty SetSoftClothCollision", "SetUseGlobalGravity", true},
    {"preset-wind", nullptr, [](S& s) { s.DoubleClickPreset("qtPresetWindListWidget", 1); }, setWind, "", true},
    {"preset-without-file",
     [](S& s) {
         if (auto* list = s.Find<QListWidget>(preset, "qtPresetWindListWidget")) {
             list->item(2)->setData(Qt::UserRole, s.File("missing.ini"));
         }
     },
     [](S& s) { s.DoubleClickPreset("qtPresetWindListWidget", 2); }, "", "", true},
    {"profile-open", nullptr,
     [](S& s) { s.WithFileDialog([&s] { s.Click(preset, "qtOpenFilePushButton"); }, s.File("profile.ini")); },
     "SetUseGlobalGravity SetSoftClothProperty SetSoftClothCollision SetSoftClothWind"},
    {"profile-open-cancel", nullptr,
     [](S& s) { s.WithFileDialog([&s] { s.Click(preset, "qtOpenFilePushButton"); }, {}); }, ""},
    {"profile-save", nullptr,
     [](S& s) { s.WithFileDialog([&s] { s.Click(preset, "qtSaveFilePushButton"); }, s.File("saved.ini")); }, ""},
    {"profile-save-over", [](S& s) { QFile::copy(s.File("profile.ini"), s.File("old.ini")); },
     [](S& s) { s.WithFileDialog([&s] { s.Click(preset, "qtSaveFilePushButton"); }, s.File("old.ini")); }, ""},
    {"host-profile-load", nullptr,
     [](S& s) { s.WithFileDialog([&s] { Invoke(s, "OnClickLoadIniPushButton()"); }, s.File("profile.ini")); },
     "LoadSoftIniProfile"},
    {"preset-tab", nullptr,
     [](S& s) {
         if (auto* tabs = s.Find<QTabWidget>(preset, "qtPresetTabWidget")) {
             tabs->setCurrentIndex(1);
         }
     },
     ""},
    {"preset-fold", nullptr, [](S& s) { s.Click(preset, "qtExpandPushButton"); }, ""},
};

const std::vector<Action> dialogs{
    {"row-click", Open, [](S& s) { s.ClickRow(2); }, ""},
    {"row-key", Open, [](S& s) { s.Key(dialog, "qtMaterialListWidget", Qt::Key_Down); }, ""},
    {"image-open", Open, [](S& s) { OpenImage(s, "white.png"); }, "LoadWeightImage RefreshScene", "UndoLastEdit"},
    {"image-open-cancel", Open, [](S& s) { ClickInDialog(s, "qtOpenFilePushButton"); }, ""},
    {"image-open-missing", Open, [](S& s) { OpenImage(s, "missing.png"); }, ""},
    {"image-open-black", Open, [](S& s) { OpenImage(s, "black.png"); }, "LoadWeightImage UndoLastEdit RefreshScene"},
    {"image-open-broken", Open, [](S& s) { OpenImage(s, "text.png"); }, "LoadWeightImage UndoLastEdit RefreshScene"},
    {"image-save", [](S& s) { s.LinkWeight("white.png"); },
     [](S& s) {
         s.App().Answers().AddFile(s.File("copy.png"));
         ClickInDialog(s, "qtSaveFilePushButton");
     },
     "SaveWeightImage"},
    {"image-save-unwritable", [](S& s) { s.LinkWeight("white.png"); },
     [](S& s) {
         s.App().Answers().AddFile(s.File("no-folder/copy.png"));
         ClickInDialog(s, "qtSaveFilePushButton");
     },
     "SaveWeightImage"},
    {"image-save-cancel", [](S& s) { s.LinkWeight("white.png"); },
     [](S& s) { ClickInDialog(s, "qtSaveFilePushButton"); }, ""},
    {"image-delete", [](S& s) { s.LinkWeight("white.png"); }, [](S& s) { ClickInDialog(s, "qtDeleteFilePushButton"); },
     "DeleteWeightImage"},
    {"image-embed", [](S& s) { s.LinkWeight("half.bmp"); }, [](S& s) { ClickInDialog(s, "qtEmbedTexturePushButton"); },
     "EmbedWeightImage"},
    {"image-edit", [](S& s) { s.EmbedWeight("white.png"); }, [](S& s) { ClickInDialog(s, "qtLaunchPushButton"); },
     "LaunchImageEditor"},
    {"texture-edit",
     [](S& s) {
         s.OpenDialog();
         s.ClickLabel("qtDiffuseItemLabel");
     },
     [](S& s) { ClickInDialog(s, "qtLaunchPushButton"); }, "LaunchImageEditor"},
    {"uv-reference", Open, [](S& s) { ClickInDialog(s, "qtUvRefPushButton"); }, "LaunchImageEditor"},
    {"uv-reference-without",
     [](S& s) {
         s.OpenDialog();
         s.ClickRow(1);
     },
     [](S& s) { ClickInDialog(s, "qtUvRefPushButton"); }, ""},
    {"open-path", [](S& s) { s.LinkWeight("white.png"); }, [](S& s) { ClickInDialog(s, "qtOpenPathPushButton"); }, ""},
    {"pick", Open, [](S& s) { ClickInDialog(s, "qtPickMaterialPushButton"); }, "ChangePickMode", hotKeys},
    {"escape-ends-pick", Picking,
     [](S& s) {
         if (auto* action = s.Form(dialog)
                                ? s.Form(dialog)->window()->findChild<QAction*>(QStringLiteral("qtDoEscapeAction"))
                                : nullptr) {
             action->trigger();
         }
     },
     "ChangePickMode", hotKeys},
    {"dialog-close", Open,
     [](S& s) {
         if (QWidget* root = s.Form(dialog)) {
             root->window()->close();
         }
     },
     "SetDialogMode", "", true},
    {"dialog-escape", Picking,
     [](S& s) {
         if (QWidget* root = s.Form(dialog)) {
             QTest::keyClick(root->window(), Qt::Key_Escape);
         }
     },
     "", "SetDialogMode ChangePickMode CancelPickMode EnableHotKeyAction DisableHotKeyAction", true},
    {"brightness-edit", [](S& s) { s.EmbedWeight("white.png"); },
     [](S& s) { s.Type(dialog, "qtBrightnessCombospinbox", "-20"); }, "SetWeightImageAdjust", "UndoLastEdit"},
    {"contrast-slide", [](S& s) { s.EmbedWeight("half.bmp"); },
     [](S& s) { s.Slide(dialog, "qtContrastCombospinbox", Qt::Key_PageUp); }, "SetWeightImageAdjust", "UndoLastEdit"},
    {"brightness-too-dark", [](S& s) { s.EmbedWeight("half.bmp"); },
     [](S& s) { s.Type(dialog, "qtBrightnessCombospinbox", "-100"); }, "", "SetWeightImageAdjust UndoLastEdit", true},
    {"label-diffuse", Open, [](S& s) { s.ClickLabel("qtDiffuseItemLabel"); }, ""},
    {"label-opacity", Open, [](S& s) { s.ClickLabel("qtOpacityItemLabel"); }, ""},
    {"label-weighting", [](S& s) { s.LinkWeight("half.bmp"); }, [](S& s) { s.ClickLabel("qtWeightingItemLabel"); }, ""},
    {"label-double-click", Open,
     [](S& s) {
         s.App().Answers().AddFile(s.File("half.bmp"));
         s.DoubleClickLabel("qtWeightingItemLabel");
     },
     "LoadWeightImage RefreshScene", "UndoLastEdit"},
    {"label-drop", Open, [](S& s) { s.Drop("qtWeightingItemLabel", s.File("half.bmp")); },
     "LoadWeightImage RefreshScene", "UndoLastEdit"},
    {"label-drop-elsewhere", Open, [](S& s) { s.Drop("qtDiffuseItemLabel", s.File("half.bmp")); }, ""},
    {"label-drop-text", Open, [](S& s) { s.Drop("qtWeightingItemLabel", s.File("notes.txt")); }, ""},
    {"table-confirm", Open, [](S& s) { s.UseTable("qtConfirmPushButton"); },
     "SetMaterialSoftClothEnabled RefreshScene"},
    {"table-cancel", Open, [](S& s) { s.UseTable("qtCancelPushButton"); }, ""},
    {"filter",
     [](S& s) {
         s.SetType(2);
         s.OpenDialog();
         QFile names(s.File("names.ini"));
         if (names.open(QIODevice::WriteOnly)) {
             names.write("[Ignored_Material_Name_List]\nBody=Hair\n");
         }
     },
     [](S& s) { s.WithFileDialog([&s] { PressFilter(s); }, s.File("names.ini")); }, "SetIgnoredMaterialNames"},
    {"filter-cancel",
     [](S& s) {
         s.SetType(2);
         s.OpenDialog();
     },
     [](S& s) { s.WithFileDialog([&s] { PressFilter(s); }, {}); }, ""},
    {"filter-other-type", Open, PressFilter, ""},
};

const std::vector<Action> hostEvents{
    {"selection-other", nullptr, [](S& s) { s.App().Select({s.flag}); }, ""},
    {"selection-other-in-dialog", Open, [](S& s) { s.App().Select({s.flag}); }, ""},
    {"selection-none", Open, [](S& s) { s.App().Select({}); }, "SetDialogMode"},
    {"selection-two", Open,
     [](S& s) {
         s.App().Select({s.hero, s.flag});
     },
     "SetDialogMode"},
    {"selection-again", Open, [](S& s) { s.Send("ObjectSelectionChanged", &CEventSender::ObjectSelectionChanged); },
     ""},
    {"scene-loaded", Picking, [](S& s) { s.LoadOtherScene(); }, "",
     "SetDialogMode CancelPickMode EnableHotKeyAction DisableHotKeyAction"},
    {"after-file-loaded", Open,
     [](S& s) { s.Send("AfterFileLoaded", &CEventSender::AfterFileLoaded, EFileType::Model); }, ""},
    {"file-loaded", Open, [](S& s) { s.Send("FileLoaded", &CEventSender::FileLoaded, EFileType::Model); }, "",
     "SetDialogMode", true},
    {"shown-object-deleted", Open, [](S& s) { s.App().DeleteObjects({s.hero}); }, "SetDialogMode"},
    {"other-object-deleted", Open, [](S& s) { s.App().DeleteObjects({s.flag}); }, ""},
    {"engine-changed", Open, [](S& s) { s.App().SetPhysicsEngine(2); }, "SetDialogMode"},
    {"engine-changed-back", [](S& s) { s.App().SetPhysicsEngine(2); }, [](S& s) { s.App().SetPhysicsEngine(1); }, ""},
    {"launched-image-changed", Open,
     [](S& s) { s.Send("LaunchedImageChanged", &CEventSender::LaunchedImageChanged, Objects{s.hero}); }, ""},
    {"mode-on", nullptr, [](S& s) { s.App().SetDialogMode(EDialogMode::WeightMap); }, ""},
    {"mode-off", Open, [](S& s) { s.App().SetDialogMode(EDialogMode::None); }, ""},
    {"mode-unknown", Open, [](S& s) { s.App().SetDialogMode(EDialogMode(7)); }, ""},
    {"data-topology", Open, [](S& s) { s.SendChanged(0x2); }, ""},
    {"data-replaced", Open, [](S& s) { s.SendChanged(0x4); }, ""},
    {"data-material-list", Open, [](S& s) { s.SendChanged(0x8); }, ""},
    {"data-removed", Open, [](S& s) { s.SendChanged(0x40); }, ""},
    {"data-names", Open, [](S& s) { s.App().RenameMaterial(s.First().material, QStringLiteral("Leather")); }, ""},
    {"data-list-and-names", Open, [](S& s) { s.SendChanged(0x108); }, ""},
    {"data-list-and-topology", Open, [](S& s) { s.SendChanged(0xa); }, ""},
    {"data-everything", Open, [](S& s) { s.SendChanged(0xffffffff); }, ""},
    {"data-unknown", Open, [](S& s) { s.SendChanged(0xfffffeb1); }, ""},
    {"data-other-object", Open, [](S& s) { s.SendChanged(0x140, false); }, ""},
    {"hierarchy-changed", Open, [](S& s) { s.Send("HierarchyChanged", &CEventSender::HierarchyChanged); }, ""},
    {"about-to-convert", [](S& s) { s.SetType(5); }, [](S& s) { s.App().SetConvertState(s.hero, 1); }, ""},
    {"traits-blocked", Open,
     [](S& s) {
         Host::ObjectTraits traits;
         traits.blocked = traits.blockedEx = true;
         s.App().SetTraits(s.hero, traits);
     },
     "SetDialogMode"},
    {"played", Open, [](S& s) { s.App().SetPlaying(true); }, ""},
    {"stopped",
     [](S& s) {
         s.OpenDialog();
         s.App().SetPlaying(true);
     },
     [](S& s) { s.App().SetPlaying(false); }, ""},
    {"undo", Open, [](S& s) { s.App().Undo(); }, "", "SetDialogMode SetUseGlobalGravity"},
    {"undo-announced", Open, [](S& s) { s.Send("UndoRedoDone", &CEventSender::UndoRedoDone); }, ""},
    {"redo", [](S& s) { s.App().Undo(); }, [](S& s) { s.App().Redo(); }, "", "SetDialogMode SetUseGlobalGravity"},
    {"pick-mode-on", Open, [](S& s) { s.App().SetPickMode(EPickMode::Material); }, "EnableHotKeyAction"},
    {"pick-mode-off", Picking, [](S& s) { s.App().SetPickMode(EPickMode::None); }, "DisableHotKeyAction"},
    {"picked-material", Picking,
     [](S& s) { s.Send("PickedMaterialIndexChanged", &CEventSender::PickedMaterialIndexChanged, s.hero, quint64(2)); },
     ""},
    {"picked-no-material", Picking,
     [](S& s) {
         s.Send("PickedMaterialIndexChanged", &CEventSender::PickedMaterialIndexChanged, s.hero, quint64(1) << 60);
     },
     ""},
    {"texture-diffuse", Open,
     [](S& s) {
         s.Send("PickedMaterialTextureChanged", &CEventSender::PickedMaterialTextureChanged, s.hero,
                BF::CArrayList<unsigned long long>{0, 1}, ETextureChannel::Diffuse);
     },
     ""},
    {"texture-both", Open,
     [](S& s) {
         s.Send("PickedMaterialTextureChanged", &CEventSender::PickedMaterialTextureChanged, s.hero,
                BF::CArrayList<unsigned long long>{0}, ETextureChannel::DiffuseAndOpacity);
     },
     ""},
    {"texture-of-other", Open,
     [](S& s) {
         s.Send("PickedMaterialTextureChanged", &CEventSender::PickedMaterialTextureChanged, s.flag,
                BF::CArrayList<unsigned long long>{0}, ETextureChannel::Opacity);
     },
     ""},
    {"several-materials-ok", nullptr,
     [](S& s) {
         AnswerOk(s);
         s.Send("PhysicsSoftClothMultiMaterialsDetected", &CEventSender::PhysicsSoftClothMultiMaterialsDetected,
                s.hero);
     },
     "SetDialogMode"},
    {"several-materials-cancel", Open,
     [](S& s) {
         s.Send("PhysicsSoftClothMultiMaterialsDetected", &CEventSender::PhysicsSoftClothMultiMaterialsDetected,
                s.hero);
     },
     "CancelMultiMaterialSoftCloth"},
    {"images-load-start", Open, [](S& s) { s.Send("ImageAsyncLoadStart", &CEventSender::ImageAsyncLoadStart); }, ""},
    {"images-load-done",
     [](S& s) {
         s.OpenDialog();
         s.Send("ImageAsyncLoadStart", &CEventSender::ImageAsyncLoadStart);
     },
     [](S& s) { s.Send("ImageAsyncLoadAllDone", &CEventSender::ImageAsyncLoadAllDone); }, ""},
    {"start", nullptr, [](S& s) { s.panel.Start(s.family); }, "RegisterEscapeAction DisableHotKeyAction"},
    {"start-in-dialog", Picking, [](S& s) { s.panel.Start(s.family); }, "RegisterEscapeAction DisableHotKeyAction",
     "SetDialogMode CancelPickMode"},
};

} // namespace

const std::vector<Action>& Actions()
{
    static const std::vector<Action> all = [] {
        std::vector<Action> joined = PropertyEdits();
        for (const auto* part : {&edits, &presets, &dialogs, &hostEvents}) {
            joined.insert(joined.end(), part->begin(), part->end());
        }
        return joined;
    }();
    return all;
}

} // namespace Torture
