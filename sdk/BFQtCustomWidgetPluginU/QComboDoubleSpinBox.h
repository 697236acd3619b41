#pragma once

#include "BFQtCustomWidgetPluginU/ComboSpinBoxBase.h"
#include "BFQtCustomWidgetPluginU/Export.h"
#include "BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h"

/// A slider beside a spin box, for a decimal number.
class BFQTCUSTOMWIDGETPLUGINU_EXPORT QComboDoubleSpinBox : public ComboSpinBoxBase<QDoubleSpinBoxEx>
{
    Q_OBJECT
    Q_PROPERTY(int decimals READ Decimals WRITE SetDecimals)
    Q_PROPERTY(double minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(double maximum READ Maximum WRITE SetMaximum)
    Q_PROPERTY(double sliderMinimum READ SliderMinimum WRITE SetSliderMinimum RESET ResetSliderMinimum)
    Q_PROPERTY(double sliderMaximum READ SliderMaximum WRITE SetSliderMaximum RESET ResetSliderMaximum)
    Q_PROPERTY(double singleStep READ SingleStep WRITE SetSingleStep)
    Q_PROPERTY(QString prefix READ Prefix WRITE SetPrefix)
    Q_PROPERTY(QString suffix READ Suffix WRITE SetSuffix)
    Q_PROPERTY(double value READ Value WRITE SetValue NOTIFY ValueChanged USER true)

public:
    explicit QComboDoubleSpinBox(QWidget* parent = nullptr);

    /// How many decimals the value has; a value with more is rounded.
    int Decimals() const;
    void SetDecimals(int decimals);

Q_SIGNALS:
    /// On every change of the value, also while a slider is dragged and when the program sets it.
    void ValueChanged(double value);
    /// Once per committed edit that changed the value: slider let go, Return, loss of focus, end of a run of steps.
    void EditFinished();

protected:
    void TellValueChanged(double value) override;
    void TellEditFinished() override;
    bool IsValueFollowed() const override;
};
