#include "ui/SignalBlocker.h"

#include "tests/support/TestCase.h"

#include <QSignalSpy>
#include <QSpinBox>

#include <memory>
#include <vector>

class TestSignalBlocker : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void blocksAtOnceAndRestoresAtTheEnd();
    void blocksAListOfWidgets();
    void widgetThatWasBlockedStaysBlocked();
    void everyWidgetGetsItsOwnStateBack();
    void widgetAddedTwiceGetsItsFirstStateBack_data();
    void widgetAddedTwiceGetsItsFirstStateBack();
    void nestedBlockersRestoreFromInsideOut();
    void stateIsRestoredWhateverHappenedInBetween();
    void nullIsPassedOver();
    void destroyedWidgetIsPassedOver();
};

void TestSignalBlocker::blocksAtOnceAndRestoresAtTheEnd()
{
    QSpinBox box;
    QSignalSpy changes(&box, QOverload<int>::of(&QSpinBox::valueChanged));
    {
        CSignalBlocker blocker;
        QVERIFY(!box.signalsBlocked());
        blocker.Add(&box);
        QVERIFY(box.signalsBlocked());
        box.setValue(7);
    }
    QCOMPARE(box.value(), 7);
    QCOMPARE(changes.size(), 0);
    QVERIFY(!box.signalsBlocked());
    box.setValue(8);
    QCOMPARE(changes.size(), 1);
}

void TestSignalBlocker::blocksAListOfWidgets()
{
    QSpinBox first;
    QSpinBox second;
    {
        const CSignalBlocker blocker({&first, nullptr, &second});
        QVERIFY(first.signalsBlocked());
        QVERIFY(second.signalsBlocked());
    }
    QVERIFY(!first.signalsBlocked());
    QVERIFY(!second.signalsBlocked());
}

void TestSignalBlocker::widgetThatWasBlockedStaysBlocked()
{
    QSpinBox box;
    box.blockSignals(true);
    {
        const CSignalBlocker blocker({&box});
        QVERIFY(box.signalsBlocked());
    }
    QVERIFY(box.signalsBlocked());
}

void TestSignalBlocker::everyWidgetGetsItsOwnStateBack()
{
    // More than one byte of states, in a pattern that differs from its mirror image.
    constexpr int count = 21;
    const auto wasBlocked = [](int i) { return i % 3 == 0 || i == 7; };
    std::vector<QSpinBox> boxes(count);
    {
        CSignalBlocker blocker;
        for (int i = 0; i < count; ++i) {
            boxes[i].blockSignals(wasBlocked(i));
            blocker.Add(&boxes[i]);
            QVERIFY(boxes[i].signalsBlocked());
        }
    }
    for (int i = 0; i < count; ++i) {
        QCOMPARE(boxes[i].signalsBlocked(), wasBlocked(i));
    }
}

void TestSignalBlocker::widgetAddedTwiceGetsItsFirstStateBack_data()
{
    QTest::addColumn<bool>("wasBlocked");
    QTest::newRow("free before") << false;
    QTest::newRow("blocked before") << true;
}

void TestSignalBlocker::widgetAddedTwiceGetsItsFirstStateBack()
{
    QFETCH(bool, wasBlocked);
    QSpinBox box;
    box.blockSignals(wasBlocked);
    {
        const CSignalBlocker blocker({&box, &box});
        QVERIFY(box.signalsBlocked());
    }
    QCOMPARE(box.signalsBlocked(), wasBlocked);
}

void TestSignalBlocker::nestedBlockersRestoreFromInsideOut()
{
    QSpinBox box;
    {
        const CSignalBlocker outer({&box});
        {
            const CSignalBlocker inner({&box});
        }
        QVERIFY(box.signalsBlocked());
    }
    QVERIFY(!box.signalsBlocked());
}

void TestSignalBlocker::stateIsRestoredWhateverHappenedInBetween()
{
    QSpinBox free;
    QSpinBox blocked;
    blocked.blockSignals(true);
    {
        const CSignalBlocker blocker({&free, &blocked});
        free.blockSignals(false);
        blocked.blockSignals(false);
    }
    QVERIFY(!free.signalsBlocked());
    QVERIFY(blocked.signalsBlocked());
}

void TestSignalBlocker::nullIsPassedOver()
{
    QSpinBox box;
    {
        CSignalBlocker blocker;
        blocker.Add(nullptr);
        blocker.Add(&box);
        QVERIFY(box.signalsBlocked());
    }
    QVERIFY(!box.signalsBlocked());
}

void TestSignalBlocker::destroyedWidgetIsPassedOver()
{
    QSpinBox blocked;
    blocked.blockSignals(true);
    QSpinBox free;
    {
        auto destroyed = std::make_unique<QSpinBox>();
        const CSignalBlocker blocker({&blocked, destroyed.get(), &free});
        destroyed.reset();
    }
    QVERIFY(blocked.signalsBlocked());
    QVERIFY(!free.signalsBlocked());
}

SOFTCLOTH_TEST(TestSignalBlocker)

#include "tst_signal_blocker.moc"
