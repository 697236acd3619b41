#pragma once

#include "BFQtCustomWidgetPluginU/ComboSpinBoxBase.h"
#include "BFQtCustomWidgetPluginU/Export.h"
#include "BFQtCustomWidgetPluginU/QSpinBoxEx.h"

/// A slider beside a spin box, for a whole number.
class BFQTCUSTOMWIDGETPLUGINU_EXPORT QComboSpinBox : public ComboSpinBoxBase<QSpinBoxEx>
{
    Q_OBJECT
    Q_PROPERTY(int minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(int maximum READ Maximum WRITE SetMaximum)
    Q_PROPERTY(int sliderMinimum READ SliderMinimum WRITE SetSliderMinimum RESET ResetSliderMinimum)
    Q_PROPERTY(int sliderMaximum READ SliderMaximum WRITE SetSliderMaximum RESET ResetSliderMaximum)
    Q_PROPERTY(int singleStep READ SingleStep WRITE SetSingleStep)
    Q_PROPERTY(QString prefix READ Prefix WRITE SetPrefix)
    Q_PROPERTY(QString suffix READ Suffix WRITE SetSuffix)
    Q_PROPERTY(int value READ Value WRITE SetValue NOTIFY ValueChanged USER true)

public:
    explicit QComboSpinBox(QWidget* parent = nullptr);

Q_SIGNALS:
    /// On every change of the value, also while a slider is dragged and when the program sets it.
    void ValueChanged(int value);
    /// Once per committed edit that changed the value: slider let go, Return, loss of focus, end of a run of steps.
    void EditFinished();

protected:
    void TellValueChanged(int value) override;
    void TellEditFinished() override;
    bool IsValueFollowed() const override;
};
