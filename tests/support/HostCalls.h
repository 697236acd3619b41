#pragma once

#include "host/services/HostApplication.h"
#include "panel/SoftClothSelection.h"

#include <QString>
#include <QStringList>

#include <functional>

/// What the journal of the stand-in host has recorded, as tests compare it. Taking empties the journal.

/// Whether an entry of the journal is of interest.
using EntryFilter = std::function<bool(const Host::JournalEntry&)>;

/// The texts of the calls that \p isWanted accepts, of all of them without it.
QStringList TakeCalls(Host::CallJournal& journal, const EntryFilter& isWanted = {});

/// The names of the operations that were called.
QStringList TakeOperations(Host::CallJournal& journal);

/// The names of the events that were sent.
QStringList TakeEvents(Host::CallJournal& journal);

/// What names the selected object, mesh and material in a call.
QString SelectionText(const Host::HostApplication& host, const MV::SoftClothSelection& selection);

/// A call on the selected material: \p arguments follow those that name it.
QString CallText(const Host::HostApplication& host, const MV::SoftClothSelection& selection, const char* operation,
                 const QStringList& arguments, const char* result = "0");

/// Runs \p action inside the next call of \p operation, as an event of the host or the user would.
void During(Host::HostApplication& host, const char* operation, std::function<void()> action);
