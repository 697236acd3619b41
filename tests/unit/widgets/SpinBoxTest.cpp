#include "tests/unit/widgets/SpinBoxTest.h"

#include "tests/unit/widgets/UserInput.h"

#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>

#include <QLineEdit>

#include <type_traits>

static_assert(std::is_base_of_v<QSpinBox, QSpinBoxEx>);
static_assert(std::is_same_v<decltype(&QSpinBoxEx::RecordEditingValue), void (QSpinBoxEx::*)()>);
static_assert(std::is_base_of_v<QDoubleSpinBox, QDoubleSpinBoxEx>);
static_assert(std::is_same_v<decltype(&QDoubleSpinBoxEx::RecordEditingValue), void (QDoubleSpinBoxEx::*)()>);

SpinBoxTest::SpinBoxTest() = default;

SpinBoxTest::~SpinBoxTest() = default;

void SpinBoxTest::initTestCase_data()
{
    QTest::addColumn<bool>("isDouble");
    QTest::newRow("QSpinBoxEx") << false;
    QTest::newRow("QDoubleSpinBoxEx") << true;
}

void SpinBoxTest::KeyboardTrackingRows()
{
    QTest::addColumn<bool>("tracking");
    QTest::newRow("keyboard tracking") << true;
    QTest::newRow("no keyboard tracking") << false;
}

void SpinBoxTest::SetUp()
{
    QFETCH_GLOBAL(bool, isDouble);
    m_window = std::make_unique<UserInput::Window>();
    if (isDouble) {
        m_box = new QDoubleSpinBoxEx(m_window.get());
    } else {
        m_box = new QSpinBoxEx(m_window.get());
    }
    m_window->Add(m_box);
    m_commits = 0;
    OnCommit([this] { ++m_commits; });
    m_box->setProperty("maximum", 99);
    SetValue(5);
    QVERIFY(m_window->Activate());
    QVERIFY(UserInput::Focus(m_box));
}

void SpinBoxTest::TearDown()
{
    m_window.reset();
}

QLineEdit* SpinBoxTest::Edit() const
{
    return m_box->findChild<QLineEdit*>();
}

void SpinBoxTest::Type(const QString& text)
{
    m_box->selectAll();
    QTest::keyClicks(m_box, text);
}

void SpinBoxTest::OnCommit(const std::function<void()>& action)
{
    if (auto* box = qobject_cast<QSpinBoxEx*>(m_box.data())) {
        connect(box, &QSpinBoxEx::RecordEditingValue, this, action);
    } else if (auto* doubleBox = qobject_cast<QDoubleSpinBoxEx*>(m_box.data())) {
        connect(doubleBox, &QDoubleSpinBoxEx::RecordEditingValue, this, action);
    }
}
