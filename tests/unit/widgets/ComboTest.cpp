#include "tests/unit/widgets/ComboTest.h"

#include "tests/unit/widgets/UserInput.h"

#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>

#include <QAbstractSpinBox>
#include <QSlider>

#include <type_traits>
#include <utility>

static_assert(std::is_same_v<decltype(std::declval<const QComboSpinBox&>().Value()), int>);
static_assert(std::is_same_v<decltype(&QComboSpinBox::ValueChanged), void (QComboSpinBox::*)(int)>);
static_assert(std::is_same_v<decltype(&QComboSpinBox::EditFinished), void (QComboSpinBox::*)()>);
static_assert(std::is_same_v<decltype(std::declval<const QComboDoubleSpinBox&>().Value()), double>);
static_assert(std::is_same_v<decltype(&QComboDoubleSpinBox::ValueChanged), void (QComboDoubleSpinBox::*)(double)>);
static_assert(std::is_same_v<decltype(&QComboDoubleSpinBox::EditFinished), void (QComboDoubleSpinBox::*)()>);

ComboTest::ComboTest() = default;

ComboTest::~ComboTest() = default;

void ComboTest::initTestCase_data()
{
    QTest::addColumn<bool>("isDouble");
    QTest::newRow("QComboSpinBox") << false;
    QTest::newRow("QComboDoubleSpinBox") << true;
}

QWidget* ComboTest::NewCombo(QWidget* parent)
{
    QFETCH_GLOBAL(bool, isDouble);
    if (isDouble) {
        return new QComboDoubleSpinBox(parent);
    }
    return new QComboSpinBox(parent);
}

void ComboTest::SetUp()
{
    m_window = std::make_unique<UserInput::Window>();
    m_combo = NewCombo(m_window.get());
    m_window->Add(m_combo);
    m_window->resize(400, 100);
    m_combo->setProperty("maximum", 100);
    SetValue(5);
    m_changes.clear();
    m_finished = 0;
    OnChange([this](double value) { m_changes.append(value); });
    OnFinish([this] { ++m_finished; });
    QVERIFY(m_window->Activate());
    m_window->FocusElsewhere();
}

void ComboTest::TearDown()
{
    m_window.reset();
}

QSlider* ComboTest::Slider() const
{
    return m_combo->findChild<QSlider*>();
}

QAbstractSpinBox* ComboTest::Box() const
{
    return m_combo->findChild<QAbstractSpinBox*>();
}

double ComboTest::BoxValue() const
{
    return Box()->property("value").toDouble();
}

void ComboTest::Type(const QString& text)
{
    Box()->selectAll();
    QTest::keyClicks(Box(), text);
}

void ComboTest::PressHandle()
{
    QTest::mousePress(Slider(), Qt::LeftButton, Qt::NoModifier, UserInput::HandleOf(Slider()).center());
}

void ComboTest::Release(const QPoint& position)
{
    QTest::mouseRelease(Slider(), Qt::LeftButton, Qt::NoModifier, position);
}

QPoint ComboTest::Away() const
{
    return UserInput::PointOf(Slider(), Slider()->maximum() / 2);
}

void ComboTest::OnChange(const std::function<void(double)>& action)
{
    if (auto* combo = qobject_cast<QComboSpinBox*>(m_combo.data())) {
        connect(combo, &QComboSpinBox::ValueChanged, this, action);
    } else if (auto* doubleCombo = qobject_cast<QComboDoubleSpinBox*>(m_combo.data())) {
        connect(doubleCombo, &QComboDoubleSpinBox::ValueChanged, this, action);
    }
}

void ComboTest::OnFinish(const std::function<void()>& action)
{
    if (auto* combo = qobject_cast<QComboSpinBox*>(m_combo.data())) {
        connect(combo, &QComboSpinBox::EditFinished, this, action);
    } else if (auto* doubleCombo = qobject_cast<QComboDoubleSpinBox*>(m_combo.data())) {
        connect(doubleCombo, &QComboDoubleSpinBox::EditFinished, this, action);
    }
}
