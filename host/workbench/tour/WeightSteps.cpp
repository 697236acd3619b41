#include "host/workbench/tour/TourHands.h"

#include <QCheckBox>
#include <QDialog>
#include <QImage>
#include <QSpinBox>
#include <QTableWidget>

namespace Host {

namespace {

constexpr const char* dialogForm = "SoftClothMaterialDlg";
constexpr const char* listName = "qtMaterialListWidget";
constexpr int newBrightness = 20;

QString OpenDialog(TourHands& hands)
{
    // Where several materials could become soft cloth, the dialog is open already.
    if (!hands.Find<QWidget>(dialogForm)->isVisible()) {
        const QString problem = hands.Click("qtPaintPushButton");
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return hands.Find<QListWidget>(listName)->count() > 0 ? QString() : QStringLiteral("the list is empty");
}

QString ChooseMaterial(TourHands& hands)
{
    auto& list = *hands.Find<QListWidget>(listName);
    TourHands::ClickRow(list, list.count() - 1);
    return list.currentRow() == list.count() - 1 ? QString() : QStringLiteral("the last material is not chosen");
}

QString LoadImage(TourHands& hands)
{
    const QString path = hands.DemoFile(QStringLiteral("weights-hanging.png"));
    hands.App().Answers().AddFile(path);
    const QString problem = hands.Click("qtOpenFilePushButton", dialogForm);
    if (!problem.isEmpty()) {
        return problem;
    }
    const ClothState* cloth = hands.EditedCloth();
    return cloth && cloth->weight.image.filePath == path ? hands.CheckCalled("LoadWeightImage")
                                                         : QStringLiteral("the material has no weight image");
}

/// Has a file chosen for the weight image that is no good: one message, and everything is as it was.
QString LoadBadImage(TourHands& hands, const QString& path)
{
    const WeightImage before = hands.EditedCloth()->weight;
    const int steps = hands.CurrentScene().UndoStack().count();
    hands.App().Answers().AddFile(path);
    hands.ExpectMessages(1);
    const QString problem = hands.Click("qtOpenFilePushButton", dialogForm);
    if (!problem.isEmpty()) {
        return problem;
    }
    return hands.EditedCloth()->weight == before && hands.CurrentScene().UndoStack().count() == steps
               ? QString()
               : QStringLiteral("the former image is not back");
}

QString LoadBlackImage(TourHands& hands)
{
    QImage black(16, 16, QImage::Format_Grayscale8);
    black.fill(0);
    const QString path = hands.FileInFolder(QStringLiteral("black.png"));
    return black.save(path) ? LoadBadImage(hands, path) : QStringLiteral("no black image could be written");
}

QString LoadDamagedImage(TourHands& hands)
{
    return LoadBadImage(hands, hands.DemoFile(QStringLiteral("demo-flag.obj")));
}

QString SaveImageNowhere(TourHands& hands)
{
    hands.App().Answers().AddFile(hands.FileInFolder(QStringLiteral("missing/weights.png")));
    hands.ExpectMessages(1);
    const QString problem = hands.Click("qtSaveFilePushButton", dialogForm);
    return problem.isEmpty() ? hands.CheckCalled("SaveWeightImage") : problem;
}

QString EmbedImage(TourHands& hands)
{
    const QString problem = hands.Click("qtEmbedTexturePushButton");
    if (!problem.isEmpty()) {
        return problem;
    }
    const WeightImage& weight = hands.EditedCloth()->weight;
    return weight.image.filePath.isEmpty() && !weight.IsNone() ? QString()
                                                               : QStringLiteral("the image is not embedded");
}

QString ChangeBrightness(TourHands& hands)
{
    auto* box = hands.Find<QWidget>("qtBrightnessCombospinbox")->findChild<QSpinBox*>();
    if (!box->isEnabled()) {
        return QStringLiteral("brightness is disabled");
    }
    TourHands::Type(*box, QString::number(newBrightness));
    return TourHands::CheckNumber(QStringLiteral("the host's brightness"), hands.EditedCloth()->weight.brightness,
                                  newBrightness);
}

/// Takes the tick of the first material away and confirms.
QString NarrowTable(TourHands& hands)
{
    auto& list = *hands.Find<QListWidget>(listName);
    const int before = list.count();
    if (before < 2) {
        return {}; // The only material is the one that the tour works with.
    }
    const QString problem = hands.WithModalWindow<QDialog>(
        [&hands] { return hands.Click("qtShowMaterialTableButton"); },
        [&hands](QDialog& table) {
            auto* rows = table.findChild<QTableWidget*>();
            auto* box = rows->cellWidget(0, 0)->findChild<QCheckBox*>();
            if (!box->isChecked()) {
                return QStringLiteral("the first material takes no part");
            }
            box->click();
            if (!hands.TakePictures()) {
                return QStringLiteral("no picture of the table");
            }
            table.findChild<QAbstractButton*>(QStringLiteral("qtConfirmPushButton"))->click();
            return QString();
        });
    if (!problem.isEmpty()) {
        return problem;
    }
    return list.count() == before - 1 ? hands.CheckCalled("SetMaterialSoftClothEnabled")
                                      : QStringLiteral("the list shows %1 materials").arg(list.count());
}

QString CloseDialog(TourHands& hands)
{
    const QString problem = hands.Click("qtPaintPushButton");
    if (!problem.isEmpty()) {
        return problem;
    }
    return hands.Find<QWidget>(dialogForm)->isVisible() ? QStringLiteral("the dialog stays open") : QString();
}

} // namespace

std::vector<TourStep> WeightSteps(TourHands& hands)
{
    return {
        {"dialog-opened", [&hands] { return OpenDialog(hands); }},
        {"material-chosen", [&hands] { return ChooseMaterial(hands); }},
        {"weight-image-loaded", [&hands] { return LoadImage(hands); }},
        {"black-image-refused", [&hands] { return LoadBlackImage(hands); }},
        {"damaged-image-refused", [&hands] { return LoadDamagedImage(hands); }},
        {"image-saved-nowhere", [&hands] { return SaveImageNowhere(hands); }},
        {"weight-image-embedded", [&hands] { return EmbedImage(hands); }},
        {"brightness-changed", [&hands] { return ChangeBrightness(hands); }},
        {"table-narrowed", [&hands] { return NarrowTable(hands); }},
        {"dialog-closed", [&hands] { return CloseDialog(hands); }},
    };
}

} // namespace Host
