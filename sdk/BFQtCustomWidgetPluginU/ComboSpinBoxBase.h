#pragma once

#include "BFQtCustomWidgetPluginU/ComboSlider.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <QWidget>

#include <algorithm>
#include <cmath>
#include <optional>
#include <type_traits>
#include <utility>

/// What the two combo spin boxes have in common: a slider beside a spin box, one value, and one notion of a committed
/// edit over both. \p SpinBox is a host spin box; the derived class is the QObject with the signals.
///
/// The slider may have limits of its own, which keep it to the part of the range that is of everyday use: its whole
/// length covers that part then. The spin box takes and shows the values beyond them all the same. For such a
/// value the handle is at the nearer end, and changes nothing until the user moves it.
///
/// What the user has not committed is dropped by DropEdit(), and when the combo is disabled or hidden. A step that
/// somebody was told of as a changed value is not taken back by that: whoever follows the value has it.
template <class SpinBox>
class ComboSpinBoxBase : public QWidget
{
public:
    using Number = decltype(std::declval<const SpinBox&>().value());

    explicit ComboSpinBoxBase(QWidget* parent)
        : QWidget(parent)
        , m_slider(new ComboSlider(this))
        , m_spinBox(new SpinBox(this))
    {
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(m_slider, 1);
        layout->addWidget(m_spinBox);
        // With no policy of its own the combo would not be reached through a label's shortcut.
        setFocusProxy(m_spinBox);
        setFocusPolicy(Qt::StrongFocus);
        m_spinBox->setKeyboardTracking(false);
        // So that the numbers of several boxes are in one column, whatever their ranges and suffixes.
        m_spinBox->setMinimumWidth(96);
        m_spinBox->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        FitSlider();

        QObject::connect(m_slider, &QSlider::valueChanged, this, [this](int position) {
            const Number before = Value();
            {
                const QSignalBlocker silent(m_spinBox);
                m_spinBox->setValue(ValueAt(position));
            }
            if (Value() != before) {
                TellUsersValue();
            }
        });
        QObject::connect(m_spinBox, qOverload<Number>(&SpinBox::valueChanged), this, [this] {
            FitSlider();
            TellUsersValue();
        });
        QObject::connect(m_slider, &ComboSlider::EditEnded, this, [this] { FinishEdit(); });
        QObject::connect(m_spinBox, &SpinBox::RecordEditingValue, this, [this] { FinishEdit(); });
        QObject::connect(m_slider, &ComboSlider::EditDropped, this, [this] { DropEdit(); });
        QObject::connect(m_spinBox, &SpinBox::EditDropped, this, [this] { DropEdit(); });
    }

    ~ComboSpinBoxBase() override
    {
        // A closing window takes the focus from the halves, which ends an edit; nobody is left to be notified.
        m_slider->disconnect(this);
        m_spinBox->disconnect(this);
    }

    Q_DISABLE_COPY_MOVE(ComboSpinBoxBase)

    /// The value that both halves show.
    Number Value() const { return m_spinBox->value(); }

    /// Shows \p value, brought into the range. Tells of a changed value, but not of an edit. An edit ends with it,
    /// except one whose steps are followed and that has come to the same value: that goes on.
    void SetValue(Number value)
    {
        ChangeSilently([value](SpinBox& box) { box.setValue(value); });
        if (!IsValueFollowed()) {
            StartEditAnew();
        }
    }

    /// Drops what the user has typed, stepped or dragged and not committed, without a signal: the combo shows the value
    /// from before, or the last one that somebody was told of. Whatever is still held does nothing more.
    void DropEdit()
    {
        if (m_isDropping) {
            return;
        }
        m_isDropping = true;
        m_slider->DropEdit();
        m_spinBox->DropEdit();
        {
            const QSignalBlocker silent(m_spinBox);
            m_spinBox->setValue(m_settled);
        }
        FitSlider();
        StartEditAnew();
        m_isDropping = false;
    }

    Number Minimum() const { return m_spinBox->minimum(); }
    void SetMinimum(Number minimum)
    {
        ChangeSilently([minimum](SpinBox& box) { box.setMinimum(minimum); });
    }
    Number Maximum() const { return m_spinBox->maximum(); }
    void SetMaximum(Number maximum)
    {
        ChangeSilently([maximum](SpinBox& box) { box.setMaximum(maximum); });
    }

    /// The lowest value that the slider reaches: its own limit, brought into the range, or the minimum where none is
    /// set. A limit is kept as it was set, so that the range may come after it.
    Number SliderMinimum() const { return BroughtIntoRange(m_sliderMinimum.value_or(Minimum())); }
    void SetSliderMinimum(Number limit) { SetSliderLimit(m_sliderMinimum, limit); }
    /// Gives the slider the range's minimum again.
    void ResetSliderMinimum() { SetSliderLimit(m_sliderMinimum, std::nullopt); }
    /// The highest value that the slider reaches, likewise; never below SliderMinimum().
    Number SliderMaximum() const
    {
        return std::max(SliderMinimum(), BroughtIntoRange(m_sliderMaximum.value_or(Maximum())));
    }
    void SetSliderMaximum(Number limit) { SetSliderLimit(m_sliderMaximum, limit); }
    /// Gives the slider the range's maximum again.
    void ResetSliderMaximum() { SetSliderLimit(m_sliderMaximum, std::nullopt); }

    Number SingleStep() const { return m_spinBox->singleStep(); }
    void SetSingleStep(Number step)
    {
        m_spinBox->setSingleStep(step);
        FitSlider();
    }
    QString Prefix() const { return m_spinBox->prefix(); }
    void SetPrefix(const QString& prefix) { m_spinBox->setPrefix(prefix); }
    QString Suffix() const { return m_spinBox->suffix(); }
    void SetSuffix(const QString& suffix) { m_spinBox->setSuffix(suffix); }

protected:
    /// The value has changed, whoever changed it.
    virtual void TellValueChanged(Number value) = 0;
    /// The user has committed an edit.
    virtual void TellEditFinished() = 0;
    /// Whether there is anybody who is told of changed values.
    virtual bool IsValueFollowed() const = 0;

    const SpinBox& Box() const { return *m_spinBox; }

    /// Changes the spin box on behalf of the program. A new value starts the user's edit again.
    template <class Change>
    void ChangeSilently(Change change)
    {
        const Number before = Value();
        {
            const QSignalBlocker silent(m_spinBox);
            change(*m_spinBox);
        }
        FitSlider();
        if (Value() != before) {
            StartEditAnew();
            TellValueChanged(Value());
        }
    }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::Polish && m_spinBox->accessibleName().isEmpty()) {
            m_spinBox->setAccessibleName(accessibleName());
            m_slider->setAccessibleName(accessibleName());
        }
        return QWidget::event(event);
    }

private:
    Number BroughtIntoRange(Number value) const { return std::clamp(value, Minimum(), Maximum()); }

    void SetSliderLimit(std::optional<Number>& limit, std::optional<Number> value)
    {
        limit = value;
        FitSlider();
    }

    /// The value of one slider step; wide ranges get coarser steps.
    double Resolution() const
    {
        constexpr double mostSteps = 1000000.0;
        return std::max(FinestStep(), double(SliderMaximum()) / mostSteps - double(SliderMinimum()) / mostSteps);
    }

    double FinestStep() const
    {
        if constexpr (std::is_floating_point_v<Number>) {
            return std::pow(10.0, -m_spinBox->decimals());
        } else {
            return 1.0;
        }
    }

    /// The slider's position at its minimum: the value itself where a step is a whole number, so that the slider says
    /// what the box says, to a screen reader for example.
    int FirstPosition() const
    {
        if constexpr (std::is_floating_point_v<Number>) {
            return 0;
        } else {
            return Resolution() > 1.0 ? 0 : int(SliderMinimum());
        }
    }

    /// How many slider steps \p value is away from the slider's minimum. The difference of the two may be out of reach.
    double StepsTo(Number value) const
    {
        const double resolution = Resolution();
        return double(value) / resolution - double(SliderMinimum()) / resolution;
    }

    Number ValueAt(int position) const
    {
        const double resolution = Resolution();
        const double value =
            std::min((double(SliderMinimum()) / resolution + (double(position) - FirstPosition())) * resolution,
                     double(SliderMaximum()));
        if constexpr (std::is_floating_point_v<Number>) {
            return value;
        } else {
            return Number(std::lround(value));
        }
    }

    /// Brings the slider in line with the spin box.
    void FitSlider()
    {
        const QSignalBlocker silent(m_slider);
        const int steps = int(std::ceil(StepsTo(SliderMaximum()) - 0.001));
        const double singleStep = std::min(double(SingleStep()) / Resolution(), double(steps));
        const int first = FirstPosition();
        m_slider->setRange(first, first + steps);
        m_slider->setSingleStep(std::max(1, int(std::lround(singleStep))));
        m_slider->setPageStep(std::max(1, steps / 10));
        const Number nearest = std::clamp(Value(), SliderMinimum(), SliderMaximum());
        m_slider->setValue(first + int(std::lround(StepsTo(nearest))));
    }

    void TellUsersValue()
    {
        // Before anybody hears of it: in the call, this combo can be disabled or be given another value.
        if (IsValueFollowed()) {
            m_settled = Value();
        }
        TellValueChanged(Value());
    }

    void StartEditAnew()
    {
        m_editStart = Value();
        m_settled = Value();
    }

    void FinishEdit()
    {
        if (Value() != m_editStart) {
            StartEditAnew();
            TellEditFinished();
        }
    }

    ComboSlider* m_slider;
    SpinBox* m_spinBox;
    std::optional<Number> m_sliderMinimum;
    std::optional<Number> m_sliderMaximum;
    Number m_editStart{}; ///< The value before the user's current edit.
    Number m_settled{};   ///< The value that stays when that edit is dropped.
    bool m_isDropping = false;
};
