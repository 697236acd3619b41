#pragma once

#include "tests/support/TestCase.h"

#include <QAbstractSpinBox>
#include <QPointer>

#include <functional>
#include <memory>

class QLineEdit;

namespace UserInput {
class Window;
} // namespace UserInput

/// Base of the tests of QSpinBoxEx and QDoubleSpinBoxEx: every test function runs with both.
///
/// The box starts with 5 in a range of 0 to 99, in an active window, and has the focus.
class SpinBoxTest : public TestCase
{
    Q_OBJECT

public:
    SpinBoxTest();
    ~SpinBoxTest() override;

protected:
    void SetUp() override;
    void TearDown() override;

    /// Rows with keyboard tracking on and off, in the column "tracking".
    static void KeyboardTrackingRows();

    double Value() const { return m_box->property("value").toDouble(); }
    void SetValue(double value) { m_box->setProperty("value", value); }
    QLineEdit* Edit() const;

    /// Types \p text over all that is there.
    void Type(const QString& text);
    /// Runs \p action at every commit.
    void OnCommit(const std::function<void()>& action);

    std::unique_ptr<UserInput::Window> m_window;
    QPointer<QAbstractSpinBox> m_box;
    int m_commits = 0;

private Q_SLOTS:
    void initTestCase_data();
};
