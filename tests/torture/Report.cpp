#include "tests/torture/Report.h"

#include <QDataStream>
#include <QTextStream>

#include <utility>

namespace Torture {

namespace {

QString KindOf(const QString& options)
{
    if (options.contains(QLatin1String("--fault"))) {
        return options.contains(QLatin1String("--once")) ? QStringLiteral("call fails once")
                                                         : QStringLiteral("calls fail for good");
    }
    if (options.contains(QLatin1String("--event"))) {
        return QStringLiteral("event inside a call");
    }
    return options.contains(QLatin1String("--destroy")) ? QStringLiteral("death inside a call")
                                                        : QStringLiteral("nothing goes wrong");
}

} // namespace

Report::Report(QString program)
    : m_program(std::move(program))
{
}

void Report::Add(const QString& family, const QString& action, const QString& options, const QStringList& problems)
{
    Count& count = m_counts[QStringLiteral("%1, %2").arg(family, KindOf(options))];
    ++count.cases;
    if (!problems.isEmpty()) {
        ++count.failures;
        m_failures.append(
            {QStringLiteral("%1 --action %2 --family %3 %4").arg(m_program, action, family, options), problems});
    }
}

QByteArray Report::ToBytes() const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << m_counts.size();
    for (auto count = m_counts.begin(); count != m_counts.end(); ++count) {
        stream << count.key() << count->cases << count->failures;
    }
    stream << m_failures.size();
    for (const Failure& failure : m_failures) {
        stream << failure.repeat << failure.problems;
    }
    return bytes;
}

void Report::AddAll(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    int size = 0;
    for (stream >> size; size > 0; --size) {
        QString name;
        Count count;
        stream >> name >> count.cases >> count.failures;
        m_counts[name].cases += count.cases;
        m_counts[name].failures += count.failures;
    }
    for (stream >> size; size > 0; --size) {
        Failure failure;
        stream >> failure.repeat >> failure.problems;
        m_failures.append(failure);
    }
}

bool Report::Print(qint64 milliseconds) const
{
    QTextStream out(stdout);
    for (const Failure& failure : m_failures) {
        out << failure.repeat << '\n';
        for (const QString& problem : failure.problems) {
            out << "    " << problem << '\n';
        }
    }
    Count all;
    out << qSetFieldWidth(32) << Qt::left << "application, what goes wrong" << qSetFieldWidth(10) << Qt::right
        << "cases"
        << "failures" << qSetFieldWidth(0) << '\n';
    const auto line = [&out](const QString& name, const Count& count) {
        out << qSetFieldWidth(32) << Qt::left << name << qSetFieldWidth(10) << Qt::right << count.cases
            << count.failures << qSetFieldWidth(0) << '\n';
    };
    for (auto count = m_counts.begin(); count != m_counts.end(); ++count) {
        line(count.key(), *count);
        all.cases += count->cases;
        all.failures += count->failures;
    }
    line(QStringLiteral("all"), all);
    out << QString::number(double(milliseconds) / 1000, 'f', 1) << " s\n";
    return all.failures == 0;
}

} // namespace Torture
