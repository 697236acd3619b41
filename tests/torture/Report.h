#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Torture {

/// Counts cases and collects failures.
class Report
{
public:
    /// \param program  how the driver was called, for the command lines that repeat a failure
    explicit Report(QString program);

    /// Counts a case. \param options  those that repeat it \param problems  empty for a case that went well
    void Add(const QString& family, const QString& action, const QString& options, const QStringList& problems);

    QByteArray ToBytes() const;
    void AddAll(const QByteArray& bytes);

    /// Prints the failures and a table of the figures. \return whether there are no failures
    bool Print(qint64 milliseconds) const;

private:
    struct Failure
    {
        QString repeat;
        QStringList problems;
    };
    struct Count
    {
        int cases = 0;
        int failures = 0;
    };

    QString m_program;
    QMap<QString, Count> m_counts; ///< By family and kind of blow.
    QVector<Failure> m_failures;
};

} // namespace Torture
