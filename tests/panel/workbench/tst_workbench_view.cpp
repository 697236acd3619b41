#include "host/services/Pictures.h"
#include "host/services/WeightImages.h"
#include "host/viewport/ViewActions.h"
#include "host/viewport/ViewportWidget.h"
#include "tests/panel/workbench/WorkbenchTestCase.h"
#include "tests/support/SampleImages.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QSet>

#include <algorithm>
#include <array>
#include <limits>

namespace {

const std::array<QColor, 3> colours{QColor(220, 40, 40), QColor(40, 200, 60), QColor(50, 70, 230)};

/// Three squares beside each other in the plane z = 0, 10 cm wide each, of three materials, the last one in a mesh of
/// its own.
Host::Object Squares()
{
    Host::Object object = SampleModels::Make(QStringLiteral("Squares"),
                                             {{QStringLiteral("Two"), {QStringLiteral("Red"), QStringLiteral("Green")}},
                                              {QStringLiteral("One"), {QStringLiteral("Blue")}}});
    for (std::size_t i = 0; i < colours.size(); ++i) {
        object.materials[i].diffuse = colours[i];
    }
    int square = 0;
    for (Host::Mesh& mesh : object.meshes) {
        for (std::size_t i = 0; i < mesh.positions.size(); ++i) {
            QVector3D& place = mesh.positions[i];
            place = QVector3D(place.x() + float(square), place.y(), 0.0F) * 10.0F;
            square += i % 4 == 3 ? 1 : 0;
        }
    }
    return object;
}

/// The middle of square number \p square; \p u from 0 (left) to 1 (right), \p v upwards.
QVector3D PlaceIn(int square, float u = 0.5F, float v = 0.4F)
{
    return QVector3D(float(square) + u, v, 0.0F) * 10.0F;
}

/// Where there is nothing, above the squares.
const QVector3D above = PlaceIn(1, 0.5F, 1.3F);

} // namespace

/// The view of the model, on a display.
class TestWorkbenchView : public WorkbenchTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void materialsHaveTheirColoursWhereTheyAre();
    void pictureOfTheWindowContainsTheModel();
    void texturesLieOnTheirTriangles();
    void transparentPlacesAreHoles();
    void weightsAreColours();
    void weightsFollowEveryChange();
    void materialWithoutWeightsIsHatched();
    void clickChoosesTheMaterialsRow();
    void pickingMarksAndPicks();
    void clickSelectsAndDeselects();
    void dragIsNoClick();
    void deleteKeyDeletes();
    void nothingIsUploadedTwice();
    void handsMoveTheCamera_data();
    void handsMoveTheCamera();
    void damagedModelIsDrawnAsFarAsPossible();
    void smallestViewIsDrawn();
    void anotherWindowShowsTheSame();
    void movedVerticesAreDrawnAndPickedWhereTheyAre();
    void nextLanguagesWindowLooksFromTheSameSide();

private:
    Host::ViewportWidget& View() const { return *Child<Host::ViewportWidget>(&Window(), "viewport"); }
    /// The squares from the front, drawn with all that belongs to them.
    Host::Object& ShowSquares(Host::Object object = Squares());
    void Settle() const;
    QPoint PixelOf(const QVector3D& place) const { return View().Eye().Project(place)->toPoint(); }
    QColor ColourAt(const QVector3D& place) const
    {
        const QImage picture = View().grabFramebuffer();
        return picture.pixelColor(PixelOf(place) * picture.devicePixelRatioF());
    }
    /// Which of red, green and blue there is most of.
    static int Strongest(const QColor& colour)
    {
        const std::array<int, 3> parts{colour.red(), colour.green(), colour.blue()};
        return int(std::max_element(parts.begin(), parts.end()) - parts.begin());
    }
    static bool IsGray(const QColor& colour) { return colour.saturation() < 30; }
    void ClickAt(const QVector3D& place, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(&View(), Qt::LeftButton, modifiers, PixelOf(place));
    }
    /// Whatever other windows there are above it.
    void MovePointer(const QVector3D& place, Qt::MouseButton pressed = Qt::NoButton,
                     Qt::KeyboardModifiers modifiers = {}) const
    {
        MovePointer(PixelOf(place), pressed, modifiers);
    }
    void MovePointer(const QPoint& to, Qt::MouseButton pressed, Qt::KeyboardModifiers modifiers) const
    {
        QMouseEvent move(QEvent::MouseMove, to, View().mapToGlobal(to), Qt::NoButton, pressed, modifiers);
        QCoreApplication::sendEvent(&View(), &move);
    }
    /// A weight image that is black on its left and white on its right half.
    static QString HalfWhite(const QTemporaryDir& folder)
    {
        QImage image({8, 8}, QImage::Format_RGB32);
        image.fill(Qt::black);
        for (int y = 0; y < 8; ++y) {
            for (int x = 4; x < 8; ++x) {
                image.setPixelColor(x, y, Qt::white);
            }
        }
        return SampleImages::WriteImage(folder.filePath(QStringLiteral("half.png")), image);
    }
};

Host::Object& TestWorkbenchView::ShowSquares(Host::Object object)
{
    Host::Object& added = AddCloth(std::move(object));
    View().Shown().Refresh();
    View().Actions().Front()->trigger();
    View().Actions().FrameAll()->trigger();
    Settle();
    App().Journal().Clear();
    return added;
}

/// Draws until nothing is uploaded any more.
void TestWorkbenchView::Settle() const
{
    QCoreApplication::processEvents();
    int uploads = -1;
    while (uploads != View().UploadCount()) {
        uploads = View().UploadCount();
        View().grabFramebuffer();
        QCoreApplication::processEvents();
    }
}

void TestWorkbenchView::materialsHaveTheirColoursWhereTheyAre()
{
    ShowSquares();
    for (int square = 0; square < 3; ++square) {
        const QColor colour = ColourAt(PlaceIn(square));
        QCOMPARE(Strongest(colour), square);
        QVERIFY(!IsGray(colour));
        QCOMPARE(Strongest(ColourAt(PlaceIn(square, 0.1F, 0.9F))), square);
    }
    QVERIFY(IsGray(ColourAt(above)));
    QVERIFY(IsGray(ColourAt(PlaceIn(1, 0.5F, -0.3F))));
    // From behind, too.
    View().Actions().Side()->trigger();
    QTest::keyClick(&View(), Qt::Key_Right, Qt::NoModifier);
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(&View(), Qt::Key_Left);
    }
    QVERIFY(View().Eye().Eye().z() < -1.0F);
    QCOMPARE(Strongest(ColourAt(PlaceIn(2))), 2);
}

void TestWorkbenchView::pictureOfTheWindowContainsTheModel()
{
    ShowSquares();
    const QImage picture = Window().grab().toImage();
    for (int square = 0; square < 3; ++square) {
        const QPoint pixel = View().mapTo(&Window(), PixelOf(PlaceIn(square)));
        QCOMPARE(Strongest(picture.pixelColor(pixel * picture.devicePixelRatioF())), square);
    }
    QVERIFY(Child<QLabel>(&View(), "gridScale")->text().startsWith(QStringLiteral("Grid: ")));
    QVERIFY(!View().isAncestorOf(Child<QWidget>(&Window(), "hostCallsTable")));
    QVERIFY(Child<QWidget>(&Window(), "hostCallsTable")->isVisible());
    QVERIFY(!Window().findChild<QWidget*>(QStringLiteral("viewportMissing")));
}

void TestWorkbenchView::texturesLieOnTheirTriangles()
{
    const QTemporaryDir folder;
    Host::Object object = Squares();
    // The white square becomes what the image is: black on the left and white on the right.
    object.materials[0].textures[MV::ETextureChannel::Diffuse].filePath = HalfWhite(folder);
    ShowSquares(std::move(object));
    QVERIFY(ColourAt(PlaceIn(0, 0.2F)).lightness() < 40);
    QVERIFY(ColourAt(PlaceIn(0, 0.8F)).lightness() > 150);
    QCOMPARE(Strongest(ColourAt(PlaceIn(1))), 1);
}

void TestWorkbenchView::transparentPlacesAreHoles()
{
    const QTemporaryDir folder;
    Host::Object object = Squares();
    object.materials[0].textures[MV::ETextureChannel::Opacity].filePath = HalfWhite(folder);
    ShowSquares(std::move(object));
    QVERIFY(IsGray(ColourAt(PlaceIn(0, 0.2F))));
    QCOMPARE(Strongest(ColourAt(PlaceIn(0, 0.8F))), 0);
    QVERIFY(!View().At(PixelOf(PlaceIn(0, 0.2F))));
    QVERIFY(View().At(PixelOf(PlaceIn(0, 0.8F))));
}

void TestWorkbenchView::weightsAreColours()
{
    const QTemporaryDir folder;
    const Host::Object& object = ShowSquares();
    QCOMPARE(App().Weights().Load(Host::Scene::SlotsOf(object).front(), HalfWhite(folder)), BF::Results::Success);
    const auto* legend = Child<QWidget>(&View(), "weightLegend");
    QVERIFY(!legend->isVisible());
    Trigger("showWeightsAction");
    QVERIFY(legend->isVisible());
    QCOMPARE(Strongest(ColourAt(PlaceIn(0, 0.03F))), 2);
    QCOMPARE(Strongest(ColourAt(PlaceIn(0, 0.97F))), 0);
    Trigger("showWeightsAction");
    QVERIFY(!legend->isVisible());
    QCOMPARE(Strongest(ColourAt(PlaceIn(0, 0.03F))), 0);
}

void TestWorkbenchView::weightsFollowEveryChange()
{
    const QTemporaryDir folder;
    const Host::Object& object = ShowSquares();
    const Host::ClothAddress address = Host::Scene::SlotsOf(object).front();
    Trigger("showWeightsAction");
    QVERIFY(IsGray(ColourAt(PlaceIn(0, 0.03F))));
    const QString file = HalfWhite(folder);
    QCOMPARE(App().Weights().Load(address, file), BF::Results::Success);
    QTRY_COMPARE(Strongest(ColourAt(PlaceIn(0, 0.03F))), 2);
    MV::WeightImageAdjust adjust;
    adjust.brightness = 100;
    QCOMPARE(App().Weights().Adjust(address, adjust, true), BF::Results::Success);
    QTRY_COMPARE(Strongest(ColourAt(PlaceIn(0, 0.03F))), 0);
    App().Undo();
    QTRY_COMPARE(Strongest(ColourAt(PlaceIn(0, 0.03F))), 2);
    QCOMPARE(App().Weights().Embed(address), BF::Results::Success);
    QTRY_COMPARE(Strongest(ColourAt(PlaceIn(0, 0.03F))), 2);
    App().Undo();
    // As after an edit in the image editor.
    SampleImages::WriteImage(file, SampleImages::Filled({4, 4}, Qt::white));
    App().Images().Store().ForgetFile(file);
    BF::CArrayList<BF::CHandle*> changed;
    changed.Add(object.handle);
    App().Send("LaunchedImageChanged", &MV::CEventSender::LaunchedImageChanged, changed);
    QTRY_COMPARE(Strongest(ColourAt(PlaceIn(0, 0.03F))), 0);
    QCOMPARE(App().Weights().Delete(address), BF::Results::Success);
    QTRY_VERIFY(IsGray(ColourAt(PlaceIn(0, 0.03F))));
}

void TestWorkbenchView::materialWithoutWeightsIsHatched()
{
    ShowSquares();
    Trigger("showWeightsAction");
    const QImage picture = View().grabFramebuffer();
    const QPoint middle = PixelOf(PlaceIn(1)) * picture.devicePixelRatioF();
    QSet<int> shades;
    for (int x = -20; x < 20; ++x) {
        const QColor colour = picture.pixelColor(middle + QPoint(x, 0));
        QVERIFY(IsGray(colour));
        shades.insert(colour.lightness() / 16);
    }
    QVERIFY(shades.size() > 1);
}

void TestWorkbenchView::clickChoosesTheMaterialsRow()
{
    ShowSquares();
    OpenDialog();
    const auto* rows = Child<QListWidget>(&Window(), "qtMaterialListWidget");
    for (const int square : {2, 0, 1}) {
        App().Journal().Clear();
        ClickAt(PlaceIn(square, 0.05F, 0.05F));
        QCOMPARE(Events(), QStringList{QStringLiteral("PickedMaterialIndexChanged")});
        QCOMPARE(rows->currentRow(), square);
    }
}

void TestWorkbenchView::pickingMarksAndPicks()
{
    ShowSquares();
    OpenDialog();
    App().SetPickMode(MV::EPickMode::Material);
    const auto* name = Child<QLabel>(&View(), "pointedMaterial");
    QVERIFY(!name->isVisible());
    const QColor before = ColourAt(PlaceIn(2));
    MovePointer(PlaceIn(2));
    QTRY_COMPARE(name->text(), QStringLiteral("Blue (One)"));
    QVERIFY(name->isVisible());
    QVERIFY(ColourAt(PlaceIn(2)).lightness() > before.lightness());
    App().Journal().Clear();
    ClickAt(PlaceIn(2));
    QVERIFY(Events().contains(QStringLiteral("PickedMaterialIndexChanged")));
    QCOMPARE(Child<QListWidget>(&Window(), "qtMaterialListWidget")->currentRow(), 2);
    App().SetPickMode(MV::EPickMode::Material);
    ClickAt(above);
    QCOMPARE(CurrentScene().Selection().size(), 1);
    QTest::keyClick(&View(), Qt::Key_Escape);
    QCOMPARE(CurrentScene().pickMode, MV::EPickMode::None);
    QTRY_VERIFY(!name->isVisible());
}

void TestWorkbenchView::clickSelectsAndDeselects()
{
    const Host::Object& object = ShowSquares();
    ClickAt(PlaceIn(1));
    QCOMPARE(Events(), QStringList{QStringLiteral("ObjectSelectionChanged")});
    QCOMPARE(CurrentScene().Selection(), QVector<BF::CHandle*>{object.handle});
    ClickAt(above);
    QVERIFY(CurrentScene().Selection().isEmpty());
    App().Journal().Clear();
    ClickAt(PlaceIn(0));
    QCOMPARE(Events(), QStringList{QStringLiteral("ObjectSelectionChanged")});
    QCOMPARE(CurrentScene().Selection(), QVector<BF::CHandle*>{object.handle});
    ClickAt(PlaceIn(0), Qt::ControlModifier);
    QVERIFY(CurrentScene().Selection().isEmpty());
}

void TestWorkbenchView::dragIsNoClick()
{
    ShowSquares();
    QTest::mousePress(&View(), Qt::LeftButton, {}, PixelOf(PlaceIn(1)));
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, PixelOf(PlaceIn(2)));
    QTest::mouseClick(&View(), Qt::LeftButton, Qt::AltModifier, PixelOf(PlaceIn(1)));
    QTest::mouseClick(&View(), Qt::MiddleButton, {}, PixelOf(above));
    QCOMPARE(Events(), QStringList());
    QCOMPARE(CurrentScene().Selection().size(), 1);
}

void TestWorkbenchView::deleteKeyDeletes()
{
    ShowSquares();
    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_Delete);
    QVERIFY(CurrentScene().Objects().empty());
    QTRY_VERIFY(View().Shown().Meshes().empty());
    QVERIFY(!View().At(PixelOf(PlaceIn(1))));
}

void TestWorkbenchView::nothingIsUploadedTwice()
{
    const QTemporaryDir folder;
    Host::Object object = Squares();
    object.materials[0].textures[MV::ETextureChannel::Diffuse].filePath = HalfWhite(folder);
    ShowSquares(std::move(object));
    Trigger("showWeightsAction");
    Settle();
    const int uploads = View().UploadCount();
    QVERIFY(uploads > 0);
    QTest::keyClick(&View(), Qt::Key_Left);
    App().SelectAgain();
    App().SetPlaying(true);
    View().Shown().Refresh();
    Settle();
    QCOMPARE(View().UploadCount(), uploads);
}

void TestWorkbenchView::handsMoveTheCamera_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("modifier");
    QTest::addColumn<bool>("turns");
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("zooms");
    const auto row = [](const char* name, Qt::MouseButton button, Qt::KeyboardModifier modifier, char does) {
        QTest::newRow(name) << int(button) << int(modifier) << (does == 't') << (does == 'm') << (does == 'z');
    };
    row("left", Qt::LeftButton, Qt::NoModifier, '-');
    row("Alt left", Qt::LeftButton, Qt::AltModifier, 't');
    row("Alt middle", Qt::MiddleButton, Qt::AltModifier, 'm');
    row("Alt right", Qt::RightButton, Qt::AltModifier, 'z');
    row("middle", Qt::MiddleButton, Qt::NoModifier, 't');
    row("Shift middle", Qt::MiddleButton, Qt::ShiftModifier, 'm');
    row("Ctrl middle", Qt::MiddleButton, Qt::ControlModifier, 'z');
}

void TestWorkbenchView::handsMoveTheCamera()
{
    QFETCH(const int, button);
    QFETCH(const int, modifier);
    ShowSquares();
    const Host::Camera before = View().Eye();
    const QPoint from = PixelOf(PlaceIn(1));
    const QPoint to = from + QPoint(60, 30);
    QTest::mousePress(&View(), Qt::MouseButton(button), Qt::KeyboardModifier(modifier), from);
    MovePointer(to, Qt::MouseButton(button), Qt::KeyboardModifier(modifier));
    QTest::mouseRelease(&View(), Qt::MouseButton(button), Qt::KeyboardModifier(modifier), to);
    const Host::Camera& after = View().Eye();
    const QVector3D lookedBefore = (before.Eye() - before.Target()).normalized();
    const QVector3D looks = (after.Eye() - after.Target()).normalized();
    QTEST((lookedBefore - looks).length() > 0.01F, "turns");
    QTEST((before.Target() - after.Target()).length() > 0.01F, "moves");
    QTEST(qAbs(before.Distance() - after.Distance()) > 0.01F, "zooms");
}

void TestWorkbenchView::damagedModelIsDrawnAsFarAsPossible()
{
    Host::Object object = Squares();
    object.meshes[1].positions[0].setX(std::numeric_limits<float>::quiet_NaN());
    object.meshes[1].positions[3].setY(std::numeric_limits<float>::infinity());
    object.meshes[0].normals.clear();
    object.meshes[0].uvs.clear();
    object.meshes[0].materialSlots[0].indices.insert(object.meshes[0].materialSlots[0].indices.end(),
                                                     {0, 0, 1, 9999, 0, 1});
    object.materials[0].textures[MV::ETextureChannel::Diffuse].filePath = QStringLiteral("/missing/picture.png");
    ShowSquares(std::move(object));
    QCOMPARE(Strongest(ColourAt(PlaceIn(0))), 0);
    QCOMPARE(Strongest(ColourAt(PlaceIn(1))), 1);
    const auto* problems = Child<QLabel>(&View(), "viewProblems");
    QTRY_VERIFY(problems->text().contains(QStringLiteral("picture.png")));
    QVERIFY(problems->text().contains(QStringLiteral("nowhere: 3")));
}

void TestWorkbenchView::smallestViewIsDrawn()
{
    ShowSquares();
    Host::ViewportWidget view(App());
    view.setMinimumSize(1, 1);
    view.resize(1, 1);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QVERIFY(!view.grabFramebuffer().isNull());
    QTest::keyClick(&view, Qt::Key_Left);
    QTest::mouseClick(&view, Qt::LeftButton, {}, {0, 0});
}

void TestWorkbenchView::anotherWindowShowsTheSame()
{
    ShowSquares();
    constexpr QSize size(320, 200);
    QWidget first;
    QWidget second;
    auto* view = new Host::ViewportWidget(App(), &first);
    const auto show = [&](QWidget& window) {
        window.resize(size);
        window.show();
        view->show();
        view->resize(size);
        [](QWidget* shown) { QVERIFY(QTest::qWaitForWindowExposed(shown)); }(&window);
        view->Shown().Refresh();
        view->grabFramebuffer();
        return view->grabFramebuffer();
    };
    const QImage before = show(first);
    view->setParent(&second);
    const QImage after = show(second);
    QCOMPARE(after, before);
    QVERIFY(view->UploadCount() > 0);
    QCOMPARE(Strongest(after.pixelColor(view->Eye().Project(PlaceIn(1))->toPoint() * after.devicePixelRatioF())), 1);
}

void TestWorkbenchView::movedVerticesAreDrawnAndPickedWhereTheyAre()
{
    const Host::Object& object = ShowSquares();
    const Host::Mesh& mesh = object.meshes[1];
    std::vector<QVector3D> positions = mesh.positions;
    for (QVector3D& position : positions) {
        position.setY(position.y() + 10.0F);
    }
    View().Shown().SetPositions(object.handle, mesh.id, positions, mesh.normals);
    QVERIFY(IsGray(ColourAt(PlaceIn(2))));
    QVERIFY(!View().At(PixelOf(PlaceIn(2))));
    QCOMPARE(Strongest(ColourAt(PlaceIn(2, 0.5F, 1.4F))), 2);
    QCOMPARE(View().At(PixelOf(PlaceIn(2, 0.5F, 1.4F)))->mesh, mesh.id);
    positions.pop_back();
    View().Shown().SetPositions(object.handle, mesh.id, positions, mesh.normals);
    QCOMPARE(Strongest(ColourAt(PlaceIn(2, 0.5F, 1.4F))), 2);
    View().Shown().ResetPositions();
    QCOMPARE(Strongest(ColourAt(PlaceIn(2))), 2);
    QCOMPARE(View().At(PixelOf(PlaceIn(2)))->mesh, mesh.id);
}

void TestWorkbenchView::nextLanguagesWindowLooksFromTheSameSide()
{
    ShowSquares();
    QTest::keyClick(&View(), Qt::Key_Left);
    Trigger("showWeightsAction");
    Host::MainWindow next(Window().SharedApplication());
    next.TakeOver(Window());
    QCoreApplication::processEvents();
    const auto* view = Child<Host::ViewportWidget>(&next, "viewport");
    QCOMPARE(view->Eye().ViewMatrix(), View().Eye().ViewMatrix());
    QVERIFY(view->Actions().ShowWeights()->isChecked());
}

SOFTCLOTH_TEST(TestWorkbenchView)
#include "tst_workbench_view.moc"
