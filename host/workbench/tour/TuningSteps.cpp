#include "host/workbench/tour/TourHands.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QLocale>

#include <cmath>

namespace Host {

namespace {

constexpr double newMargin = 2.5;
constexpr const char* marginBox = "qtCollideWithRigidMarginDoubleEXSpinBox";

/// The second preset of the cloth tab.
QString ApplyPreset(TourHands& hands)
{
    auto& list = *hands.Find<QListWidget>("qtPresetClothListWidget");
    if (!list.isEnabled() || list.count() < 2 || list.item(1)->icon().isNull()) {
        return QStringLiteral("the gallery offers no second cloth");
    }
    const ClothState before = *hands.EditedCloth();
    TourHands::ClickRow(list, 1, true);
    return *hands.EditedCloth() == before ? QStringLiteral("the preset changed nothing")
                                          : hands.CheckCalled("SetSoftClothProperty");
}

QString EditMargin(TourHands& hands)
{
    TourHands::Type(*hands.Find<QAbstractSpinBox>(marginBox), QLocale().toString(newMargin));
    const QString problem = TourHands::CheckNumber(QStringLiteral("the host's margin"),
                                                   double(hands.EditedCloth()->collision.rigidMargin), newMargin);
    return problem.isEmpty() ? hands.CheckCalled("SetSoftClothCollision") : problem;
}

QString UndoEdit(TourHands& hands)
{
    hands.Find<QAction>("undoAction")->trigger();
    const double margin = double(hands.EditedCloth()->collision.rigidMargin);
    if (margin == newMargin) {
        return QStringLiteral("the edit stays");
    }
    const auto* box = hands.Find<QDoubleSpinBox>(marginBox);
    return std::abs(box->value() - margin) < 0.0005 ? QString()
                                                    : QStringLiteral("the box still shows %1").arg(box->value());
}

QString RedoEdit(TourHands& hands)
{
    hands.Find<QAction>("redoAction")->trigger();
    return hands.EditedCloth()->collision.rigidMargin == float(newMargin) &&
                   std::abs(hands.Find<QDoubleSpinBox>(marginBox)->value() - newMargin) < 0.0005
               ? QString()
               : QStringLiteral("the edit did not come back");
}

QString EditProperty(TourHands& hands)
{
    TourHands::Type(*hands.Find<QAbstractSpinBox>("qtMassEXSpinBox"), QStringLiteral("16"));
    const QString problem =
        TourHands::CheckNumber(QStringLiteral("the host's mass"), double(hands.EditedCloth()->property.mass), 16);
    return problem.isEmpty() ? hands.CheckCalled("SetSoftClothProperty") : problem;
}

QString EditWind(TourHands& hands)
{
    TourHands::Type(*hands.Find<QAbstractSpinBox>("qtExternalXEXSpinBox"), QStringLiteral("-120"));
    const QString problem =
        TourHands::CheckNumber(QStringLiteral("the host's acceleration"),
                               double(hands.EditedCloth()->wind.externalAcceleration.front()), -120);
    return problem.isEmpty() ? hands.CheckCalled("SetSoftClothWind") : problem;
}

QString DragRandomFactor(TourHands& hands)
{
    TourHands::ScrollTo(*hands.Find<QWidget>("qtRandomFactorWidget"));
    QWidget* slider = hands.Find<QWidget>("qtRandomFactorWidget")->focusProxy();
    // Handles are 17 pixels wide and move over the rest of the slider, which counts from 0 to 10.
    const auto handle = [slider](int value) { return QPoint(8 + (slider->width() - 17) * value / 10, 16); };
    TourHands::Drag(*slider, handle(int(hands.EditedCloth()->wind.randomFactor.back())), handle(7));
    const QString problem = TourHands::CheckNumber(QStringLiteral("the host's random factor"),
                                                   double(hands.EditedCloth()->wind.randomFactor.back()), 7);
    return problem.isEmpty() ? hands.CheckCalled("SetSoftClothWind") : problem;
}

} // namespace

std::vector<TourStep> TuningSteps(TourHands& hands)
{
    return {
        {"preset-applied", [&hands] { return ApplyPreset(hands); }},
        {"margin-edited", [&hands] { return EditMargin(hands); }},
        {"edit-undone", [&hands] { return UndoEdit(hands); }},
        {"edit-redone", [&hands] { return RedoEdit(hands); }},
        {"property-edited", [&hands] { return EditProperty(hands); }},
        {"wind-edited", [&hands] { return EditWind(hands); }},
        {"random-factor-dragged", [&hands] { return DragRandomFactor(hands); }},
    };
}

} // namespace Host
