#include "host/scene/Scene.h"
#include "host/simulation/ClothPreview.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/PreviewSamples.h"

#include <QImage>

#include <cmath>
#include <cstring>

using Host::ClothPreview;
using Host::ClothShape;
using Host::MotionKind;
using Host::PreviewModel;

/// From an object of the scene to cloth that moves.
class TestClothPreview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onlyWhatTakesPartSimulates_data();
    void onlyWhatTakesPartSimulates();
    void weightImageHoldsBlackVertices();
    void adjustmentChangesWhatIsHeld_data();
    void adjustmentChangesWhatIsHeld();
    void sceneStaysAsItIs();
    void heldVerticesStayWhereTheModelIs();
    void heldVerticesFollowTheMotion_data();
    void heldVerticesFollowTheMotion();
    void seamsOfTexturesStayClosed();
    void bordersOfTwoMaterialsStayClosed_data();
    void bordersOfTwoMaterialsStayClosed();
    void sameCallsGiveTheSameMotion();
    void resetStartsAgain();
    void paintingWeightsKeepsTheMotion();
    void materialThatJoinsStartsAtTheModel();
    void anotherObjectStartsFromTheBeginning();
    void motionStartsAtRestAndEndsThere_data();
    void motionStartsAtRestAndEndsThere();
    void normalsAreThoseOfTheSurface();
    void problemStopsUntilReset();
    void strangePlacesStopThePreview_data();
    void strangePlacesStopThePreview();
    void emptyModelDoesNothing();
};

namespace {

/// White below, black in the uppermost eighth.
QImage HangingWeights(const Host::Texture& /*texture*/)
{
    QImage image(8, 8, QImage::Format_Grayscale8);
    image.fill(255);
    std::memset(image.scanLine(0), 0, 8);
    return image;
}

QImage NoImage(const Host::Texture& /*texture*/)
{
    return {};
}

const QString anyFile = QStringLiteral("weights.png");

} // namespace

void TestClothPreview::onlyWhatTakesPartSimulates_data()
{
    QTest::addColumn<bool>("softCloth");
    QTest::addColumn<bool>("active");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("ignored");
    QTest::addColumn<bool>("simulates");
    QTest::newRow("all as it should be") << true << true << true << false << true;
    QTest::newRow("object without physics") << false << true << true << false << false;
    QTest::newRow("not active") << true << false << true << false << false;
    QTest::newRow("not enabled") << true << true << false << false << false;
    QTest::newRow("ignored") << true << true << true << true << false;
}

void TestClothPreview::onlyWhatTakesPartSimulates()
{
    QFETCH(bool, softCloth);
    QFETCH(bool, active);
    QFETCH(bool, enabled);
    QFETCH(bool, ignored);
    QFETCH(bool, simulates);
    Host::Scene scene;
    Host::Object& object = scene.AddObject(PreviewSamples::TwoSquares());
    object.state.softCloth = softCloth;
    object.meshes[0].materialSlots[0].cloth.active = active;
    object.materials[0].state.softClothEnabled = enabled;
    if (ignored) {
        object.state.ignoredMaterials.insert(QStringLiteral("Sheet"), {QStringLiteral("Left")});
    }
    const PreviewModel model = Host::MakePreviewModel(object, NoImage);
    QCOMPARE(model.meshes[0].materialSlots[0].simulates, simulates);
    QVERIFY(!model.meshes[0].materialSlots[1].simulates);
    QCOMPARE(model.HasCloth(), simulates);
}

void TestClothPreview::weightImageHoldsBlackVertices()
{
    Host::Object object = PreviewSamples::TwoSquares();
    Host::MaterialSlot& slot = object.meshes[0].materialSlots[0];
    slot.cloth.active = true;
    object.materials[0].id = 1;
    slot.cloth.weight.image.filePath = anyFile;
    PreviewModel model = Host::MakePreviewModel(object, HangingWeights);
    const auto& freedom = model.meshes[0].materialSlots[0].freedom;
    for (int row = 0; row <= 8; ++row) {
        QCOMPARE(freedom[std::size_t(row) * 9] > 0.0F, row > 1);
    }
    // Without an image, or with one that cannot be read, everything is free.
    model = Host::MakePreviewModel(object, NoImage);
    QVERIFY(std::isinf(model.meshes[0].materialSlots[0].freedom[0]));
}

void TestClothPreview::adjustmentChangesWhatIsHeld_data()
{
    QTest::addColumn<int>("brightness");
    QTest::addColumn<int>("contrast");
    QTest::addColumn<int>("black"); ///< What becomes of black …
    QTest::addColumn<int>("gray");  ///< … and of 100.
    QTest::newRow("none") << 0 << 0 << 0 << 100;
    QTest::newRow("brighter: nothing is held") << 20 << 0 << 51 << 151;
    QTest::newRow("darker: gray is held as well") << -50 << 0 << 0 << 0;
    QTest::newRow("more contrast: gray goes to black") << 0 << 100 << 0 << 0;
}

void TestClothPreview::adjustmentChangesWhatIsHeld()
{
    QFETCH(int, brightness);
    QFETCH(int, contrast);
    QFETCH(int, black);
    QFETCH(int, gray);
    Host::Object object = PreviewSamples::TwoSquares();
    Host::MaterialSlot& slot = object.meshes[0].materialSlots[0];
    slot.cloth.active = true;
    object.materials[0].id = 1;
    slot.cloth.weight.image.filePath = anyFile;
    slot.cloth.weight.brightness = brightness;
    slot.cloth.weight.contrast = contrast;
    const auto weights = [](const Host::Texture&) {
        QImage image = HangingWeights({});
        std::memset(image.scanLine(7), 100, 8);
        return image;
    };
    const PreviewModel model = Host::MakePreviewModel(object, weights);
    const auto& freedom = model.meshes[0].materialSlots[0].freedom;
    QCOMPARE(freedom[0], Host::AllowedDistance(black));
    QCOMPARE(freedom[72], Host::AllowedDistance(gray));
    QVERIFY(std::isinf(freedom[36]) == (brightness >= 0));
}

void TestClothPreview::sceneStaysAsItIs()
{
    Host::Scene scene;
    Host::Object& object = scene.AddObject(PreviewSamples::TwoSquares());
    object.meshes[0].materialSlots[0].cloth.active = true;
    const auto positions = object.meshes[0].positions;
    const int steps = scene.UndoStack().count();
    ClothPreview preview(Host::MakePreviewModel(object, NoImage));
    preview.SetMotion({MotionKind::Sway, 0, true});
    PreviewSamples::Run(preview, 1.0);
    QVERIFY(PreviewSamples::Positions(preview) != positions);
    QVERIFY(object.meshes[0].positions == positions);
    QCOMPARE(scene.UndoStack().count(), steps);
}

void TestClothPreview::heldVerticesStayWhereTheModelIs()
{
    ClothShape shape = ClothSamples::HangingSheet(10, 10, 3.3F);
    for (Host::Vector& place : shape.rest) {
        place += Host::Vector(7.77F, 123.456F, -3.21F, 0.0F);
    }
    const PreviewModel model = PreviewSamples::Of(shape);
    ClothPreview preview(model);
    for (int i = 0; i < 60; ++i) {
        preview.Step();
        const auto positions = PreviewSamples::Positions(preview);
        for (std::size_t k = 0; k <= 10; ++k) {
            QVERIFY(positions[k] == model.meshes[0].positions[k]);
        }
    }
}

void TestClothPreview::heldVerticesFollowTheMotion_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("sway") << int(MotionKind::Sway);
    QTest::newRow("turn") << int(MotionKind::Turn);
    QTest::newRow("jump") << int(MotionKind::Jump);
    QTest::newRow("walk") << int(MotionKind::Walk);
}

/// Compared with the same object of which nothing simulates, to the last bit.
void TestClothPreview::heldVerticesFollowTheMotion()
{
    QFETCH(int, kind);
    ClothShape shape = ClothSamples::HangingSheet(8, 8, 3.0F);
    for (Host::Vector& place : shape.rest) {
        place.x() -= 12.0F; // in the middle, where it is no limb
    }
    PreviewModel model = PreviewSamples::WithBody(shape, ClothSamples::Ball(20.0F));
    ClothPreview preview(model);
    model.meshes[0].materialSlots[0].simulates = false;
    ClothPreview bare(model);
    for (ClothPreview* each : {&preview, &bare}) {
        each->SetMotion({MotionKind(kind), 0, true});
    }
    const auto start = PreviewSamples::Positions(bare);
    for (int i = 0; i < 40; ++i) {
        preview.Step();
        bare.Step();
        const auto positions = PreviewSamples::Positions(preview);
        const auto followed = PreviewSamples::Positions(bare);
        QVERIFY(std::equal(followed.begin(), followed.begin() + 9, positions.begin()));
        QVERIFY(positions.back() != followed.back());
    }
    QVERIFY(PreviewSamples::Positions(bare) != start);
}

void TestClothPreview::seamsOfTexturesStayClosed()
{
    // The right half has vertices of its own along the seam.
    ClothShape shape = ClothSamples::HangingSheet(10, 10, 3.0F);
    const ClothShape other = ClothSamples::HangingSheet(10, 10, 3.0F);
    const int base = int(shape.rest.size());
    for (std::size_t i = 0; i < other.rest.size(); ++i) {
        shape.rest.push_back(other.rest[i] + Host::Vector(30.0F, 0.0F, 0.0F, 0.0F));
        shape.freedom.push_back(other.freedom[i]);
    }
    for (const auto& triangle : other.triangles) {
        shape.triangles.push_back({triangle[0] + base, triangle[1] + base, triangle[2] + base});
    }
    Host::ClothValues values;
    values.wind.externalAcceleration = {100.0F, 0.0F, 300.0F};
    ClothPreview preview(PreviewSamples::Of(shape, values));
    PreviewSamples::Run(preview, 1.0);
    const auto positions = PreviewSamples::Positions(preview);
    for (int row = 0; row <= 10; ++row) {
        QVERIFY(positions[std::size_t(row * 11 + 10)] == positions[std::size_t(base + row * 11)]);
    }
    QVERIFY(positions[120].z() > 1.0F);
}

void TestClothPreview::bordersOfTwoMaterialsStayClosed_data()
{
    QTest::addColumn<bool>("bothSimulate");
    QTest::newRow("one of them simulates") << false;
    QTest::newRow("both simulate") << true;
}

void TestClothPreview::bordersOfTwoMaterialsStayClosed()
{
    QFETCH(bool, bothSimulate);
    Host::Scene scene;
    Host::Object& object = scene.AddObject(PreviewSamples::TwoSquares());
    for (int side = 0; side < (bothSimulate ? 2 : 1); ++side) {
        auto& slot = object.meshes[0].materialSlots[std::size_t(side)];
        slot.cloth.active = true;
        slot.cloth.weight.image.filePath = anyFile;
        slot.cloth.wind.externalAcceleration = {0.0F, 0.0F, side == 0 ? 500.0F : -100.0F};
    }
    ClothPreview preview(Host::MakePreviewModel(object, HangingWeights));
    PreviewSamples::Run(preview, 1.0);
    const auto positions = PreviewSamples::Positions(preview);
    for (int row = 0; row <= 8; ++row) {
        const auto left = std::size_t(row * 9 + 8);
        const auto right = std::size_t(81 + row * 9);
        QVERIFY(positions[left] == positions[right]);
        QCOMPARE(positions[left] != object.meshes[0].positions[left], bothSimulate && row > 1);
    }
}

void TestClothPreview::sameCallsGiveTheSameMotion()
{
    Host::ClothValues values;
    values.property.drag = 0.5F;
    values.collision.rigidMargin = 0.5F;
    values.collision.selfCollision = true;
    values.collision.selfMargin = 0.4F;
    values.wind.externalAcceleration = {50.0F, 0.0F, 200.0F};
    values.wind.randomAcceleration = {200.0F, 50.0F, 200.0F};
    ClothShape shape = ClothSamples::LyingSheet(20, 2.0F, 25.0F);
    const PreviewModel model = PreviewSamples::WithBody(shape, ClothSamples::Ball(20.0F), values);
    const auto run = [&] {
        ClothPreview preview(model);
        preview.SetMotion({MotionKind::Turn, 0, true});
        PreviewSamples::Run(preview, 2.0);
        return PreviewSamples::Positions(preview);
    };
    const auto one = run();
    const auto other = run();
    QCOMPARE(std::memcmp(one.data(), other.data(), one.size() * sizeof(QVector3D)), 0);
}

void TestClothPreview::resetStartsAgain()
{
    Host::ClothValues values;
    values.wind.randomAcceleration = {200.0F, 50.0F, 200.0F};
    const PreviewModel model =
        PreviewSamples::WithBody(ClothSamples::LyingSheet(12, 3.0F, 25.0F), ClothSamples::Ball(20.0F), values);
    ClothPreview preview(model);
    preview.SetMotion({MotionKind::Sway, 0, true});
    PreviewSamples::Run(preview, 1.0);
    const auto first = PreviewSamples::Positions(preview);
    preview.Reset();
    QCOMPARE(preview.Time(), 0.0);
    QVERIFY(PreviewSamples::Positions(preview) == model.meshes[0].positions);
    PreviewSamples::Run(preview, 1.0);
    QVERIFY(PreviewSamples::Positions(preview) == first);
}

void TestClothPreview::paintingWeightsKeepsTheMotion()
{
    PreviewModel model = PreviewSamples::Of(ClothSamples::HangingSheet(10, 10, 3.0F));
    model.meshes[0].materialSlots[0].values.wind.externalAcceleration[2] = 300.0F;
    ClothPreview preview(model);
    PreviewSamples::Run(preview, 1.0);
    const auto before = PreviewSamples::Positions(preview);
    // The lower right corner is held from now on, and the upper left one is free.
    model.meshes[0].materialSlots[0].freedom[120] = 0.0F;
    model.meshes[0].materialSlots[0].freedom[0] = ClothSamples::freely;
    preview.SetModel(model);
    QVERIFY(PreviewSamples::Positions(preview) == before);
    QCOMPARE(preview.Time(), 1.0);
    PreviewSamples::Run(preview, 0.5);
    const auto after = PreviewSamples::Positions(preview);
    QVERIFY(after[120] == model.meshes[0].positions[120]);
    QVERIFY(after[0] != model.meshes[0].positions[0]);
}

void TestClothPreview::materialThatJoinsStartsAtTheModel()
{
    Host::Scene scene;
    Host::Object& object = scene.AddObject(PreviewSamples::TwoSquares());
    auto& slots = object.meshes[0].materialSlots;
    slots[0].cloth.active = true;
    ClothPreview preview(Host::MakePreviewModel(object, NoImage));
    PreviewSamples::Run(preview, 0.5);
    const auto before = PreviewSamples::Positions(preview);
    slots[1].cloth.active = true;
    preview.SetModel(Host::MakePreviewModel(object, NoImage));
    const auto joined = PreviewSamples::Positions(preview);
    QVERIFY(joined[0] == before[0]);
    QVERIFY(joined[161] == object.meshes[0].positions[161]);
    QCOMPARE(preview.Time(), 0.5);
    PreviewSamples::Run(preview, 0.5);
    QVERIFY(PreviewSamples::Positions(preview)[161].y() < object.meshes[0].positions[161].y());
}

void TestClothPreview::anotherObjectStartsFromTheBeginning()
{
    PreviewModel model = PreviewSamples::Of(ClothSamples::HangingSheet(10, 10, 3.0F));
    ClothPreview preview(model);
    PreviewSamples::Run(preview, 0.5);
    model.object = reinterpret_cast<BF::CHandle*>(std::uintptr_t{32});
    preview.SetModel(model);
    QCOMPARE(preview.Time(), 0.0);
    QVERIFY(PreviewSamples::Positions(preview) == model.meshes[0].positions);
}

void TestClothPreview::motionStartsAtRestAndEndsThere_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("sway") << int(MotionKind::Sway);
    QTest::newRow("turn") << int(MotionKind::Turn);
    QTest::newRow("jump") << int(MotionKind::Jump);
}

void TestClothPreview::motionStartsAtRestAndEndsThere()
{
    QFETCH(int, kind);
    Host::MotionChoice motion{MotionKind(kind), 0, true};
    const auto distance = [&](double time) {
        const Eigen::Isometry3d place = Host::PlaceAt(motion, time, 170.0);
        return (place.matrix() - Eigen::Matrix4d::Identity()).norm();
    };
    QCOMPARE(distance(0.0), 0.0);
    QVERIFY(distance(0.05) < 0.05);
    double most = 0.0;
    double mostAcceleration = 0.0;
    for (int i = 0; i < 600; ++i) {
        most = std::max(most, distance(i / 60.0));
        const auto felt = Host::AccelerationDuring(motion, i / 60.0, 1.0 / 60.0, 170.0);
        mostAcceleration = std::max(mostAcceleration, felt.linear.norm());
    }
    QVERIFY(most > 0.4);
    QVERIFY(mostAcceleration < 2000.0);
    QVERIFY(distance(20.0) > 0.0 || distance(20.3) > 0.0);
    motion.loop = false;
    QCOMPARE(distance(20.0), 0.0);
    QCOMPARE(distance(20.3), 0.0);
}

void TestClothPreview::normalsAreThoseOfTheSurface()
{
    ClothPreview preview(PreviewSamples::WithBody(ClothSamples::LyingSheet(2, 2.0F, 50.0F), ClothSamples::Ball(10.0F)));
    Host::PreviewFrame frame;
    preview.Read(frame);
    QCOMPARE(frame.meshes.size(), std::size_t{2});
    QCOMPARE(frame.meshes[1].normals.size(), frame.meshes[1].positions.size());
    for (std::size_t i = 0; i < frame.meshes[1].normals.size(); ++i) {
        const QVector3D outward = frame.meshes[1].positions[i].normalized();
        QVERIFY(QVector3D::dotProduct(outward, frame.meshes[1].normals[i]) > 0.99F);
        QVERIFY(std::fabs(frame.meshes[1].normals[i].length() - 1.0F) < 1e-5F);
    }
    QCOMPARE(frame.meshes[1].mesh, Host::Id{2});
}

void TestClothPreview::problemStopsUntilReset()
{
    PreviewModel model = PreviewSamples::Of(ClothSamples::Sheet(4, 4, 3.0F), PreviewSamples::Plain());
    model.meshes[0].materialSlots[0].values.wind.externalAcceleration[0] = 1e6F;
    ClothPreview preview(model);
    PreviewSamples::Run(preview, 2.0);
    QVERIFY(preview.Problem().endsWith(QLatin1Char('.')));
    const double time = preview.Time();
    PreviewSamples::Run(preview, 1.0);
    QCOMPARE(preview.Time(), time);
    preview.Reset();
    QVERIFY(preview.Problem().isEmpty());
    preview.Step();
    QVERIFY(preview.Problem().isEmpty());
    QVERIFY(preview.Time() > 0.0);
}

void TestClothPreview::strangePlacesStopThePreview_data()
{
    QTest::addColumn<float>("place");
    QTest::addColumn<bool>("inBody");
    for (const bool inBody : {false, true}) {
        for (const float place : {std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity(),
                                  -std::numeric_limits<float>::infinity(), std::numeric_limits<float>::max(), 1e20F}) {
            const QString name =
                QString::number(double(place)) + (inBody ? QStringLiteral(" body") : QStringLiteral(" cloth"));
            QTest::newRow(qPrintable(name)) << place << inBody;
        }
    }
}

/// Model files hold anything. Whatever it is, the preview comes back: with a reason, or with cloth that is sound.
void TestClothPreview::strangePlacesStopThePreview()
{
    QFETCH(float, place);
    QFETCH(bool, inBody);
    Host::ClothValues values;
    values.collision.rigidMargin = 0.5F;
    values.collision.selfCollision = true;
    values.collision.selfMargin = 0.5F;
    values.property.drag = 0.5F;
    PreviewModel model =
        PreviewSamples::WithBody(ClothSamples::LyingSheet(6, 2.0F, 12.0F), ClothSamples::Ball(10.0F), values);
    model.meshes[inBody ? 1 : 0].positions[5] = {place, 0.0F, 1.0F};
    for (const MotionKind kind : {MotionKind::Sway, MotionKind::Turn, MotionKind::Walk}) {
        ClothPreview preview(model);
        preview.SetMotion({kind, 0, true});
        PreviewSamples::Run(preview, 0.2);
        const auto positions = PreviewSamples::Positions(preview);
        const bool isSound = std::all_of(positions.begin(), positions.end(),
                                         [](const QVector3D& position) { return position.length() < 1e7F; });
        QVERIFY(!preview.Problem().isEmpty() || (isSound && inBody));
        preview.Reset();
        preview.Step();
        QVERIFY(!preview.Problem().isEmpty() || inBody);
    }
}

void TestClothPreview::emptyModelDoesNothing()
{
    ClothPreview preview{PreviewModel{}};
    PreviewSamples::Run(preview, 0.1);
    Host::PreviewFrame frame;
    preview.Read(frame);
    QVERIFY(frame.meshes.empty());
    QVERIFY(preview.Problem().isEmpty());
}

SOFTCLOTH_TEST_WITH(TestClothPreview, QCoreApplication)

#include "tst_cloth_preview.moc"
