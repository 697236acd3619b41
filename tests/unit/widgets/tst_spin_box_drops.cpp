#include "tests/unit/widgets/SpinBoxTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>

#include <array>

using UserInput::ArrowOf;
using UserInput::PressKey;
using UserInput::ReleaseKey;
using UserInput::RepeatKey;
using UserInput::Wheel;

/// Edits that the user has not committed when the box is disabled or hidden, or is told to drop them.
class TestSpinBoxDrops : public SpinBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void editIsDropped_data();
    void editIsDropped();
    void valueOfTheProgramStays_data();
    void valueOfTheProgramStays();
    void unfinishedTextIsDropped();
    void boxWithoutAnEditOnlyTells();
    void nextEditIsCommitted_data();
    void nextEditIsCommitted();
    void heldKeyDoesNothingMore();
    void heldArrowButtonDoesNothingMore();
    void keyHeldElsewhereDoesNotStep();
    void dropInsideAStepEndsTheEdit();
    void dropTellsOnce();

private:
    void Drop(const QString& how);
    void Edit(const QString& what);
};

namespace {

const std::array<const char*, 5> drops{"told", "disabled", "window disabled", "hidden", "window hidden"};
const std::array<const char*, 5> edits{"typed", "key held", "button held", "wheel", "typed with tracking"};

/// Until the end of a run of wheel steps would be committed.
void WaitForWheelRun(const QString& edit)
{
    if (edit.endsWith(QLatin1String("wheel"))) {
        QTest::qWait(UserInput::longerThanWheelPause);
    }
}

} // namespace

void TestSpinBoxDrops::Drop(const QString& how)
{
    if (how == QLatin1String("told")) {
        QVERIFY(QMetaObject::invokeMethod(m_box, "DropEdit", Qt::DirectConnection));
    } else if (how == QLatin1String("disabled")) {
        m_box->setEnabled(false);
    } else if (how == QLatin1String("window disabled")) {
        m_window->setEnabled(false);
    } else if (how == QLatin1String("hidden")) {
        m_box->hide();
    } else {
        m_window->hide();
    }
}

/// Changes 5 without a commit.
void TestSpinBoxDrops::Edit(const QString& what)
{
    m_box->setKeyboardTracking(what == QLatin1String("typed with tracking"));
    if (what.startsWith(QLatin1String("typed"))) {
        Type(QStringLiteral("12"));
    } else if (what == QLatin1String("key held")) {
        PressKey(m_box, Qt::Key_Up);
        RepeatKey(m_box, Qt::Key_Up);
    } else if (what == QLatin1String("button held")) {
        QTest::mousePress(m_box, Qt::LeftButton, Qt::NoModifier, ArrowOf(m_box, QStyle::SC_SpinBoxUp));
    } else {
        Wheel(m_box, 1);
    }
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxDrops::editIsDropped_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("how");
    for (const char* what : edits) {
        for (const char* how : drops) {
            QTest::addRow("%s, %s", what, how) << QString::fromLatin1(what) << QString::fromLatin1(how);
        }
    }
}

void TestSpinBoxDrops::editIsDropped()
{
    QFETCH(QString, what);
    QFETCH(QString, how);
    const QString before = m_box->text();
    Edit(what);
    QVERIFY(m_box->text() != before);
    Drop(how);
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_box->text(), before);
    m_window->setEnabled(true);
    m_box->setEnabled(true);
    m_window->show();
    m_box->show();
    ReleaseKey(m_box, Qt::Key_Up);
    QTest::mouseRelease(m_box, Qt::LeftButton);
    m_window->FocusElsewhere();
    WaitForWheelRun(what);
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxDrops::valueOfTheProgramStays_data()
{
    QTest::addColumn<QString>("what");
    for (const char* what : edits) {
        QTest::newRow(what) << QString::fromLatin1(what);
    }
}

void TestSpinBoxDrops::valueOfTheProgramStays()
{
    QFETCH(QString, what);
    Edit(what);
    SetValue(30);
    Drop(QStringLiteral("told"));
    QCOMPARE(Value(), 30.0);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxDrops::unfinishedTextIsDropped()
{
    m_box->selectAll();
    QTest::keyClick(m_box, Qt::Key_Delete);
    QCOMPARE(SpinBoxTest::Edit()->text(), QString());
    Drop(QStringLiteral("told"));
    QVERIFY(SpinBoxTest::Edit()->text().startsWith(QLatin1Char('5')));
    QVERIFY(!SpinBoxTest::Edit()->isModified());
}

void TestSpinBoxDrops::boxWithoutAnEditOnlyTells()
{
    m_box->selectAll();
    QSignalSpy textChanges(SpinBoxTest::Edit(), &QLineEdit::textChanged);
    Drop(QStringLiteral("told"));
    QCOMPARE(textChanges.size(), 0);
    QVERIFY(SpinBoxTest::Edit()->hasSelectedText());
    QCOMPARE(Value(), 5.0);
}

void TestSpinBoxDrops::nextEditIsCommitted_data()
{
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("how");
    for (const char* what : {"key held", "button held"}) {
        for (const char* how : drops) {
            QTest::addRow("%s, %s", what, how) << QString::fromLatin1(what) << QString::fromLatin1(how);
        }
    }
}

void TestSpinBoxDrops::nextEditIsCommitted()
{
    QFETCH(QString, what);
    QFETCH(QString, how);
    Edit(what);
    Drop(how);
    if (how == QLatin1String("told")) {
        ReleaseKey(m_box, Qt::Key_Up);
        QTest::mouseRelease(m_box, Qt::LeftButton);
    }
    m_window->setEnabled(true);
    m_box->setEnabled(true);
    m_box->show();
    m_window->show();
    QApplication::setActiveWindow(m_window.get());
    QVERIFY(UserInput::Focus(m_box));
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(Value(), 6.0);
    QCOMPARE(m_commits, 1);
    QTest::mouseClick(m_box, Qt::LeftButton, Qt::NoModifier, ArrowOf(m_box, QStyle::SC_SpinBoxUp));
    QCOMPARE(Value(), 7.0);
    QCOMPARE(m_commits, 2);
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Return);
    QCOMPARE(Value(), 12.0);
    QCOMPARE(m_commits, 3);
}

void TestSpinBoxDrops::heldKeyDoesNothingMore()
{
    PressKey(m_box, Qt::Key_Up);
    Drop(QStringLiteral("told"));
    SetValue(30);
    for (int i = 0; i < 5; ++i) {
        RepeatKey(m_box, Qt::Key_Up);
    }
    // The box's own timer steps faster than this, once a key is held long enough.
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(Value(), 30.0);
    ReleaseKey(m_box, Qt::Key_Up);
    QCOMPARE(m_commits, 0);
    QTest::keyClick(m_box, Qt::Key_Up);
    QCOMPARE(Value(), 31.0);
    QCOMPARE(m_commits, 1);
}

void TestSpinBoxDrops::heldArrowButtonDoesNothingMore()
{
    const QPoint up = ArrowOf(m_box, QStyle::SC_SpinBoxUp);
    QTest::mousePress(m_box, Qt::LeftButton, Qt::NoModifier, up);
    QTRY_VERIFY(Value() > 6);
    Drop(QStringLiteral("told"));
    SetValue(30);
    QTest::qWait(UserInput::longerThanWheelPause);
    QCOMPARE(Value(), 30.0);
    UserInput::DragTo(m_box, ArrowOf(m_box, QStyle::SC_SpinBoxDown));
    QCOMPARE(Value(), 30.0);
    QTest::mouseRelease(m_box, Qt::LeftButton, Qt::NoModifier, up);
    QCOMPARE(m_commits, 0);
    QTest::mouseClick(m_box, Qt::LeftButton, Qt::NoModifier, up);
    QCOMPARE(Value(), 31.0);
    QCOMPARE(m_commits, 1);
}

/// The focus can come to a box while a key is held that was meant for another one.
void TestSpinBoxDrops::keyHeldElsewhereDoesNotStep()
{
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) {
        RepeatKey(m_box, key);
        ReleaseKey(m_box, key);
    }
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxDrops::dropInsideAStepEndsTheEdit()
{
    // As a host does that selects something else when it hears of the step.
    bool isFirst = true;
    const auto drop = [this, &isFirst] {
        if (isFirst) {
            isFirst = false;
            Drop(QStringLiteral("told"));
            SetValue(30);
        }
    };
    if (auto* box = qobject_cast<QSpinBox*>(m_box.data())) {
        connect(box, &QSpinBox::textChanged, this, drop);
    } else {
        connect(qobject_cast<QDoubleSpinBox*>(m_box.data()), &QDoubleSpinBox::textChanged, this, drop);
    }
    PressKey(m_box, Qt::Key_Up);
    QCOMPARE(Value(), 30.0);
    ReleaseKey(m_box, Qt::Key_Up);
    m_window->FocusElsewhere();
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxDrops::dropTellsOnce()
{
    QSignalSpy told(m_box, SIGNAL(EditDropped()));
    QVERIFY(told.isValid());
    Edit(QStringLiteral("typed"));
    Drop(QStringLiteral("told"));
    QCOMPARE(told.size(), 1);
}

SOFTCLOTH_TEST(TestSpinBoxDrops)

#include "tst_spin_box_drops.moc"
