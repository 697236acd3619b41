#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QWidget;

/// A text that a form shows or holds ready, and where.
struct ShownText
{
    const QWidget* widget;
    QString property; ///< As in "toolTip".
    QString text;
};

/// All texts of \p form, its own and those of the widgets in it, that a program's author has written: labels, buttons,
/// titles, tabs, headers, units, tool tips, names for screen readers. What a user or the scene has named is left out:
/// the contents of fields, rows and cells.
QVector<ShownText> ShownTexts(const QWidget* form);

/// The texts and boxes of \p form that are cut off, by their own size or by what they lie in, each with its widget.
QStringList CutOffTexts(const QWidget* form);

/// The texts and boxes of \p form that lie over one another, in pairs.
QStringList OverlappingTexts(const QWidget* form);
