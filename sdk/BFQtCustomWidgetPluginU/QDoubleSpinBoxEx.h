#pragma once

#include "BFQtCustomWidgetPluginU/Export.h"
#include "BFQtCustomWidgetPluginU/SpinBoxCommit.h"

#include <QDoubleSpinBox>

/// A spin box that tells when the user has committed an edit.
class BFQTCUSTOMWIDGETPLUGINU_EXPORT QDoubleSpinBoxEx : public SpinBoxCommit<QDoubleSpinBox>
{
    Q_OBJECT

public:
    explicit QDoubleSpinBoxEx(QWidget* parent = nullptr);

Q_SIGNALS:
    /// Once per committed edit that changed the value: on Return, on loss of focus, at the end of a run of arrow or
    /// wheel steps. Never for a value set by the program; typing alone commits nothing.
    void RecordEditingValue();

protected:
    void Committed() override;
};
