#pragma once

#include "BFQtCustomWidgetPluginU/Export.h"
#include "BFQtCustomWidgetPluginU/SpinBoxCommit.h"

#include <QSpinBox>

/// A spin box that reports when the user has committed an edit. Points, commas and thousands separators are refused
/// unless the box itself shows them.
class BFQTCUSTOMWIDGETPLUGINU_EXPORT QSpinBoxEx : public SpinBoxCommit<QSpinBox>
{
    Q_OBJECT

public:
    explicit QSpinBoxEx(QWidget* parent = nullptr);

    QValidator::State validate(QString& input, int& position) const override;

    /// Drops what the user has typed or stepped and not committed: the box silently shows the value from before, and
    /// nothing is recorded. A box that is disabled or hidden does so by itself.
    Q_INVOKABLE void DropEdit();

Q_SIGNALS:
    /// Once per committed edit that changed the value: on Return, on loss of focus, at the end of a run of arrow or
    /// wheel steps. Never for a value set by the program; typing alone commits nothing.
    void RecordEditingValue();
    /// An edit, if there was one, was dropped.
    void EditDropped();

protected:
    void Committed() override;
    void Dropped() override;
};
