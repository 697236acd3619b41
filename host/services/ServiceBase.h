#pragma once

#include "host/scene/Handles.h"
#include "host/services/HostApplication.h"
#include "host/services/JournalText.h"

#include <functional>
#include <vector>

namespace Host {

/// One argument of a recorded call: a text, or a function that gives the text after the call (an out argument).
class JournalArgument
{
public:
    explicit JournalArgument(QString text)
        : m_text(std::move(text))
    {
    }
    explicit JournalArgument(std::function<QString()> after)
        : m_after(std::move(after))
    {
    }

    QString Before() const { return m_after ? QStringLiteral("…") : m_text; }
    QString After() const { return m_after ? m_after() : m_text; }

private:
    QString m_text;
    std::function<QString()> m_after;
};

/// Base of the services: the one way in which a call is recorded in the journal and checked against the fault plan.
class ServiceBase
{
protected:
    ServiceBase(HostApplication& host, const char* name)
        : m_host(host)
        , m_name(QLatin1String(name))
    {
    }
    ~ServiceBase() = default;

    Scene& CurrentScene() const { return m_host.CurrentScene(); }
    HostApplication& App() const { return m_host; }

    template <class T>
    JournalArgument In(const T& value) const
    {
        return JournalArgument(m_host.Text()(value));
    }
    /// A mesh or a material id, shown by name.
    JournalArgument InId(Id id) const { return In(ToHandle(id)); }
    template <class T>
    JournalArgument Out(const T& value) const
    {
        return JournalArgument([this, &value] { return m_host.Text()(value); });
    }
    JournalArgument OutIds(const BF::CArrayList<Id>& ids) const
    {
        return JournalArgument([this, &ids] {
            BF::CArrayList<const BF::CHandle*> handles;
            for (const Id id : ids) {
                handles.Add(ToHandle(id));
            }
            return m_host.Text()(handles);
        });
    }

    /// Records an operation that returns a status. \p body runs unless the fault plan lets the call fail.
    template <class Body>
    BF::Result Record(const char* operation, const std::vector<JournalArgument>& arguments, Body body) const
    {
        const qint64 entry = Begin(operation, arguments, true);
        const auto atEnd = m_host.Faults().Enter(QLatin1String(operation));
        const auto fault = m_host.Faults().Consult(QLatin1String(operation));
        const BF::Result result = fault ? *fault : body();
        if (atEnd) {
            atEnd();
        }
        End(entry, arguments, m_host.Text()(result));
        return result;
    }

    /// Records an operation that returns a plain value and cannot fail.
    template <class Body>
    auto RecordValue(const char* operation, const std::vector<JournalArgument>& arguments, Body body) const
        -> decltype(body())
    {
        const qint64 entry = Begin(operation, arguments, false);
        const auto atEnd = m_host.Faults().Enter(QLatin1String(operation));
        const auto value = body();
        if (atEnd) {
            atEnd();
        }
        End(entry, arguments, m_host.Text()(value));
        return value;
    }

private:
    qint64 Begin(const char* operation, const std::vector<JournalArgument>& arguments, bool hasStatus) const
    {
        JournalEntry entry;
        entry.service = m_name;
        entry.operation = QLatin1String(operation);
        entry.hasStatus = hasStatus;
        for (const JournalArgument& argument : arguments) {
            entry.arguments.append(argument.Before());
        }
        return m_host.Journal().Begin(std::move(entry));
    }

    void End(qint64 entry, const std::vector<JournalArgument>& arguments, const QString& result) const
    {
        QStringList texts;
        for (const JournalArgument& argument : arguments) {
            texts.append(argument.After());
        }
        m_host.Journal().End(entry, texts, result);
    }

    HostApplication& m_host;
    QString m_name;
};

} // namespace Host
