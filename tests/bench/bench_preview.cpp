// The cloth preview against another solver and against the clock. Times are the processor's, of this thread alone.
#include "host/simulation/BodyCollider.h"
#include "host/simulation/ClothPreview.h"
#include "tests/bench/BulletSheet.h"
#include "tests/bench/Report.h"
#include "tests/preview/DemoPreview.h"
#include "tests/unit/simulation/ClothSamples.h"
#include "tests/unit/simulation/PreviewSamples.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <functional>
#include <limits>

namespace {

using Host::Cloth;
using Host::ClothShape;
using Host::Vector;
using Host::Vectors;

constexpr float usualFrequency = 240.0F;
constexpr int framesCompared = 60;

double ProcessorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + 1e-9 * double(time.tv_nsec);
}

/// What \p work takes, in seconds.
double TimeOf(const std::function<void()>& work)
{
    const double before = ProcessorTime();
    work();
    return ProcessorTime() - before;
}

double Median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

struct Size
{
    int columns;
    int rows;
    int Vertices() const { return (columns + 1) * (rows + 1); }
};
constexpr Size sizes[] = {{31, 63}, {79, 127}, {159, 255}};

/// 1 m wide, held along one edge, lying flat: it swings down.
ClothShape Swinging(const Size& size)
{
    ClothShape shape = ClothSamples::HangingSheet(size.columns, size.rows, 100.0F / float(size.columns));
    for (Vector& place : shape.rest) {
        place = {place.x(), 0.0F, -place.y(), 0.0F};
    }
    return shape;
}

/// Those that a panel begins with, but for what is no cloth of its own: no damping, folds that Bullet can make, too.
/// \param tethers are what keeps cloth of many vertices from stretching; Bullet has none
Host::SolverValues Values(bool tethers)
{
    Host::SolverValues values = ClothSamples::Ideal(usualFrequency);
    values.bendModulus = 1e4F;
    if (tethers) {
        values.tetherLimit = 1.0F;
        values.tetherRate = std::numeric_limits<float>::infinity();
    }
    return values;
}

double MeanStrain(const std::vector<Host::StretchLink>& links, const Vectors& places)
{
    double sum = 0.0;
    for (const Host::StretchLink& link : links) {
        const float length = (places[std::size_t(link.a)] - places[std::size_t(link.b)]).norm();
        sum += std::fabs(double(length / link.length) - 1.0);
    }
    return sum / double(links.size());
}

struct Outcome
{
    double strain = 0.0;  ///< The mean over links and frames.
    double seconds = 0.0; ///< Of the processor for a second of motion.
    int iterations = 0;
};

Outcome RunOurs(const ClothShape& shape, bool tethers)
{
    Cloth cloth(shape);
    cloth.SetValues(Values(tethers));
    Outcome outcome;
    for (int i = 0; i < framesCompared; ++i) {
        outcome.seconds += TimeOf([&] { ClothSamples::Run(cloth, 1.0 / 60.0); });
        outcome.strain += MeanStrain(cloth.Links(), cloth.Positions()) / framesCompared;
    }
    return outcome;
}

Outcome RunBullet(const ClothShape& shape, int iterations)
{
    const auto links = Host::StretchLinks(shape);
    Bench::BulletSheet sheet(shape, iterations);
    Outcome outcome;
    outcome.iterations = iterations;
    for (int i = 0; i < framesCompared; ++i) {
        outcome.seconds += TimeOf([&] {
            for (int k = 0; k < int(usualFrequency) / 60; ++k) {
                sheet.Step(1.0F / usualFrequency);
            }
        });
        outcome.strain += MeanStrain(links, sheet.Positions()) / framesCompared;
    }
    return outcome;
}

QString Described(const Outcome& outcome)
{
    return QStringLiteral("%1 steps/s at %2 % strain")
        .arg(double(usualFrequency) / outcome.seconds, 7, 'f', 0)
        .arg(100.0 * outcome.strain, 5, 'f', 2);
}

/// Bullet with as many iterations as bring it to \p strain, or as take so long that it does not matter any more.
Outcome RunBulletTo(const ClothShape& shape, double strain, double longest)
{
    Outcome bullet;
    for (int iterations = 1; iterations <= 64; iterations *= 2) {
        bullet = RunBullet(shape, iterations);
        if (bullet.strain <= strain || bullet.seconds > longest) {
            break;
        }
    }
    return bullet;
}

void CompareWithBullet(Bench::Report& report)
{
    constexpr double least = 5.0;
    for (const Size& size : sizes) {
        const ClothShape shape = Swinging(size);
        // On both sides of the other.
        const Outcome before = RunOurs(shape, true);
        const Outcome bullet = RunBulletTo(shape, before.strain, 8.0 * before.seconds);
        Outcome ours = RunOurs(shape, true);
        ours.seconds = std::max(ours.seconds, before.seconds);
        const double factor = bullet.seconds / ours.seconds;
        report.Note(QStringLiteral("%1 vertices").arg(size.Vertices()), Described(ours));
        report.Note(QStringLiteral("  the same without tethers"), Described(RunOurs(shape, false)));
        report.Note(QStringLiteral("  Bullet, %1 iterations").arg(bullet.iterations),
                    QStringLiteral("%1  %2 x as long, at least %3")
                        .arg(Described(bullet))
                        .arg(factor, 0, 'f', 1)
                        .arg(least, 0, 'f', 0),
                    factor >= least);
    }
}

/// The best of several runs by turns, so that other work on the machine shows in none of them.
void CompareSizes(Bench::Report& report)
{
    constexpr double most = 1.3;
    constexpr int turns = 5;
    std::vector<double> best(std::size(sizes), std::numeric_limits<double>::max());
    for (int turn = 0; turn < turns; ++turn) {
        for (std::size_t i = 0; i < std::size(sizes); ++i) {
            Cloth cloth(Swinging(sizes[i]));
            cloth.SetValues(Values(true));
            ClothSamples::Run(cloth, 0.1);
            const double time = TimeOf([&] { ClothSamples::Run(cloth, 0.25); });
            best[i] = std::min(best[i], time / (0.25 * double(usualFrequency)) / sizes[i].Vertices());
        }
    }
    for (std::size_t i = 0; i < std::size(sizes); ++i) {
        const double growth = best[i] / best[0];
        report.Note(QStringLiteral("a step of %1 vertices").arg(sizes[i].Vertices()),
                    QStringLiteral("%1 ns each  %2 x, at most %3")
                        .arg(1e9 * best[i], 6, 'f', 1)
                        .arg(growth, 0, 'f', 2)
                        .arg(most, 0, 'f', 1),
                    growth <= most);
    }
}

/// The median time of a frame.
double FrameTime(Host::ClothPreview& preview, double seconds)
{
    Host::PreviewFrame frame;
    std::vector<double> times;
    for (int i = 0; i < int(60.0 * seconds); ++i) {
        times.push_back(TimeOf([&] {
            preview.Step();
            preview.Read(frame);
        }));
    }
    if (!preview.Problem().isEmpty()) {
        qFatal("%s", qPrintable(preview.Problem()));
    }
    return Median(std::move(times));
}

void MeasureFrames(Bench::Report& report)
{
    const auto note = [&report](const QString& name, double time, double most) {
        report.Note(name, QStringLiteral("%1 ms  at most %2").arg(1e3 * time, 6, 'f', 2).arg(1e3 * most, 0, 'f', 1),
                    time <= most);
    };
    const double frame = Host::ClothPreview::frameDuration;
    Host::PreviewModel model = Host::MakePreviewModel(
        DemoPreview::Character({QStringLiteral("Skirt"), QStringLiteral("Cape")}), DemoPreview::DecodeWeight);
    Host::ClothValues values = DemoPreview::Combined(DemoPreview::Presets(0).front(), DemoPreview::Presets(2).back());
    values.collision.collideWithRigid = true;
    values.collision.selfCollision = true;
    values.collision.selfMargin = std::max(0.3F, values.collision.selfMargin);
    DemoPreview::SetValues(model, values);
    Host::ClothPreview character(model);
    character.SetMotion({Host::MotionKind::Walk, 0, true});
    note(QStringLiteral("demo character walking, everything on"), FrameTime(character, 5.0), 0.012);

    ClothShape shape = ClothSamples::LyingSheet(141, 1.0F, 32.0F);
    Host::ClothPreview free(PreviewSamples::WithBody(shape, ClothSamples::Ball(30.0F, 96, 48)));
    note(QStringLiteral("%1 free vertices onto a ball").arg(shape.rest.size()), FrameTime(free, 3.0), 2.0 * frame);
}

/// How fast memory is: a[i] = b[i] + c × d[i] over more than any cache holds.
void MeasureMemory(Bench::Report& report)
{
    constexpr std::size_t count = 8'000'000;
    std::vector<double> a(count, 0.0);
    const std::vector<double> b(count, 1.0);
    const std::vector<double> c(count, 2.0);
    double best = std::numeric_limits<double>::max();
    for (int turn = 0; turn < 5; ++turn) {
        const double factor = 1.0 + turn;
        best = std::min(best, TimeOf([&] {
                            for (std::size_t i = 0; i < count; ++i) {
                                a[i] = b[i] + factor * c[i];
                            }
                        }));
    }
    report.Note(QStringLiteral("memory, triad"),
                QStringLiteral("%1 GB/s").arg(3.0 * sizeof(double) * count / best * 1e-9, 6, 'f', 1));
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    Bench::Report report(QStringLiteral("Cloth preview"));
    MeasureMemory(report);
    CompareWithBullet(report);
    CompareSizes(report);
    MeasureFrames(report);
    return report.Print();
}
