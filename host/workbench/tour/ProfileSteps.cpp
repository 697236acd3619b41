#include "host/workbench/tour/TourHands.h"

#include <QAction>
#include <QFile>
#include <QSpinBox>

namespace Host {

namespace {

constexpr const char* presetForm = "SoftClothPreset";

QString ProfilePath(const TourHands& hands)
{
    return hands.FileInFolder(QStringLiteral("profile.ini"));
}

QString SaveProfile(TourHands& hands)
{
    QFile::remove(ProfilePath(hands)); // Over an existing file the dialog would ask.
    const QString problem = hands.ChooseFile("qtSaveFilePushButton", presetForm, ProfilePath(hands));
    return problem.isEmpty() && !QFile::exists(ProfilePath(hands)) ? QStringLiteral("no profile was written") : problem;
}

QString SelectFlag(TourHands& hands)
{
    const Object* before = hands.Selected();
    if (!hands.Window().ImportModel(hands.DemoFile(QStringLiteral("demo-flag.obj")))) {
        return QStringLiteral("the flag could not be imported");
    }
    return hands.Selected() && hands.Selected() != before ? QString() : QStringLiteral("the flag is not selected");
}

/// A single material needs no question.
QString SwitchFlagOn(TourHands& hands)
{
    const QString problem = hands.Click("qtActivePhysicsCheckBox");
    if (!problem.isEmpty()) {
        return problem;
    }
    return hands.EditedCloth() ? hands.CheckCalled("ApplySingleMaterialSoftCloth")
                               : QStringLiteral("the flag did not become soft cloth");
}

QString LoadProfile(TourHands& hands)
{
    const int stepsBefore = hands.CurrentScene().UndoStack().index();
    QString problem = hands.ChooseFile("qtOpenFilePushButton", presetForm, ProfilePath(hands));
    if (!problem.isEmpty()) {
        return problem;
    }
    const ClothState& cloth = *hands.EditedCloth();
    problem = TourHands::CheckNumber(QStringLiteral("the flag's mass"), double(cloth.property.mass), 16);
    if (problem.isEmpty()) {
        problem = TourHands::CheckNumber(QStringLiteral("the flag's margin"), double(cloth.collision.rigidMargin), 2.5);
    }
    if (problem.isEmpty()) {
        problem = TourHands::CheckNumber(QStringLiteral("the flag's wind"),
                                         double(cloth.wind.externalAcceleration.front()), -120);
    }
    return problem.isEmpty() && hands.CurrentScene().UndoStack().index() == stepsBefore
               ? QStringLiteral("there is nothing to undo")
               : problem;
}

QString UndoLoad(TourHands& hands)
{
    auto* undo = hands.Find<QAction>("undoAction");
    constexpr int mostSteps = 50;
    for (int i = 0; i < mostSteps && hands.EditedCloth() && hands.EditedCloth()->property.mass == 16; ++i) {
        undo->trigger();
    }
    if (!hands.EditedCloth()) {
        return QStringLiteral("more than the profile was undone");
    }
    return TourHands::CheckNumber(QStringLiteral("the mass in the box"),
                                  hands.Find<QSpinBox>("qtMassEXSpinBox")->value(),
                                  double(hands.EditedCloth()->property.mass));
}

} // namespace

std::vector<TourStep> ProfileSteps(TourHands& hands)
{
    return {
        {"profile-saved", [&hands] { return SaveProfile(hands); }},
        {"another-object", [&hands] { return SelectFlag(hands); }},
        {"single-material-on", [&hands] { return SwitchFlagOn(hands); }},
        {"profile-loaded", [&hands] { return LoadProfile(hands); }},
        {"profile-undone", [&hands] { return UndoLoad(hands); }},
    };
}

} // namespace Host
