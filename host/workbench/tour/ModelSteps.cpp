#include "host/workbench/tour/TourHands.h"

#include <QGroupBox>
#include <QMessageBox>

#include <algorithm>

namespace Host {

namespace {

QString ShowModel(TourHands& hands)
{
    const QWidget* section = hands.Find<QWidget>("SoftClothCollision");
    if (!hands.Selected()) {
        return QStringLiteral("no object is selected");
    }
    if (!section || !section->isVisible()) {
        return QStringLiteral("the collision section is not shown");
    }
    return section->findChild<QGroupBox*>(QStringLiteral("qtSectionGroupBox"))->isEnabled()
               ? QStringLiteral("the collision section is enabled without soft cloth")
               : QString();
}

/// With several materials the panel asks which one to weight, and opens the material dialog for it.
QString SwitchSoftClothOn(TourHands& hands)
{
    const std::vector<ClothAddress> all = Scene::SlotsOf(*hands.Selected());
    const auto offered = std::count_if(all.begin(), all.end(), [&hands](const ClothAddress& address) {
        return hands.CurrentScene().MayTakePart(address.material);
    });
    const bool asks = offered > 1;
    if (asks) {
        hands.App().Answers().AddButton(QMessageBox::Ok);
        hands.ExpectMessages(1);
    }
    const QString problem = hands.Click("qtActivePhysicsCheckBox");
    if (!problem.isEmpty()) {
        return problem;
    }
    if (!asks) {
        return hands.EditedCloth() ? hands.CheckCalled("SetPhysicsActive")
                                   : QStringLiteral("nothing became soft cloth");
    }
    return hands.Find<QWidget>("SoftClothMaterialDlg")->isVisible() ? hands.CheckCalled("ShowMessageBox")
                                                                    : QStringLiteral("no material is asked for");
}

QString FoldSection(TourHands& hands)
{
    const auto* group = hands.Find<QGroupBox>("qtSectionGroupBox", "SoftClothCollision");
    for (const bool unfolded : {false, true, false}) {
        const QString problem = hands.Click("qtExpandPushButton", "SoftClothCollision");
        if (!problem.isEmpty()) {
            return problem;
        }
        if (group->isVisible() != unfolded) {
            return QStringLiteral("the section does not fold");
        }
    }
    return {};
}

QString DeselectObject(TourHands& hands)
{
    hands.App().Select({});
    return hands.Find<QWidget>("SoftClothCollision")->isVisible() ? QStringLiteral("the section is still shown")
                                                                  : QString();
}

} // namespace

std::vector<TourStep> ModelSteps(TourHands& hands)
{
    return {
        {"model-selected", [&hands] { return ShowModel(hands); }},
        {"soft-cloth-on", [&hands] { return SwitchSoftClothOn(hands); }},
    };
}

std::vector<TourStep> ClosingSteps(TourHands& hands)
{
    return {
        {"section-folded", [&hands] { return FoldSection(hands); }},
        {"nothing-selected", [&hands] { return DeselectObject(hands); }},
    };
}

} // namespace Host
