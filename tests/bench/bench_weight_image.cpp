// Opening a weight image in the material dialog.
#include "host/images/ImageStore.h"
#include "host/services/HostApplication.h"
#include "host/services/Pictures.h"
#include "material/SoftClothMaterialDlg.h"
#include "tests/bench/BenchPanel.h"
#include "tests/bench/Report.h"
#include "tests/support/SampleModels.h"

#include <QApplication>
#include <QImage>
#include <QImageReader>
#include <QTemporaryDir>

#include <algorithm>

namespace {

constexpr int side = 4096;

/// A picture with as much detail as a painted map has.
QString WriteImage(const QString& path)
{
    QImage image(side, side, QImage::Format_Grayscale8);
    for (int y = 0; y < side; ++y) {
        uchar* line = image.scanLine(y);
        for (int x = 0; x < side; ++x) {
            line[x] = uchar((x * y / side + x / 16 * 7) & 0xFF);
        }
    }
    if (!image.save(path)) {
        qFatal("the image cannot be written");
    }
    return path;
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication app(argc, argv);
    const QTemporaryDir folder;
    const QString path = WriteImage(folder.filePath(QStringLiteral("weight.png")));
    BenchPanel<Host::HostApplication> panel;
    panel.host.SetSoftClothActive(panel.host.AddModel(SampleModels::Flag()), true);
    panel.host.SetDialogMode(MV::EDialogMode::WeightMap);
    QApplication::processEvents();
    MV::CSoftClothMaterialDlg& dialog = *panel.plugin.MaterialDlg();
    Host::ImageStore& store = panel.host.Images().Store();
    const auto& object = *panel.host.CurrentScene().FindObject(panel.plugin.Selection().object);
    const auto weight = [&]() -> const Host::WeightImage& {
        return panel.host.CurrentScene().FindSlot(Host::Scene::SlotsOf(object).front())->cloth.weight;
    };

    int mostDecodes = 0;
    const Bench::Work product{[&] {
                                  const int before = store.DecodeCount();
                                  QMetaObject::invokeMethod(&dialog, "OnLoadWeightImage", Q_ARG(QString, path));
                                  // What the dialog shows of it is drawn.
                                  QApplication::processEvents();
                                  mostDecodes = std::max(mostDecodes, store.DecodeCount() - before);
                                  if (weight().IsNone()) {
                                      qFatal("the image was not taken");
                                  }
                              },
                              [&] {
                                  if (!weight().IsNone()) {
                                      panel.host.Undo();
                                  }
                                  store.ForgetFile(path);
                                  QApplication::processEvents();
                              }};
    const Bench::Work bare{[&] {
        if (QImageReader(path).read().isNull()) {
            qFatal("the image cannot be read");
        }
    }};

    Bench::Report report(QStringLiteral("Weight image, %1 x %1").arg(side));
    // One decode and everything that follows from it, but never a second one.
    report.Compare(QStringLiteral("opened, against one decode"), product, bare, 2.0);
    report.Count(QStringLiteral("decodes for each opening"), mostDecodes, 1);
    return report.Print();
}
