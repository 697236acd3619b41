#include "tests/bench/Report.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace Bench {

namespace {

constexpr double nanosecondsPerMillisecond = 1e6;
constexpr double nanosecondsPerMicrosecond = 1e3;

double Time(const Work& work)
{
    if (work.prepare) {
        work.prepare();
    }
    QElapsedTimer timer;
    timer.start();
    work.run();
    return double(timer.nsecsElapsed());
}

double Minimum(const std::vector<double>& times)
{
    return *std::min_element(times.begin(), times.end());
}

double Median(std::vector<double> times)
{
    const auto middle = times.begin() + std::ptrdiff_t(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

QString Milliseconds(double time)
{
    return QStringLiteral("%1 ms").arg(time / nanosecondsPerMillisecond, 10, 'f', 3);
}

} // namespace

Report::Report(const QString& subject)
    : m_subject(subject)
{
}

void Report::Compare(const QString& name, const Work& product, const Work& bare, std::optional<double> bound,
                     int repetitions)
{
    // The first run of each fills the caches and does not count.
    Time(product);
    Time(bare);
    std::vector<double> productTimes;
    std::vector<double> bareTimes;
    for (int i = 0; i < repetitions; ++i) {
        productTimes.push_back(Time(product));
        bareTimes.push_back(Time(bare));
    }
    const double productTime = Minimum(productTimes);
    const double bareTime = Minimum(bareTimes);
    const double ratio = productTime / bareTime;
    QString figures = QStringLiteral("%1  bare %2  ratio %3")
                          .arg(Milliseconds(productTime), Milliseconds(bareTime))
                          .arg(ratio, 5, 'f', 2);
    if (bound) {
        figures += QStringLiteral("  at most %1").arg(*bound, 4, 'f', 2);
    }
    Add(name, figures, !bound || ratio <= *bound);
}

void Report::Measure(const QString& name, const Work& work, int units, int repetitions)
{
    std::vector<double> times;
    times.reserve(std::size_t(repetitions));
    for (int i = 0; i < repetitions; ++i) {
        times.push_back(Time(work));
    }
    const double time = Median(std::move(times));
    Add(name,
        QStringLiteral("%1  each %2 us")
            .arg(Milliseconds(time))
            .arg(time / units / nanosecondsPerMicrosecond, 0, 'f', 3),
        true);
}

void Report::Count(const QString& name, int count, int bound)
{
    Add(name, QStringLiteral("%1     at most %2").arg(count, 10).arg(bound), count <= bound);
}

void Report::Note(const QString& name, const QString& figures, bool isWithin)
{
    Add(name, figures, isWithin);
}

void Report::Add(const QString& name, const QString& figures, bool isWithin)
{
    m_lines.append(
        QStringLiteral("  %1%2%3").arg(name, -44).arg(figures, isWithin ? QString() : QStringLiteral("  MISSED")));
    m_allWithin = m_allWithin && isWithin;
}

int Report::Print() const
{
    QTextStream(stdout) << m_subject << '\n' << m_lines.join(QLatin1Char('\n')) << '\n';
    return m_allWithin ? 0 : 1;
}

} // namespace Bench
