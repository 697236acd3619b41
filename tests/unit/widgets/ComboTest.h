#pragma once

#include "tests/support/TestCase.h"

#include <QPointer>
#include <QVector>
#include <QWidget>

#include <functional>
#include <memory>

class QAbstractSpinBox;
class QSlider;

namespace UserInput {
class Window;
} // namespace UserInput

/// Base of the tests of QComboSpinBox and QComboDoubleSpinBox: every test function runs with both.
///
/// The combo box starts with 5 in a range of 0 to 100, in an active window, without the focus.
class ComboTest : public TestCase
{
    Q_OBJECT

public:
    ComboTest();
    ~ComboTest() override;

protected:
    void SetUp() override;
    void TearDown() override;

    /// A further one of the class under test.
    static QWidget* NewCombo(QWidget* parent);

    double Value() const { return m_combo->property("value").toDouble(); }
    void SetValue(double value) { m_combo->setProperty("value", value); }
    QSlider* Slider() const;
    QAbstractSpinBox* Box() const;
    /// The value that the spin box half shows.
    double BoxValue() const;

    /// Types \p text over all that the spin box shows.
    void Type(const QString& text);
    /// Takes hold of the slider's handle, and lets it go.
    void PressHandle();
    void Release(const QPoint& position);
    /// The point of the slider where the handle is at half of the range.
    QPoint Away() const;
    /// Runs \p action with the new value at every ValueChanged.
    void OnChange(const std::function<void(double)>& action);
    /// Runs \p action at every EditFinished.
    void OnFinish(const std::function<void()>& action);

    std::unique_ptr<UserInput::Window> m_window;
    QPointer<QWidget> m_combo;
    QVector<double> m_changes; ///< The values reported by ValueChanged.
    int m_finished = 0;        ///< How often EditFinished came.

private Q_SLOTS:
    void initTestCase_data();
};
