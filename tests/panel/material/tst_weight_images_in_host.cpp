#include "host/images/ImageStore.h"
#include "host/import/ModelImport.h"
#include "host/services/ImageEditor.h"
#include "tests/support/Children.h"
#include "tests/support/FileRefusal.h"
#include "tests/support/Files.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextStream>
#include <QUrl>

using MV::ECompatibleApp;

/// Weight images from real files on real models, by the buttons of the material dialog of the built library.
class TestWeightImagesInHost : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormatIsLoaded_data();
    void everyFormatIsLoaded();
    void droppedFileIsLoaded();
    void blackImageIsRefusedAndTheFormerIsBack();
    void tooManyVerticesAreForTheUserToDecide_data();
    void tooManyVerticesAreForTheUserToDecide();
    void badFileIsToldAndChangesNothing_data();
    void badFileIsToldAndChangesNothing();
    void embeddedImageCanBeAdjustedAndTakenBack();
    void adjustmentToBlackIsTakenBack();
    void savedImageIsTheAdjustedOne();
    void deletedImageComesBackByUndo();
    void imageSavedByTheEditorIsShown();
    void uvLayoutOpensInTheEditor();
    void paintedUvLayoutIsTheWeightImage();
    void cancelledUvLayoutIsNoFailure();
    void largePreviewIsSharp();
};

namespace {

constexpr const char* loadButton = "qtOpenFilePushButton";

/// The panel with an imported model and the open dialog.
struct WeightPanel : PanelFixture
{
    explicit WeightPanel(const QString& model = SampleModels::RealModel(QStringLiteral("OBJ/spider.obj")),
                         ECompatibleApp app = ECompatibleApp::FamilyA)
        : PanelFixture(app)
    {
        Host::ImportResult imported = Host::ImportModel(model, {});
        if (!imported.object) {
            qFatal("%s", qPrintable(imported.error));
        }
        object = &AddCloth(std::move(*imported.object));
        QObject::connect(&App(), &Host::HostApplication::ProblemTold, &Window(),
                         [this](const QString& problem) { problems.append(problem); });
        App().SetDialogMode(MV::EDialogMode::WeightMap);
        App().Journal().Clear();
    }

    QWidget& Dialog() { return *Child<QWidget>(&Window(), "SoftClothMaterialDlg"); }
    QLabel& Label() { return *Child<QLabel>(&Dialog(), "qtWeightingItemLabel"); }
    QImage Thumbnail() { return Label().pixmap(Qt::ReturnByValue).toImage(); }
    QString Path(const QString& name) const { return folder.filePath(name); }
    QString Image(const QString& name, const QImage& image) const
    {
        return SampleImages::WriteImage(Path(name), image);
    }
    void Click(const char* button)
    {
        auto* found = Child<QPushButton>(&Dialog(), button);
        QVERIFY2(found->isEnabled(), button);
        QTest::mouseClick(found, Qt::LeftButton);
    }
    void Load(const QString& path)
    {
        App().Answers().AddFile(path);
        Click(loadButton);
    }
    void SetBrightness(int brightness)
    {
        auto* box = Child<QWidget>(&Dialog(), "qtBrightnessCombospinbox")->findChild<QSpinBox*>();
        box->selectAll();
        QTest::keyClicks(box, QString::number(brightness));
        QTest::keyClick(box, Qt::Key_Return);
    }
    Host::WeightImage& Weight() { return Cloth(*object).weight; }
    QStringList Operations() { return TakeOperations(App().Journal()); }

    Host::Object* object = nullptr;
    QStringList problems;
    QTemporaryDir folder;
};

/// A model file of \p columns x \p rows vertices.
QString WriteSheet(const QString& path, int columns, int rows)
{
    QByteArray text("o Sheet\nvn 0 0 1\n");
    QTextStream out(&text);
    const auto number = [columns](int x, int y) { return y * columns + x + 1; };
    for (int y = 0; y < rows; ++y) {
        for (int x = 0; x < columns; ++x) {
            out << "v " << x << ' ' << y << " 0\nvt " << double(x) / (columns - 1) << ' ' << double(y) / (rows - 1)
                << '\n';
        }
    }
    for (int y = 1; y < rows; ++y) {
        for (int x = 1; x < columns; ++x) {
            out << 'f';
            for (const int at : {number(x - 1, y - 1), number(x, y - 1), number(x, y), number(x - 1, y)}) {
                out << ' ' << at << '/' << at << "/1";
            }
            out << '\n';
        }
    }
    out.flush();
    return SampleImages::WriteFile(path, text);
}

const QImage white = SampleImages::Filled({16, 16}, Qt::white);
const QImage black = SampleImages::Filled({16, 16}, Qt::black);
const QImage gray = SampleImages::Filled({16, 16}, QColor(90, 90, 90));
constexpr int okAndCancel = QMessageBox::Ok | QMessageBox::Cancel;

} // namespace

void TestWeightImagesInHost::everyFormatIsLoaded_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<ECompatibleApp>("app");
    for (const char* name : {"map.jpg", "map.jpeg", "map.bmp", "map.gif", "map.png", "map.tga"}) {
        QTest::addRow("%s, family A", name) << QString::fromLatin1(name) << ECompatibleApp::FamilyA;
        QTest::addRow("%s, family B", name) << QString::fromLatin1(name) << ECompatibleApp::FamilyB;
    }
}

void TestWeightImagesInHost::everyFormatIsLoaded()
{
    QFETCH(const QString, name);
    QFETCH(const ECompatibleApp, app);
    WeightPanel panel(SampleModels::RealModel(QStringLiteral("OBJ/spider.obj")), app);
    const QImage before = panel.Thumbnail();
    const QString path = panel.Image(name, gray);
    panel.Load(path);
    QCOMPARE(panel.Weight().image.filePath, path);
    QCOMPARE(panel.problems, QStringList());
    QVERIFY(panel.Thumbnail() != before);
    const QColor middle = panel.Thumbnail().pixelColor(panel.Thumbnail().rect().center());
    QVERIFY2(qAbs(middle.red() - 90) <= 2 && middle.red() == middle.blue(), qPrintable(middle.name()));
    QCOMPARE(Child<QLineEdit>(&panel.Dialog(), "qtBitmapPathLineEdit")->text(), path);
    QVERIFY(!panel.Operations().contains(QStringLiteral("ShowMessageBox")));
}

void TestWeightImagesInHost::droppedFileIsLoaded()
{
    WeightPanel panel;
    const QString path = panel.Image(QStringLiteral("map.png"), gray);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&panel.Label(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&panel.Label(), &drop);
    QCOMPARE(panel.Weight().image.filePath, path);
}

void TestWeightImagesInHost::blackImageIsRefusedAndTheFormerIsBack()
{
    WeightPanel panel;
    panel.Load(panel.Image(QStringLiteral("former.png"), gray));
    const Host::ClothState former = panel.Cloth(*panel.object);
    const QImage picture = panel.Thumbnail();
    const int steps = panel.CurrentScene().UndoStack().count();
    panel.App().Journal().Clear();

    panel.Load(panel.Image(QStringLiteral("black.png"), black));
    const QStringList calls = TakeCalls(panel.App().Journal());
    const QStringList boxes = calls.filter(QStringLiteral("ShowMessageBox"));
    QCOMPARE(boxes.size(), 1);
    QVERIFY(boxes.first().contains(QStringLiteral("This image would create a soft cloth without any physics effect")));
    QVERIFY(calls.indexOf(QRegularExpression(QStringLiteral("UndoLastEdit.*"))) > calls.indexOf(boxes.first()));
    QVERIFY(panel.Cloth(*panel.object) == former);
    QCOMPARE(panel.CurrentScene().UndoStack().count(), steps);
    QCOMPARE(panel.Thumbnail(), picture);
}

void TestWeightImagesInHost::tooManyVerticesAreForTheUserToDecide_data()
{
    QTest::addColumn<int>("columns");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("asks");
    QTest::addColumn<bool>("keeps");
    QTest::newRow("20,000 are no question") << 200 << int(QMessageBox::Cancel) << false << true;
    QTest::newRow("20,100, Ok") << 201 << int(QMessageBox::Ok) << true << true;
    QTest::newRow("20,100, Cancel") << 201 << int(QMessageBox::Cancel) << true << false;
}

void TestWeightImagesInHost::tooManyVerticesAreForTheUserToDecide()
{
    QFETCH(const int, columns);
    QFETCH(const int, answer);
    QFETCH(const bool, asks);
    QFETCH(const bool, keeps);
    const QTemporaryDir models;
    WeightPanel panel(WriteSheet(models.filePath(QStringLiteral("sheet.obj")), columns, 100));
    const QString former = panel.Image(QStringLiteral("former.png"), SampleImages::HalfBlack({16, 16}));
    panel.Load(former);
    QCOMPARE(panel.Weight().image.filePath, former);
    panel.App().Journal().Clear();

    panel.App().Answers().AddButton(answer);
    const QString path = panel.Image(QStringLiteral("white.png"), white);
    panel.Load(path);
    const QStringList calls = TakeCalls(panel.App().Journal());
    const QStringList boxes = calls.filter(QStringLiteral("ShowMessageBox"));
    QCOMPARE(boxes.size(), asks ? 1 : 0);
    if (asks) {
        QVERIFY(boxes.first().contains(QStringLiteral("The Generated cloth mesh count has exceeded the maximum 20,000 "
                                                      "limit. Please try another legal image. ")));
        QVERIFY(boxes.first().contains(QString::number(okAndCancel)));
    }
    QCOMPARE(panel.Weight().image.filePath, keeps ? path : former);
    QCOMPARE(calls.filter(QStringLiteral("RefreshScene")).size(), 1);
}

void TestWeightImagesInHost::badFileIsToldAndChangesNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("problem"); // what the host reports; without it the panel does not even ask
    QTest::newRow("missing") << QStringLiteral("missing.png") << QString();
    QTest::newRow("directory") << QStringLiteral("folder.png") << QString();
    QTest::newRow("empty") << QStringLiteral("empty.png") << QStringLiteral("it is empty");
    QTest::newRow("text") << QStringLiteral("text.png") << QStringLiteral("it is no JPEG");
    QTest::newRow("truncated") << QStringLiteral("half.png") << QStringLiteral("it is truncated");
    QTest::newRow("oversized") << QStringLiteral("huge.png") << QStringLiteral("it has 60000 x 60000 pixels");
#ifdef Q_OS_WIN
    const QString refused = QStringLiteral("haring violation"); // Windows' own words begin in another way than Wine's.
#else
    const QString refused = QStringLiteral("Permission denied");
#endif
    QTest::newRow("unreadable") << QStringLiteral("secret.png") << refused;
}

void TestWeightImagesInHost::badFileIsToldAndChangesNothing()
{
    QFETCH(const QString, name);
    QFETCH(const QString, problem);
    WeightPanel panel;
    const QByteArray whole = SampleImages::Encoded(QStringLiteral("png"), SampleImages::HalfBlack({40, 40}));
    QVERIFY(QDir(panel.folder.path()).mkpath(QStringLiteral("folder.png")));
    SampleImages::WriteFile(panel.Path(QStringLiteral("empty.png")), {});
    SampleImages::WriteFile(panel.Path(QStringLiteral("text.png")), "text");
    SampleImages::WriteFile(panel.Path(QStringLiteral("half.png")), whole.left(whole.size() / 2));
    SampleImages::WriteFile(panel.Path(QStringLiteral("huge.png")),
                            SampleImages::HeaderOnly(QStringLiteral("png"), {60000, 60000}));
    const QString secret = SampleImages::WriteFile(panel.Path(QStringLiteral("secret.png")), whole);
    panel.Load(panel.Image(QStringLiteral("former.png"), gray));
    const Host::ClothState former = panel.Cloth(*panel.object);
    const QImage picture = panel.Thumbnail();
    panel.App().Journal().Clear();

    Files::OpenToAll(panel.folder.path());
    {
        const FileRefusal refusal(secret, FileRefusal::Of::ReadingAndWriting);
        panel.Load(panel.Path(name));
    }
    const QStringList calls = TakeCalls(panel.App().Journal());
    QCOMPARE(calls.filter(QStringLiteral("ShowMessageBox")).size(), 1);
    QCOMPARE(calls.filter(QStringLiteral("LoadWeightImage")).size(), problem.isEmpty() ? 0 : 1);
    QCOMPARE(calls.filter(QStringLiteral("InValid File Path.")).size(), problem.isEmpty() ? 1 : 0);
    QCOMPARE(panel.problems.size(), problem.isEmpty() ? 0 : 1);
    QVERIFY2(panel.problems.join(QString()).contains(problem), qPrintable(panel.problems.join(QString())));
    QVERIFY(panel.Cloth(*panel.object) == former);
    QCOMPARE(panel.Thumbnail(), picture);
}

void TestWeightImagesInHost::embeddedImageCanBeAdjustedAndTakenBack()
{
    WeightPanel panel;
    const QString path = panel.Image(QStringLiteral("map.png"), gray);
    panel.Load(path);
    const QImage linked = panel.Thumbnail();
    panel.Click("qtEmbedTexturePushButton");
    QVERIFY(panel.Weight().image.filePath.isEmpty());
    QVERIFY(QFile::remove(path));
    QCOMPARE(panel.Thumbnail(), linked);
    panel.SetBrightness(20);
    QCOMPARE(panel.Weight().brightness, 20);
    QVERIFY(qGray(panel.Thumbnail().pixel(44, 44)) > qGray(linked.pixel(44, 44)));

    panel.App().Undo();
    QCOMPARE(panel.Weight().brightness, 0);
    QCOMPARE(panel.Thumbnail(), linked);
    panel.App().Undo();
    QCOMPARE(panel.Weight().image.filePath, path);
}

void TestWeightImagesInHost::adjustmentToBlackIsTakenBack()
{
    WeightPanel panel;
    panel.Load(panel.Image(QStringLiteral("map.png"), gray));
    panel.Click("qtEmbedTexturePushButton");
    panel.SetBrightness(10);
    panel.SetBrightness(-100);
    QCOMPARE(panel.Weight().brightness, 10);
    QCOMPARE(Child<QWidget>(&panel.Dialog(), "qtBrightnessCombospinbox")->findChild<QSpinBox*>()->value(), 10);
}

void TestWeightImagesInHost::savedImageIsTheAdjustedOne()
{
    WeightPanel panel;
    panel.Load(panel.Image(QStringLiteral("map.png"), gray));
    panel.Click("qtEmbedTexturePushButton");
    panel.SetBrightness(20);
    const QString path = panel.Path(QStringLiteral("saved.bmp"));
    panel.App().Answers().AddFile(path);
    panel.Click("qtSaveFilePushButton");
    const QImage saved(path);
    QCOMPARE(saved.size(), gray.size());
    QVERIFY(qGray(saved.pixel(8, 8)) > 90);

    panel.App().Journal().Clear();
    panel.App().Answers().AddFile(panel.Path(QStringLiteral("nowhere/saved.bmp")));
    panel.Click("qtSaveFilePushButton");
    const QStringList boxes = TakeCalls(panel.App().Journal()).filter(QStringLiteral("ShowMessageBox"));
    QCOMPARE(boxes.size(), 1);
    QVERIFY(boxes.first().contains(QStringLiteral("Failed to save weight image.")));
}

void TestWeightImagesInHost::deletedImageComesBackByUndo()
{
    WeightPanel panel;
    const QImage none = panel.Thumbnail();
    panel.Load(panel.Image(QStringLiteral("map.png"), gray));
    const QImage loaded = panel.Thumbnail();
    panel.Click("qtDeleteFilePushButton");
    QVERIFY(panel.Weight().IsNone());
    QCOMPARE(panel.Thumbnail(), none);
    panel.App().Undo();
    QCOMPARE(panel.Thumbnail(), loaded);
}

void TestWeightImagesInHost::imageSavedByTheEditorIsShown()
{
    WeightPanel panel;
    const QString edited = panel.Image(QStringLiteral("edited.png"), white);
    panel.Load(panel.Image(QStringLiteral("map.png"), gray));
    panel.Click("qtEmbedTexturePushButton");
    const QImage before = panel.Thumbnail();
    // An editor that puts another image in place of the one it is given.
    panel.App().Editor().SetProgram(QStringLiteral("\"" SOFTCLOTH_STAND_IN_EDITOR "\" --put \"%1\"").arg(edited));
    panel.Click("qtLaunchPushButton");
    QTRY_VERIFY(panel.Thumbnail() != before);
    QCOMPARE(panel.Thumbnail().pixelColor(44, 44), QColor(Qt::white));
    panel.App().Undo();
    QCOMPARE(panel.Thumbnail(), before);

    panel.App().Editor().SetProgram(QStringLiteral("no-such-image-editor"));
    panel.App().Journal().Clear();
    panel.Click("qtLaunchPushButton");
    QCOMPARE(TakeCalls(panel.App().Journal()).filter(QStringLiteral("Failed to launch image editor.")).size(), 1);
}

void TestWeightImagesInHost::uvLayoutOpensInTheEditor()
{
    WeightPanel panel;
    panel.App().Editor().SetProgram(QStringLiteral("true"));
    panel.Click("qtUvRefPushButton");
    const QStringList calls = TakeCalls(panel.App().Journal());
    const QStringList launched = calls.filter(QStringLiteral("LaunchImageEditor"));
    QCOMPARE(launched.size(), 1);
    const QString file = launched.first().section(QLatin1Char('"'), 1, 1);
    QVERIFY2(!QImage(file).isNull(), qPrintable(launched.first()));
}

void TestWeightImagesInHost::paintedUvLayoutIsTheWeightImage()
{
    WeightPanel panel;
    const QImage before = panel.Thumbnail();
    const QString layout = panel.Path(QStringLiteral("layout.png"));
    panel.App().Answers().AddFile(layout);
    const QString painted = panel.Image(QStringLiteral("painted.png"), white);
    panel.App().Editor().SetProgram(QStringLiteral("\"" SOFTCLOTH_STAND_IN_EDITOR "\" --put \"%1\"").arg(painted));
    panel.Click("qtUvRefPushButton");
    QTRY_COMPARE(panel.Weight().image.filePath, layout);
    QTRY_VERIFY(panel.Thumbnail() != before);
    QCOMPARE(panel.Thumbnail().pixelColor(44, 44), QColor(Qt::white));
    QVERIFY(Child<QPushButton>(&panel.Dialog(), "qtEmbedTexturePushButton")->isEnabled());
    panel.App().Undo();
    QVERIFY(panel.Weight().IsNone());
    QCOMPARE(panel.Thumbnail(), before);
}

void TestWeightImagesInHost::cancelledUvLayoutIsNoFailure()
{
    WeightPanel panel;
    panel.App().Answers().AddFile({});
    panel.Click("qtUvRefPushButton");
    const QStringList calls = TakeCalls(panel.App().Journal());
    QCOMPARE(calls.filter(QStringLiteral("ExportUvTexture")).size(), 1);
    QCOMPARE(calls.filter(QStringLiteral("ShowMessageBox")).size(), 0);
}

void TestWeightImagesInHost::largePreviewIsSharp()
{
    WeightPanel panel;
    // Stripes that a thumbnail has too few pixels for.
    QImage stripes(512, 512, QImage::Format_Grayscale8);
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x) {
            stripes.scanLine(y)[x] = x / 8 % 2 == 0 ? 255 : 0;
        }
    }
    panel.Load(panel.Image(QStringLiteral("stripes.png"), stripes));
    auto* preview = Child<QLabel>(&panel.Dialog(), "qtBitmapLabel");
    const auto clearPixels = [preview] {
        const QImage shown = preview->grab().toImage();
        int count = 0;
        for (int x = 0; x < shown.width(); ++x) {
            const int gray = qGray(shown.pixel(x, shown.height() / 2));
            count += gray < 16 || gray > 239 ? 1 : 0;
        }
        return count;
    };
    const int side = preview->contentsRect().height() * preview->devicePixelRatio();
    QTRY_VERIFY(clearPixels() > side / 2);
    preview->setEnabled(false);
    QVERIFY(clearPixels() > side / 2);
}

SOFTCLOTH_TEST(TestWeightImagesInHost)
#include "tst_weight_images_in_host.moc"
