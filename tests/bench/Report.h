#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// Measurements that can be trusted on any machine: not times, but how often the bare work fits into the product's.
namespace Bench {

/// A piece of work that can be done again and again.
struct Work
{
    std::function<void()> run;
    std::function<void()> prepare{}; ///< Before each run, outside the measured time; may be empty.
};

/// The measurements of one subject, printed as a table.
class Report
{
public:
    explicit Report(const QString& subject);

    /// Runs both works by turns, \p repetitions times each, and adds a line with the shortest time of each, which other
    /// programs have disturbed least, and the ratio of these, which is not to exceed \p bound; without one it is only
    /// printed.
    void Compare(const QString& name, const Work& product, const Work& bare, std::optional<double> bound,
                 int repetitions = 11);

    /// Adds a line with the median time of \p work and what one of its \p units takes; nothing bounds it.
    void Measure(const QString& name, const Work& work, int units, int repetitions = 5);

    /// Adds a line with a count that is not to exceed \p bound.
    void Count(const QString& name, int count, int bound);

    /// Adds a line with figures that were measured elsewhere. \param isWithin false when they miss their bound
    void Note(const QString& name, const QString& figures, bool isWithin = true);

    /// Prints the table. \return the exit code of the program: 0, or 1 when a bound was missed
    int Print() const;

private:
    void Add(const QString& name, const QString& figures, bool isWithin);

    QString m_subject;
    QStringList m_lines;
    bool m_allWithin = true;
};

} // namespace Bench
