#include "host/simulation/ClothPreview.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/PreviewSamples.h"

#include <algorithm>
#include <cmath>

using Host::ClothPreview;
using Host::ClothShape;
using Host::ClothValues;
using Host::MotionKind;
using Host::PreviewModel;
using Host::Vector;

/// What each value of the panel does to the motion.
class TestPanelValues : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void valueChangesTheMotion_data();
    void valueChangesTheMotion();
    void valueActsWithoutAReset_data();
    void valueActsWithoutAReset();
};

namespace {

using Values = void (*)(ClothValues&);
using Scene = PreviewModel (*)(const ClothValues&);
using Measure = double (*)(ClothPreview&);

// --- scenes ---

/// 40 cm, hangs from its upper edge.
PreviewModel Curtain(const ClothValues& values)
{
    return PreviewSamples::Of(ClothSamples::HangingSheet(12, 16, 2.5F), values);
}

/// Held where it lies, by one edge: swings or droops.
PreviewModel Shelf(const ClothValues& values)
{
    ClothShape shape = ClothSamples::HangingSheet(12, 16, 2.5F);
    for (Vector& place : shape.rest) {
        place = {place.x(), 0.0F, -place.y(), 0.0F};
    }
    return PreviewSamples::Of(shape, values);
}

/// The same, so short that it can carry itself.
PreviewModel ShortShelf(const ClothValues& values)
{
    ClothShape shape = ClothSamples::HangingSheet(12, 6, 2.0F);
    std::fill_n(shape.freedom.begin(), 26, 0.0F); // two rows: it is clamped, not hinged
    for (Vector& place : shape.rest) {
        place = {place.x(), 0.0F, -place.y(), 0.0F};
    }
    return PreviewSamples::Of(shape, values);
}

/// Hangs from its upper edge, which points forwards; without gravity, so that nothing but its inertia moves it.
PreviewModel Banner(const ClothValues& values)
{
    ClothShape shape = ClothSamples::HangingSheet(12, 16, 2.5F);
    for (Vector& place : shape.rest) {
        place = {0.0F, place.y(), place.x() - 15.0F, 0.0F};
    }
    ClothValues weightless = values;
    weightless.useGlobalGravity = false;
    return PreviewSamples::Of(shape, weightless);
}

/// Lies off the middle above a ball.
PreviewModel OnABall(const ClothValues& values)
{
    ClothShape shape = ClothSamples::LyingSheet(16, 2.5F, 22.0F);
    for (Vector& place : shape.rest) {
        place.x() += 6.0F;
    }
    return PreviewSamples::WithBody(shape, ClothSamples::Ball(20.0F), values);
}

/// A held sheet and a free one 3 cm above it, of one material.
PreviewModel Layers(const ClothValues& values)
{
    ClothShape shape = ClothSamples::LyingSheet(12, 2.5F, 0.0F);
    std::fill(shape.freedom.begin(), shape.freedom.end(), 0.0F);
    const ClothShape upper = ClothSamples::LyingSheet(6, 2.5F, 3.0F);
    const int base = int(shape.rest.size());
    shape.rest.insert(shape.rest.end(), upper.rest.begin(), upper.rest.end());
    shape.freedom.insert(shape.freedom.end(), upper.freedom.begin(), upper.freedom.end());
    for (const auto& triangle : upper.triangles) {
        shape.triangles.push_back({triangle[0] + base, triangle[1] + base, triangle[2] + base});
    }
    return PreviewSamples::Of(shape, values);
}

// --- measures ---

QVector3D Middle(const ClothPreview& preview)
{
    QVector3D sum;
    const auto positions = PreviewSamples::Positions(preview);
    for (const QVector3D& position : positions) {
        sum += position;
    }
    return sum / float(positions.size());
}

double Lowest(const ClothPreview& preview)
{
    const auto positions = PreviewSamples::Positions(preview);
    return double(std::min_element(positions.begin(), positions.end(), [](const QVector3D& a, const QVector3D& b) {
                      return a.y() < b.y();
                  })->y());
}

/// How far the cloth hangs down after it has come to rest.
double Sag(ClothPreview& preview)
{
    PreviewSamples::Run(preview, 4.0);
    return -Lowest(preview);
}

/// How far the middle moves to and fro in the sixth second.
double Swing(ClothPreview& preview)
{
    PreviewSamples::Run(preview, 5.0);
    float low = 1e9F;
    float high = -1e9F;
    for (int i = 0; i < 90; ++i) {
        preview.Step();
        low = std::min(low, Middle(preview).z());
        high = std::max(high, Middle(preview).z());
    }
    return double(high - low);
}

/// The farthest that the cloth gets from where the model has it, while the object moves.
double Lag(ClothPreview& preview, MotionKind kind)
{
    const Host::MotionChoice motion{kind, 0, true};
    preview.SetMotion(motion);
    const auto rest = PreviewSamples::Positions(preview);
    const double height = 40.0;
    double most = 0.0;
    // The origin is below the middle of the model.
    const Eigen::Vector3d origin(0.0, -40.0, 0.0);
    for (int i = 1; i <= 240; ++i) {
        preview.Step();
        const Eigen::Isometry3d place = Host::PlaceAt(motion, preview.Time(), height);
        const auto positions = PreviewSamples::Positions(preview);
        double sum = 0.0;
        for (std::size_t k = 0; k < rest.size(); ++k) {
            const Eigen::Vector3d wanted(double(rest[k].x()), double(rest[k].y()), double(rest[k].z()));
            const Eigen::Vector3d is(double(positions[k].x()), double(positions[k].y()), double(positions[k].z()));
            sum += (place * (wanted - origin) + origin - is).norm();
        }
        most = std::max(most, sum / double(rest.size()));
    }
    return most;
}

double SwayLag(ClothPreview& preview)
{
    return Lag(preview, MotionKind::Sway);
}

double TurnLag(ClothPreview& preview)
{
    return Lag(preview, MotionKind::Turn);
}

/// How far the cloth's sides fly outwards when it turns.
double TurnWidth(ClothPreview& preview)
{
    preview.SetMotion({MotionKind::Turn, 0, true});
    double most = 0.0;
    for (int i = 0; i < 240; ++i) {
        preview.Step();
        for (const QVector3D& position : PreviewSamples::Positions(preview)) {
            most = std::max(most, double(std::hypot(position.x(), position.z())));
        }
    }
    return most;
}

double Aside(ClothPreview& preview)
{
    PreviewSamples::Run(preview, 3.0);
    return double(Middle(preview).z());
}

double NearestToBall(ClothPreview& preview)
{
    PreviewSamples::Run(preview, 1.0);
    double nearest = 1e9;
    for (const QVector3D& position : PreviewSamples::Positions(preview)) {
        nearest = std::min(nearest, double(position.length()));
    }
    return nearest;
}

/// How far the cloth has come down.
double Fallen(ClothPreview& preview)
{
    PreviewSamples::Run(preview, 1.0);
    return 30.0 - Lowest(preview);
}

double SlidOffBall(ClothPreview& preview)
{
    PreviewSamples::Run(preview, 1.0);
    return double(Middle(preview).x());
}

double HeightOfUpperLayer(ClothPreview& preview)
{
    PreviewSamples::Run(preview, 1.0);
    const auto positions = PreviewSamples::Positions(preview);
    return double(positions.back().y());
}

/// The path of the middle in three seconds.
double Restlessness(ClothPreview& preview)
{
    double sum = 0.0;
    QVector3D before = Middle(preview);
    for (int i = 0; i < 180; ++i) {
        preview.Step();
        sum += double((Middle(preview) - before).length());
        before = Middle(preview);
    }
    return sum;
}

/// How often the middle turns back in five seconds, by more than it flutters.
double Turns(ClothPreview& preview)
{
    constexpr float flutter = 0.5F;
    int turns = 0;
    float sense = 1.0F;
    float farthest = Middle(preview).z();
    for (int i = 0; i < 300; ++i) {
        preview.Step();
        const float now = Middle(preview).z();
        if ((now - farthest) * sense > 0.0F) {
            farthest = now;
        } else if ((farthest - now) * sense > flutter) {
            ++turns;
            sense = -sense;
            farthest = now;
        }
    }
    return turns;
}

const Values nothing = [](ClothValues&) {};

const struct
{
    const char* name;
    Scene scene;
    Measure measure;
    Values both;
    Values less; ///< Measures less than …
    Values more; ///< … this.
    double factor;
} rows[] = {
    {"more substeps: stiffer", Curtain, Sag, nothing, [](ClothValues& v) { v.property.solverFrequency = 600; },
     [](ClothValues& v) { v.property.solverFrequency = 60; }, 1.01},
    {"mass: less in the wind", Curtain, Aside,
     [](ClothValues& v) {
         v.property.drag = 0.5F;
         v.property.damping = 0.5F;
         v.wind.externalAcceleration[2] = 200.0F;
     },
     [](ClothValues& v) { v.property.mass = 10; }, [](ClothValues& v) { v.property.mass = 1; }, 1.3},
    {"mass: nothing without air", Curtain, Sag, nothing, [](ClothValues& v) { v.property.mass = 1; },
     [](ClothValues& v) { v.property.mass = 100; }, 1.0},
    {"friction: slides less", OnABall, SlidOffBall,
     [](ClothValues& v) {
         v.collision.collideWithRigid = true;
         v.collision.rigidMargin = 0.5F;
     },
     [](ClothValues& v) { v.property.friction = 0.9F; }, [](ClothValues& v) { v.property.friction = 0.0F; }, 1.2},
    {"damping: swings less", Shelf, Swing, nothing, [](ClothValues& v) { v.property.damping = 0.8F; },
     [](ClothValues& v) { v.property.damping = 0.0F; }, 2.0},
    {"drag without wind: swings less", Shelf, Swing, nothing, [](ClothValues& v) { v.property.drag = 0.5F; },
     [](ClothValues& v) { v.property.drag = 0.0F; }, 1.5},
    {"drag in wind: blown farther", Curtain, Aside,
     [](ClothValues& v) {
         v.property.damping = 0.5F;
         v.wind.externalAcceleration[2] = 200.0F;
     },
     [](ClothValues& v) { v.property.drag = 0.0F; }, [](ClothValues& v) { v.property.drag = 0.5F; }, 1.3},
    {"tether limit: hangs lower", Curtain, Sag, [](ClothValues& v) { v.property.stiffness = 0.05F; },
     [](ClothValues& v) { v.property.tetherLimit = 1.1F; }, [](ClothValues& v) { v.property.tetherLimit = 1.5F; }, 1.2},
    {"tether stiffness: hangs higher", Curtain, Sag,
     [](ClothValues& v) {
         v.property.stiffness = 0.05F;
         v.property.tetherLimit = 1.0F;
     },
     [](ClothValues& v) { v.property.tetherStiffness = 1.0F; },
     [](ClothValues& v) { v.property.tetherStiffness = 0.3F; }, 1.02},
    {"stiffness: hangs higher", Curtain, Sag, nothing, [](ClothValues& v) { v.property.stiffness = 0.9F; },
     [](ClothValues& v) { v.property.stiffness = 0.2F; }, 1.05},
    {"stiffness frequency: hangs higher", Curtain, Sag, [](ClothValues& v) { v.property.stiffness = 0.2F; },
     [](ClothValues& v) { v.property.stiffnessFrequency = 40.0F; },
     [](ClothValues& v) { v.property.stiffnessFrequency = 10.0F; }, 1.05},
    {"bending: droops less", ShortShelf, Sag, [](ClothValues& v) { v.property.damping = 0.9F; },
     [](ClothValues& v) { v.property.bending = 0.9F; }, [](ClothValues& v) { v.property.bending = 0.05F; }, 1.2},
    {"linear inertia", Banner, SwayLag, nothing, [](ClothValues& v) { v.property.linearInertiaScale = 0.2F; },
     [](ClothValues& v) { v.property.linearInertiaScale = 1.0F; }, 1.5},
    {"angular inertia", Banner, TurnLag, [](ClothValues& v) { v.property.centrifugalInertiaScale = 0.0F; },
     [](ClothValues& v) { v.property.angularInertiaScale = 0.2F; },
     [](ClothValues& v) { v.property.angularInertiaScale = 1.0F; }, 1.5},
    {"centrifugal inertia", Banner, TurnWidth,
     [](ClothValues& v) {
         v.property.angularInertiaScale = 0.0F;
         v.property.stiffness = 0.1F;
     },
     [](ClothValues& v) { v.property.centrifugalInertiaScale = 0.0F; },
     [](ClothValues& v) { v.property.centrifugalInertiaScale = 2.0F; }, 1.05},
    {"collision with the body", OnABall, Fallen, [](ClothValues& v) { v.collision.rigidMargin = 0.5F; },
     [](ClothValues& v) { v.collision.collideWithRigid = true; },
     [](ClothValues& v) { v.collision.collideWithRigid = false; }, 2.0},
    {"margin to the body", OnABall, NearestToBall, [](ClothValues& v) { v.collision.collideWithRigid = true; },
     [](ClothValues& v) { v.collision.rigidMargin = 0.5F; }, [](ClothValues& v) { v.collision.rigidMargin = 1.5F; },
     1.045},
    {"collision with itself", Layers, HeightOfUpperLayer, [](ClothValues& v) { v.collision.selfMargin = 0.5F; },
     [](ClothValues& v) { v.collision.selfCollision = false; },
     [](ClothValues& v) { v.collision.selfCollision = true; }, 0.0},
    {"margin to itself", Layers, HeightOfUpperLayer, [](ClothValues& v) { v.collision.selfCollision = true; },
     [](ClothValues& v) { v.collision.selfMargin = 0.5F; }, [](ClothValues& v) { v.collision.selfMargin = 1.5F; }, 2.0},
    {"gravity", Shelf, Sag, nothing, [](ClothValues& v) { v.useGlobalGravity = false; },
     [](ClothValues& v) { v.useGlobalGravity = true; }, 10.0},
    {"external acceleration", Curtain, Aside, [](ClothValues& v) { v.property.damping = 0.5F; },
     [](ClothValues& v) { v.wind.externalAcceleration[2] = 100.0F; },
     [](ClothValues& v) { v.wind.externalAcceleration[2] = 400.0F; }, 2.0},
    {"random acceleration", Curtain, Restlessness, nothing,
     [](ClothValues& v) { v.wind.randomAcceleration[2] = 20.0F; },
     [](ClothValues& v) { v.wind.randomAcceleration[2] = 200.0F; }, 2.0},
    {"random factor", Curtain, Restlessness, [](ClothValues& v) { v.wind.randomAcceleration[2] = 100.0F; },
     [](ClothValues& v) {
         v.wind.randomFactor = {0.0F, 0.5F};
     },
     [](ClothValues& v) {
         v.wind.randomFactor = {2.0F, 4.0F};
     },
     2.0},
    {"wind frequency", Curtain, Turns,
     [](ClothValues& v) {
         v.wind.randomAcceleration[2] = 500.0F;
         v.property.damping = 0.9F;
         v.property.drag = 1.0F;
     },
     [](ClothValues& v) { v.wind.frequency = 0.5F; }, [](ClothValues& v) { v.wind.frequency = 8.0F; }, 1.3},
};

double Measured(std::size_t number, bool more)
{
    const auto& row = rows[number];
    ClothValues values = PreviewSamples::Plain();
    row.both(values);
    (more ? row.more : row.less)(values);
    ClothPreview preview(row.scene(values));
    return row.measure(preview);
}

} // namespace

void TestPanelValues::valueChangesTheMotion_data()
{
    QTest::addColumn<int>("number");
    int number = 0;
    for (const auto& row : rows) {
        QTest::newRow(row.name) << number++;
    }
}

void TestPanelValues::valueChangesTheMotion()
{
    QFETCH(int, number);
    const double less = Measured(std::size_t(number), false);
    const double more = Measured(std::size_t(number), true);
    const double factor = rows[number].factor;
    const QString figures = QStringLiteral("%1 and %2").arg(less).arg(more);
    if (factor == 1.0) {
        QVERIFY2(less == more, qPrintable(figures));
    } else if (factor == 0.0) {
        QVERIFY2(less < 0.0 && more > 0.0, qPrintable(figures)); // through the layer, or on it
    } else {
        QVERIFY2(more > less * factor, qPrintable(figures));
    }
}

void TestPanelValues::valueActsWithoutAReset_data()
{
    valueChangesTheMotion_data();
}

/// The motion goes on from where it is, and as of then with the new value.
void TestPanelValues::valueActsWithoutAReset()
{
    QFETCH(int, number);
    const auto& row = rows[number];
    if (row.factor == 1.0) {
        return; // the one that changes nothing
    }
    ClothValues values = PreviewSamples::Plain();
    row.both(values);
    row.less(values);
    ClothPreview changed(row.scene(values));
    ClothPreview unchanged(row.scene(values));
    for (ClothPreview* preview : {&changed, &unchanged}) {
        preview->SetMotion({MotionKind::Sway, 0, true});
        PreviewSamples::Run(*preview, 0.05); // before anything has fallen through anything
    }
    values = PreviewSamples::Plain();
    row.both(values);
    row.more(values);
    const auto before = PreviewSamples::Positions(changed);
    changed.SetModel(row.scene(values));
    QVERIFY(PreviewSamples::Positions(changed) == before);
    QCOMPARE(changed.Time(), unchanged.Time());
    PreviewSamples::Run(changed, 0.5);
    PreviewSamples::Run(unchanged, 0.5);
    QVERIFY(PreviewSamples::Positions(changed) != PreviewSamples::Positions(unchanged));
}

SOFTCLOTH_TEST_WITH(TestPanelValues, QCoreApplication)

#include "tst_panel_values.moc"
