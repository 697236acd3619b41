#pragma once

#include "tests/unit/sections/SectionFixture.h"

#include <MVPluginQt/Result.h>

#include <QString>
#include <QWidget>

#include <functional>

class CUiComponent;

/// Checks that hold for every section. Each fails the running test.
namespace FormChecks {

/// The component asks for exactly \p names, blank-separated, in this order, and finds them all in \p form.
void Component(CUiComponent& component, QWidget& form, const char* names);

/// Columns "className" and "names", and one row of them.
void AddClassColumns();
void AddClassRow(const char* className, const char* names);
/// The named objects of \p section are of exactly that class.
void Classes(const QWidget& section);

/// Columns "box", "minimum", "maximum", "step" and "suffix"; for a box they are its properties.
void AddRangeColumns();
void Range(const QWidget& section);

/// There are \p count boxes, and each tells what it does: in a tool tip of two sentences, in an accessible name, and
/// in a label that has it as buddy. No box tells of its value while the user types.
void Help(const QWidget& section, int count);

/// Tab leads from the expand button through the named widgets, in this order.
void TabOrder(QWidget& section, const char* names);

/// Rows of a state with nothing to show.
void AddNothingShownRows();
/// In such a state \p refresh answers 1, disables the group box, leaves \p box alone and asks no more than it must.
void NothingShown(SectionFixture& fixture, const QWidget& section, const std::function<BF::Result()>& refresh,
                  const char* box);

/// While the column "operation" names a failing one, \p refresh returns the failure and changes nothing.
void FailedRead(SectionFixture& fixture, const QWidget& section, const std::function<BF::Result()>& refresh,
                const char* box);

} // namespace FormChecks
