#include "preset/SoftClothPresetUiComponent.h"

#include "ui/QtUiLoader.h"

#include <QCheckBox>
#include <QFrame>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

/// Looks up \p base followed by nothing or by an underscore and a number, for each of \p numbers; 0 stands for nothing.
template <class Layout, std::size_t count>
std::array<Layout*, count> FindLayouts(CQtUiLoader& loader, const QString& base, const std::array<int, count>& numbers)
{
    std::array<Layout*, count> layouts{};
    for (std::size_t i = 0; i < count; ++i) {
        layouts[i] = loader.Find<Layout>(numbers[i] == 0 ? base : QStringLiteral("%1_%2").arg(base).arg(numbers[i]));
    }
    return layouts;
}

} // namespace

void CSoftClothPresetUiComponent::SetupUi(CQtUiLoader& loader)
{
    verticalLayouts =
        FindLayouts<QVBoxLayout, 10>(loader, QStringLiteral("verticalLayout"), {0, 2, 3, 4, 5, 6, 7, 8, 9, 16});
    horizontalLayouts = FindLayouts<QHBoxLayout, 5>(loader, QStringLiteral("horizontalLayout"), {0, 2, 4, 5, 6});
    line_13 = loader.Find<QFrame>(QStringLiteral("line_13"));
    label = loader.Find<QLabel>(QStringLiteral("label"));

    activePhysicsCheckBox = loader.Find<QCheckBox>(QStringLiteral("qtActivePhysicsCheckBox"));
    affectAllMaterialsCheckBox = loader.Find<QCheckBox>(QStringLiteral("qtAffectAllMaterialsCheckBox"));
    useWorldGravityCheckBox = loader.Find<QCheckBox>(QStringLiteral("qtUseWorldGravityCheckBox"));
    baseGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtBaseGroupBox"));
    sectionGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtSectionGroupBox"));
    softPresetGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtSoftPresetGroupBox"));
    weightSelectGroupBox = loader.Find<QGroupBox>(QStringLiteral("qtWeightSelectGroupBox"));
    presetClothListWidget = loader.Find<QListWidget>(QStringLiteral("qtPresetClothListWidget"));
    presetHairListWidget = loader.Find<QListWidget>(QStringLiteral("qtPresetHairListWidget"));
    presetWindListWidget = loader.Find<QListWidget>(QStringLiteral("qtPresetWindListWidget"));
    expandButton = loader.Find<QPushButton>(QStringLiteral("qtExpandPushButton"));
    openFilePushButton = loader.Find<QPushButton>(QStringLiteral("qtOpenFilePushButton"));
    paintPushButton = loader.Find<QPushButton>(QStringLiteral("qtPaintPushButton"));
    saveFilePushButton = loader.Find<QPushButton>(QStringLiteral("qtSaveFilePushButton"));
    rigidBodyRadioButton = loader.Find<QRadioButton>(QStringLiteral("qtRigidBodyRadioButton"));
    softClothRadioButton = loader.Find<QRadioButton>(QStringLiteral("qtSoftClothRadioButton"));
    presetTabWidget = loader.Find<QTabWidget>(QStringLiteral("qtPresetTabWidget"));
    root = loader.Find<QWidget>(QStringLiteral("SoftClothPreset"));
    clothTab = loader.Find<QWidget>(QStringLiteral("qtClothTab"));
    hairTab = loader.Find<QWidget>(QStringLiteral("qtHairTab"));
    windTab = loader.Find<QWidget>(QStringLiteral("qtWindTab"));
}

QWidget* CSoftClothPresetUiComponent::GetRootWidget()
{
    return root;
}
