#pragma once

#include <QAbstractSpinBox>
#include <QTest>

/// The spin box that \p box is or, for a combo spin box, that it has beside its slider.
inline QAbstractSpinBox* SpinBoxOf(QWidget* box)
{
    auto* spinBox = qobject_cast<QAbstractSpinBox*>(box);
    return spinBox ? spinBox : box->findChild<QAbstractSpinBox*>();
}

/// Types \p text into a box in place of what it shows, without a Return.
inline void TypeInto(QWidget* box, const QString& text)
{
    QAbstractSpinBox* spinBox = SpinBoxOf(box);
    spinBox->setFocus(Qt::TabFocusReason);
    spinBox->selectAll();
    QTest::keyClicks(spinBox, text);
}

/// The same, and commits it with Return.
inline void Enter(QWidget* box, const QString& text)
{
    TypeInto(box, text);
    QTest::keyClick(SpinBoxOf(box), Qt::Key_Return);
}
