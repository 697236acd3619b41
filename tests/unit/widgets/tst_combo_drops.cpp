#include "tests/unit/widgets/ComboTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QAbstractSpinBox>
#include <QSlider>

#include <array>

using UserInput::DragTo;
using UserInput::Focus;
using UserInput::PointOf;
using UserInput::PressKey;
using UserInput::ReleaseKey;
using UserInput::RepeatKey;
using UserInput::Wheel;

/// Edits of a combo spin box that the user has not committed when it is disabled or hidden, or told to drop them.
class TestComboDrops : public ComboTest
{
    Q_OBJECT

private Q_SLOTS:
    void editIsDropped_data();
    void editIsDropped();
    void stepThatIsFollowedStays_data();
    void stepThatIsFollowedStays();
    void droppedDragDoesNothingMore();
    void droppedKeyOfTheSliderDoesNothingMore();
    void keyHeldElsewhereDoesNotMoveTheSlider();
    void nextDragFinishes();
    void refreshAfterADropWins();
    void refreshToTheSameValueEndsAnEdit();
    void refreshToTheSameValueKeepsAFollowedDrag();
    void refreshDropsTypedText();
    void dropInsideAFollowedStep_data();
    void dropInsideAFollowedStep();

private:
    void Drop(const QString& how);
    void Edit(const QString& what);
    void FollowNoMore() { disconnect(m_combo, nullptr, this, nullptr); }
    void CountFinishes()
    {
        OnFinish([this] { ++m_finished; });
    }
};

namespace {

const std::array<const char*, 4> drops{"told", "disabled", "window disabled", "hidden"};
const std::array<const char*, 6> edits{"typed", "box key", "box wheel", "drag", "slider key", "slider wheel"};

void Rows()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("how");
    for (const char* what : edits) {
        for (const char* how : drops) {
            QTest::addRow("%s, %s", what, how) << QString::fromLatin1(what) << QString::fromLatin1(how);
        }
    }
}

/// Until the end of a run of wheel steps would be committed.
void WaitForWheelRun(const QString& edit)
{
    if (edit.endsWith(QLatin1String("wheel"))) {
        QTest::qWait(UserInput::longerThanWheelPause);
    }
}

} // namespace

void TestComboDrops::Drop(const QString& how)
{
    if (how == QLatin1String("told")) {
        // A combo hears it from the half that is asked.
        QVERIFY(QMetaObject::invokeMethod(Box(), "DropEdit", Qt::DirectConnection));
    } else if (how == QLatin1String("disabled")) {
        m_combo->setEnabled(false);
    } else if (how == QLatin1String("window disabled")) {
        m_window->setEnabled(false);
    } else {
        m_combo->hide();
    }
}

/// Changes 5 without an end.
void TestComboDrops::Edit(const QString& what)
{
    QWidget* half = what.startsWith(QLatin1String("slider")) ? static_cast<QWidget*>(Slider()) : Box();
    if (what == QLatin1String("drag")) {
        PressHandle();
        DragTo(Slider(), Away());
        return;
    }
    QVERIFY(Focus(half));
    if (what == QLatin1String("typed")) {
        Type(QStringLiteral("12"));
    } else if (what.endsWith(QLatin1String("key"))) {
        PressKey(half, Qt::Key_Up);
        RepeatKey(half, Qt::Key_Up);
    } else {
        Wheel(half, 1);
    }
}

void TestComboDrops::editIsDropped_data()
{
    Rows();
}

void TestComboDrops::editIsDropped()
{
    QFETCH(QString, what);
    QFETCH(QString, how);
    FollowNoMore();
    CountFinishes();
    const QString before = Box()->text();
    const int handle = Slider()->value();
    Edit(what);
    QVERIFY(Box()->text() != before);
    Drop(how);
    QCOMPARE(Value(), 5.0);
    QCOMPARE(Box()->text(), before);
    QCOMPARE(Slider()->value(), handle);
    m_window->setEnabled(true);
    m_combo->setEnabled(true);
    m_combo->show();
    ReleaseKey(Box(), Qt::Key_Up);
    ReleaseKey(Slider(), Qt::Key_Up);
    Release(Away());
    m_window->FocusElsewhere();
    WaitForWheelRun(what);
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_finished, 0);
}

void TestComboDrops::stepThatIsFollowedStays_data()
{
    Rows();
}

void TestComboDrops::stepThatIsFollowedStays()
{
    QFETCH(QString, what);
    QFETCH(QString, how);
    Edit(what);
    const double told = m_changes.isEmpty() ? 5.0 : m_changes.constLast();
    QCOMPARE(m_changes.isEmpty(), what == QLatin1String("typed"));
    const int changes = m_changes.size();
    Drop(how);
    QCOMPARE(Value(), told);
    QCOMPARE(BoxValue(), told);
    m_window->setEnabled(true);
    m_combo->setEnabled(true);
    m_combo->show();
    ReleaseKey(Box(), Qt::Key_Up);
    ReleaseKey(Slider(), Qt::Key_Up);
    Release(Away());
    m_window->FocusElsewhere();
    WaitForWheelRun(what);
    QCOMPARE(Value(), told);
    QCOMPARE(m_changes.size(), changes);
    QCOMPARE(m_finished, 0);
}

void TestComboDrops::droppedDragDoesNothingMore()
{
    Edit(QStringLiteral("drag"));
    Drop(QStringLiteral("told"));
    SetValue(20);
    m_changes.clear();
    DragTo(Slider(), PointOf(Slider(), Slider()->maximum()));
    QCOMPARE(Value(), 20.0);
    Release(Away());
    QCOMPARE(Value(), 20.0);
    QVERIFY(m_changes.isEmpty());
    QCOMPARE(m_finished, 0);
}

void TestComboDrops::droppedKeyOfTheSliderDoesNothingMore()
{
    Edit(QStringLiteral("slider key"));
    Drop(QStringLiteral("told"));
    SetValue(20);
    RepeatKey(Slider(), Qt::Key_Up);
    QCOMPARE(Value(), 20.0);
    ReleaseKey(Slider(), Qt::Key_Up);
    QCOMPARE(m_finished, 0);
    QTest::keyClick(Slider(), Qt::Key_Up);
    QCOMPARE(Value(), 21.0);
    QCOMPARE(m_finished, 1);
}

void TestComboDrops::keyHeldElsewhereDoesNotMoveTheSlider()
{
    QVERIFY(Focus(Slider()));
    RepeatKey(Slider(), Qt::Key_Up);
    ReleaseKey(Slider(), Qt::Key_Up);
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_finished, 0);
}

void TestComboDrops::nextDragFinishes()
{
    Edit(QStringLiteral("drag"));
    Drop(QStringLiteral("disabled"));
    m_combo->setEnabled(true);
    SetValue(20);
    PressHandle();
    DragTo(Slider(), PointOf(Slider(), Slider()->maximum()));
    Release(Away());
    QCOMPARE(Value(), 100.0);
    QCOMPARE(m_finished, 1);
}

void TestComboDrops::refreshAfterADropWins()
{
    for (const bool isFollowed : {true, false}) {
        if (!isFollowed) {
            FollowNoMore();
            CountFinishes();
        }
        SetValue(5);
        Edit(QStringLiteral("slider key"));
        Drop(QStringLiteral("disabled"));
        SetValue(30);
        m_combo->setEnabled(true);
        Drop(QStringLiteral("hidden"));
        QCOMPARE(Value(), 30.0);
        m_combo->show();
        ReleaseKey(Slider(), Qt::Key_Up);
        QCOMPARE(Value(), 30.0);
        QCOMPARE(m_finished, 0);
    }
}

void TestComboDrops::refreshToTheSameValueEndsAnEdit()
{
    FollowNoMore();
    CountFinishes();
    QVERIFY(Focus(Box()));
    PressKey(Box(), Qt::Key_Up);
    SetValue(6);
    ReleaseKey(Box(), Qt::Key_Up);
    m_window->FocusElsewhere();
    QCOMPARE(Value(), 6.0);
    QCOMPARE(m_finished, 0);
}

void TestComboDrops::refreshToTheSameValueKeepsAFollowedDrag()
{
    Edit(QStringLiteral("drag"));
    SetValue(Value());
    Release(Away());
    QCOMPARE(m_finished, 1);
}

void TestComboDrops::refreshDropsTypedText()
{
    const QString before = Box()->text();
    Edit(QStringLiteral("typed"));
    SetValue(5);
    QCOMPARE(Box()->text(), before);
    m_window->FocusElsewhere();
    QVERIFY(m_changes.isEmpty());
    QCOMPARE(m_finished, 0);
}

void TestComboDrops::dropInsideAFollowedStep_data()
{
    Rows();
}

/// As a host does that hides the panel or selects something else in the very call that writes the step.
void TestComboDrops::dropInsideAFollowedStep()
{
    QFETCH(QString, what);
    QFETCH(QString, how);
    bool isFirst = true;
    OnChange([&](double /*value*/) {
        if (isFirst) {
            isFirst = false;
            Drop(how);
        }
    });
    Edit(what);
    if (what == QLatin1String("typed")) {
        QTest::keyClick(Box(), Qt::Key_Return);
    }
    QCOMPARE(m_changes.size(), 1);
    QCOMPARE(Value(), m_changes.constFirst());
    m_window->setEnabled(true);
    m_combo->setEnabled(true);
    m_combo->show();
    SetValue(40);
    ReleaseKey(Box(), Qt::Key_Up);
    ReleaseKey(Slider(), Qt::Key_Up);
    Release(Away());
    WaitForWheelRun(what);
    QCOMPARE(Value(), 40.0);
    QCOMPARE(BoxValue(), 40.0);
    QCOMPARE(m_finished, 0);
}

SOFTCLOTH_TEST(TestComboDrops)

#include "tst_combo_drops.moc"
