#include "tests/unit/widgets/SpinBoxTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QAction>
#include <QKeyEvent>

using UserInput::Focus;

/// The keys that a spin box shares with its window and its application: Escape, undo and redo.
class TestSpinBoxKeys : public SpinBoxTest
{
    Q_OBJECT

private Q_SLOTS:
    void escapeTakesTypedTextBack();
    void escapeIsTheWindowsWithKeyboardTracking();
    void escapeBringsTheSpecialValueTextBack();
    void escapeWithNothingToTakeBackReachesTheWindow();
    void undoReachesTheApplication_data();
    void undoReachesTheApplication();
    void undoTakesTypedTextBack_data();
    void undoTakesTypedTextBack();
    void redoStaysWithTypedText();
};

namespace {

/// Counts the presses of one key that a widget gets, its children's unused ones included.
class KeyCounter : public QObject
{
public:
    KeyCounter(QObject* watched, Qt::Key key)
        : m_key(key)
    {
        watched->installEventFilter(this);
    }
    int Count() const { return m_count; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == m_key) {
            ++m_count;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Qt::Key m_key;
    int m_count = 0;
};

/// An action of the application, and how often its shortcut has triggered it.
class Shortcut
{
public:
    Shortcut(QWidget* window, QKeySequence::StandardKey key)
    {
        m_action.setShortcut(QKeySequence(key));
        QObject::connect(&m_action, &QAction::triggered, &m_action, [this] { ++m_count; });
        window->addAction(&m_action);
    }
    int Count() const { return m_count; }

private:
    QAction m_action;
    int m_count = 0;
};

} // namespace

void TestSpinBoxKeys::escapeTakesTypedTextBack()
{
    m_box->setKeyboardTracking(false);
    const KeyCounter atWindow(m_window.get(), Qt::Key_Escape);
    const QString before = m_box->text();
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(m_box->text(), before);
    QCOMPARE(atWindow.Count(), 0);

    m_window->FocusElsewhere();
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxKeys::escapeIsTheWindowsWithKeyboardTracking()
{
    m_box->setKeyboardTracking(true);
    const KeyCounter atWindow(m_window.get(), Qt::Key_Escape);
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(Value(), 12.0);
    QCOMPARE(atWindow.Count(), 1);
}

void TestSpinBoxKeys::escapeBringsTheSpecialValueTextBack()
{
    m_box->setKeyboardTracking(false);
    m_box->setSpecialValueText(QStringLiteral("automatic"));
    SetValue(0);
    QCOMPARE(m_box->text(), QStringLiteral("automatic"));
    Type(QStringLiteral("12"));
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(m_box->text(), QStringLiteral("automatic"));
}

void TestSpinBoxKeys::escapeWithNothingToTakeBackReachesTheWindow()
{
    m_box->setKeyboardTracking(false);
    const KeyCounter atWindow(m_window.get(), Qt::Key_Escape);
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(atWindow.Count(), 1);

    Type(QStringLiteral("12"));
    Type(m_box->property("cleanText").toString());
    QTest::keyClick(m_box, Qt::Key_Escape);
    QTest::keyClick(m_box, Qt::Key_Escape);
    QCOMPARE(atWindow.Count(), 2);
}

void TestSpinBoxKeys::undoReachesTheApplication_data()
{
    QTest::addColumn<QKeySequence::StandardKey>("key");
    QTest::addColumn<QString>("before");
    for (const char* before : {"nothing", "step", "set", "Return", "focus away and back", "Escape"}) {
        QTest::addRow("undo after %s", before) << QKeySequence::Undo << QString::fromLatin1(before);
        QTest::addRow("redo after %s", before) << QKeySequence::Redo << QString::fromLatin1(before);
    }
}

void TestSpinBoxKeys::undoReachesTheApplication()
{
    QFETCH(QKeySequence::StandardKey, key);
    QFETCH(QString, before);
    m_box->setKeyboardTracking(false);
    const Shortcut shortcut(m_window.get(), key);

    if (before == QLatin1String("step")) {
        QTest::keyClick(m_box, Qt::Key_Up);
    } else if (before == QLatin1String("set")) {
        SetValue(9);
    } else if (before != QLatin1String("nothing")) {
        Type(QStringLiteral("12"));
        if (before == QLatin1String("Return")) {
            QTest::keyClick(m_box, Qt::Key_Return);
        } else if (before == QLatin1String("Escape")) {
            QTest::keyClick(m_box, Qt::Key_Escape);
        } else {
            m_window->FocusElsewhere();
            QVERIFY(Focus(m_box));
        }
    }
    QTest::keySequence(m_box, QKeySequence(key));
    QCOMPARE(shortcut.Count(), 1);
}

void TestSpinBoxKeys::undoTakesTypedTextBack_data()
{
    KeyboardTrackingRows();
}

void TestSpinBoxKeys::undoTakesTypedTextBack()
{
    QFETCH(bool, tracking);
    m_box->setKeyboardTracking(tracking);
    const Shortcut undo(m_window.get(), QKeySequence::Undo);

    const QString before = m_box->text();
    Type(QStringLiteral("12"));
    QTest::keySequence(m_box, QKeySequence::Undo);
    QCOMPARE(undo.Count(), 0);
    QCOMPARE(m_box->text(), before);
    QTest::keySequence(m_box, QKeySequence::Undo);
    QCOMPARE(undo.Count(), 1);
    m_window->FocusElsewhere();
    QCOMPARE(Value(), 5.0);
    QCOMPARE(m_commits, 0);
}

void TestSpinBoxKeys::redoStaysWithTypedText()
{
    m_box->setKeyboardTracking(false);
    const Shortcut redo(m_window.get(), QKeySequence::Redo);
    Type(QStringLiteral("12"));
    QTest::keySequence(m_box, QKeySequence::Redo);
    QCOMPARE(redo.Count(), 0);
    QVERIFY(m_box->text().startsWith(QStringLiteral("12")));
}

SOFTCLOTH_TEST(TestSpinBoxKeys)

#include "tst_spin_box_keys.moc"
