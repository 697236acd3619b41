#include "tests/support/HostCalls.h"

#include "host/scene/Handles.h"

#include <memory>

namespace {

template <class TextOf>
QStringList Take(Host::CallJournal& journal, Host::JournalEntry::Kind kind, const EntryFilter& isWanted, TextOf textOf)
{
    QStringList texts;
    for (const Host::JournalEntry& entry : journal.Entries()) {
        if (entry.kind == kind && (!isWanted || isWanted(entry))) {
            texts.append(textOf(entry));
        }
    }
    journal.Clear();
    return texts;
}

QString OperationOf(const Host::JournalEntry& entry)
{
    return entry.operation;
}

} // namespace

QStringList TakeCalls(Host::CallJournal& journal, const EntryFilter& isWanted)
{
    return Take(journal, Host::JournalEntry::Kind::Call, isWanted,
                [](const Host::JournalEntry& entry) { return entry.ToString(); });
}

QStringList TakeOperations(Host::CallJournal& journal)
{
    return Take(journal, Host::JournalEntry::Kind::Call, {}, OperationOf);
}

QStringList TakeEvents(Host::CallJournal& journal)
{
    return Take(journal, Host::JournalEntry::Kind::Event, {}, OperationOf);
}

QString SelectionText(const Host::HostApplication& host, const MV::SoftClothSelection& selection)
{
    const Host::JournalText text(host.CurrentScene());
    return QStringList{text(selection.object), text(Host::ToHandle(selection.mesh)),
                       text(Host::ToHandle(selection.material))}
        .join(QLatin1String(", "));
}

QString CallText(const Host::HostApplication& host, const MV::SoftClothSelection& selection, const char* operation,
                 const QStringList& arguments, const char* result)
{
    return QStringLiteral("%1(%2) -> %3")
        .arg(QLatin1String(operation),
             (QStringList{SelectionText(host, selection)} + arguments).join(QLatin1String(", ")),
             QLatin1String(result));
}

void During(Host::HostApplication& host, const char* operation, std::function<void()> action)
{
    auto connection = std::make_shared<QMetaObject::Connection>();
    const auto check = [&host, connection, name = QString::fromLatin1(operation),
                        action = std::move(action)](int index) {
        if (host.Journal().Entries().at(index).operation == name) {
            QObject::disconnect(*connection);
            action();
        }
    };
    *connection = QObject::connect(&host.Journal(), &Host::CallJournal::EntryAdded, &host, check);
}
