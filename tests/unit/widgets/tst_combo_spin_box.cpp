#include "tests/unit/widgets/ComboTest.h"
#include "tests/unit/widgets/UserInput.h"

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>
#include <QToolTip>

#include <limits>

/// The value, the range and the looks of a combo spin box, as the program sets them.
class TestComboSpinBox : public ComboTest
{
    Q_OBJECT

private Q_SLOTS:
    void setValueShowsInBothHalvesAndTellsOnce();
    void setValueOfTheSameValueTellsNothing();
    void setValueIsBroughtIntoTheRange_data();
    void setValueIsBroughtIntoTheRange();
    void setValueFinishesNothing();
    void blockedSignalsStillUpdateBothHalves();
    void blockedSignalsStillKeepBothHalvesTogether();
    void valueSetDuringADragIsNotFinished();
    void settingTheTellingValueKeepsTheDrag();
    void narrowerRangeChangesTheValue_data();
    void narrowerRangeChangesTheValue();
    void rangeWithoutRoomIsBearable();
    void sliderStepsThroughEveryValue();
    void singleStepHoldsForBothHalves();
    void wideRangesAreExactAtTheirEnds_data();
    void wideRangesAreExactAtTheirEnds();
    void wideRangeKeepsTheExactValue();
    void prefixAndSuffixAreShown();
    void propertiesAreThoseOfADesigner();

    void labelShortcutReachesTheSpinBox();
    void tabOrderHasTheSpinBoxOnly();
    void toolTipIsShownOverBothHalves();
    void accessibleNameIsThatOfBothHalves();
};

void TestComboSpinBox::setValueShowsInBothHalvesAndTellsOnce()
{
    SetValue(50);
    QCOMPARE(Value(), 50.0);
    QCOMPARE(BoxValue(), 50.0);
    QCOMPARE(Slider()->value(), Slider()->maximum() / 2);
    QCOMPARE(m_changes, QVector<double>({50.0}));
}

void TestComboSpinBox::setValueOfTheSameValueTellsNothing()
{
    SetValue(5);
    QVERIFY(m_changes.isEmpty());
}

void TestComboSpinBox::setValueIsBroughtIntoTheRange_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("shown");
    QTest::newRow("below") << -1.0 << 0.0;
    QTest::newRow("minimum") << 0.0 << 0.0;
    QTest::newRow("maximum") << 100.0 << 100.0;
    QTest::newRow("above") << 101.0 << 100.0;
}

void TestComboSpinBox::setValueIsBroughtIntoTheRange()
{
    QFETCH(double, value);
    QFETCH(double, shown);
    SetValue(value);
    QCOMPARE(Value(), shown);
    QCOMPARE(m_changes, QVector<double>({shown}));
}

void TestComboSpinBox::setValueFinishesNothing()
{
    SetValue(50);
    QVERIFY(UserInput::Focus(Box()));
    QTest::keyClick(Box(), Qt::Key_Return);
    QVERIFY(UserInput::Focus(Slider()));
    m_window->FocusElsewhere();
    QCOMPARE(m_finished, 0);
}

void TestComboSpinBox::blockedSignalsStillUpdateBothHalves()
{
    m_combo->blockSignals(true);
    SetValue(50);
    m_combo->blockSignals(false);
    QCOMPARE(BoxValue(), 50.0);
    QCOMPARE(Slider()->value(), Slider()->maximum() / 2);
    QVERIFY(m_changes.isEmpty());
}

void TestComboSpinBox::blockedSignalsStillKeepBothHalvesTogether()
{
    m_combo->blockSignals(true);
    PressHandle();
    UserInput::DragTo(Slider(), Away());
    Release(Away());
    QVERIFY(qAbs(Value() - 50) < 2);
    QCOMPARE(BoxValue(), Value());

    QVERIFY(UserInput::Focus(Box()));
    Type(QStringLiteral("100"));
    QTest::keyClick(Box(), Qt::Key_Return);
    QCOMPARE(Value(), 100.0);
    QCOMPARE(Slider()->value(), Slider()->maximum());
    m_combo->blockSignals(false);
    m_window->FocusElsewhere();
    QVERIFY(m_changes.isEmpty());
    QCOMPARE(m_finished, 0);
}

void TestComboSpinBox::valueSetDuringADragIsNotFinished()
{
    PressHandle();
    UserInput::DragTo(Slider(), Away());
    SetValue(9);
    Release(Away());
    QCOMPARE(Value(), 9.0);
    QCOMPARE(m_finished, 0);
    m_window->FocusElsewhere();
    QCOMPARE(m_finished, 0);
}

void TestComboSpinBox::settingTheTellingValueKeepsTheDrag()
{
    OnChange([this](double value) { SetValue(value); });
    PressHandle();
    UserInput::DragTo(Slider(), Away());
    Release(Away());
    QCOMPARE(m_finished, 1);
}

void TestComboSpinBox::narrowerRangeChangesTheValue_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<double>("limit");
    QTest::newRow("minimum") << QByteArray("minimum") << 7.0;
    QTest::newRow("maximum") << QByteArray("maximum") << 3.0;
}

void TestComboSpinBox::narrowerRangeChangesTheValue()
{
    QFETCH(QByteArray, property);
    QFETCH(double, limit);
    m_combo->setProperty(property.constData(), limit);
    QCOMPARE(m_combo->property(property.constData()).toDouble(), limit);
    QCOMPARE(Value(), limit);
    QCOMPARE(Slider()->value(), property == "minimum" ? Slider()->minimum() : Slider()->maximum());
    QCOMPARE(m_changes, QVector<double>({limit}));
    m_window->FocusElsewhere();
    QCOMPARE(m_finished, 0);
}

void TestComboSpinBox::rangeWithoutRoomIsBearable()
{
    m_combo->setProperty("minimum", 5);
    m_combo->setProperty("maximum", 5);
    QTest::mouseClick(Slider(), Qt::LeftButton, Qt::NoModifier, QPoint(Slider()->width() - 2, 5));
    QCOMPARE(Value(), 5.0);
    QVERIFY(m_changes.isEmpty());
}

void TestComboSpinBox::sliderStepsThroughEveryValue()
{
    QFETCH_GLOBAL(bool, isDouble);
    const double finest = isDouble ? 0.01 : 1.0;
    m_combo->setProperty("minimum", -3 * finest);
    m_combo->setProperty("maximum", 3 * finest);
    SetValue(-3 * finest);
    QCOMPARE(Slider()->maximum() - Slider()->minimum(), 6);
    for (int step = 0; step <= 6; ++step) {
        Slider()->setValue(Slider()->minimum() + step);
        QVERIFY(qAbs(Value() - (step - 3) * finest) < finest / 1000);
        QCOMPARE(BoxValue(), Value());
    }
}

void TestComboSpinBox::singleStepHoldsForBothHalves()
{
    m_combo->setProperty("singleStep", 4);
    QCOMPARE(m_combo->property("singleStep").toInt(), 4);
    QTest::keyClick(Box(), Qt::Key_Up);
    QCOMPARE(Value(), 9.0);
    QTest::keyClick(Slider(), Qt::Key_Right);
    QCOMPARE(Value(), 13.0);
}

void TestComboSpinBox::wideRangesAreExactAtTheirEnds_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::newRow("all of int") << double(std::numeric_limits<int>::min()) << double(std::numeric_limits<int>::max());
    QTest::newRow("1e9") << 0.0 << 1e9;
    QTest::newRow("-1e9") << -1e9 << 0.0;
}

void TestComboSpinBox::wideRangesAreExactAtTheirEnds()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    m_combo->setProperty("minimum", minimum);
    m_combo->setProperty("maximum", maximum);
    m_combo->setFixedWidth(800);

    for (const double end : {minimum, maximum}) {
        SetValue(end);
        QCOMPARE(Value(), end);
        QCOMPARE(Slider()->value(), end == minimum ? Slider()->minimum() : Slider()->maximum());
    }
    Slider()->setValue(Slider()->minimum());
    QCOMPARE(Value(), minimum);
    Slider()->setValue(Slider()->maximum());
    QCOMPARE(Value(), maximum);

    Slider()->setValue(Slider()->maximum() / 4);
    QVERIFY(qAbs((Value() - minimum) / (maximum - minimum) - 0.25) < 0.001);
    QTest::keyClick(Slider(), Qt::Key_Left);
    QVERIFY((Value() - minimum) / (maximum - minimum) < 0.25);
}

void TestComboSpinBox::wideRangeKeepsTheExactValue()
{
    m_combo->setProperty("maximum", 1e9);
    m_changes.clear();
    SetValue(123456789);
    QCOMPARE(Value(), 123456789.0);
    QCOMPARE(m_changes, QVector<double>({123456789.0}));
    QTest::mouseClick(Slider(), Qt::LeftButton, Qt::NoModifier, UserInput::HandleOf(Slider()).center());
    QCOMPARE(Value(), 123456789.0);
    QCOMPARE(m_changes.size(), 1);
}

void TestComboSpinBox::prefixAndSuffixAreShown()
{
    m_combo->setProperty("prefix", QStringLiteral("about "));
    m_combo->setProperty("suffix", QStringLiteral(" %"));
    QCOMPARE(m_combo->property("prefix").toString(), QStringLiteral("about "));
    QCOMPARE(m_combo->property("suffix").toString(), QStringLiteral(" %"));
    QVERIFY(Box()->text().startsWith(QStringLiteral("about 5")));
    QVERIFY(Box()->text().endsWith(QStringLiteral(" %")));
}

void TestComboSpinBox::propertiesAreThoseOfADesigner()
{
    QFETCH_GLOBAL(bool, isDouble);
    QStringList expected{QStringLiteral("minimum"),       QStringLiteral("maximum"),    QStringLiteral("sliderMinimum"),
                         QStringLiteral("sliderMaximum"), QStringLiteral("singleStep"), QStringLiteral("prefix"),
                         QStringLiteral("suffix"),        QStringLiteral("value")};
    if (isDouble) {
        expected.prepend(QStringLiteral("decimals"));
    }
    const QMetaObject* meta = m_combo->metaObject();
    QStringList names;
    for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
        QVERIFY(meta->property(i).isReadable() && meta->property(i).isWritable() && meta->property(i).isDesignable());
        names.append(QString::fromLatin1(meta->property(i).name()));
    }
    QCOMPARE(names, expected);
    QCOMPARE(meta->userProperty().name(), "value");
    QCOMPARE(meta->userProperty().notifySignal().name(), QByteArray("ValueChanged"));
}

void TestComboSpinBox::labelShortcutReachesTheSpinBox()
{
    auto* label = new QLabel(QStringLiteral("&Brightness"));
    label->setBuddy(m_combo);
    m_window->Add(label);
    label->show();
    QTest::keyClick(m_window->Other(), Qt::Key_B, Qt::AltModifier);
    QVERIFY(Box()->hasFocus());
}

void TestComboSpinBox::tabOrderHasTheSpinBoxOnly()
{
    auto* next = new QLineEdit;
    m_window->Add(next);
    next->show();
    QTest::keyClick(m_window->Other(), Qt::Key_Tab);
    QVERIFY(Box()->hasFocus());
    QTest::keyClick(Box(), Qt::Key_Tab);
    QVERIFY(next->hasFocus());
    QTest::keyClick(next, Qt::Key_Backtab);
    QVERIFY(Box()->hasFocus());
    QTest::keyClick(Box(), Qt::Key_Backtab);
    QVERIFY(m_window->Other()->hasFocus());
}

void TestComboSpinBox::toolTipIsShownOverBothHalves()
{
    m_combo->setToolTip(QStringLiteral("How bright the image is"));
    for (QWidget* half : {static_cast<QWidget*>(Slider()), static_cast<QWidget*>(Box())}) {
        QHelpEvent help(QEvent::ToolTip, half->rect().center(), half->mapToGlobal(half->rect().center()));
        QApplication::sendEvent(half, &help);
        QCOMPARE(QToolTip::text(), m_combo->toolTip());
        QToolTip::hideText();
        QTRY_VERIFY(!QToolTip::isVisible());
    }
}

void TestComboSpinBox::accessibleNameIsThatOfBothHalves()
{
    QWidget* combo = NewCombo(m_window.get());
    combo->setAccessibleName(QStringLiteral("Brightness"));
    m_window->Add(combo);
    combo->show();
    for (QWidget* half : {static_cast<QWidget*>(combo->findChild<QSlider*>()),
                          static_cast<QWidget*>(combo->findChild<QAbstractSpinBox*>())}) {
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(half);
        QVERIFY(accessible);
        QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Brightness"));
    }
}

SOFTCLOTH_TEST(TestComboSpinBox)

#include "tst_combo_spin_box.moc"
