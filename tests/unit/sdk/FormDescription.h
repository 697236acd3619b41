#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

class QWidget;

/// All that is known of a built form, for comparisons.
struct FormDescription
{
    explicit FormDescription(const QWidget& root);

    /// One line per object, in the order of their making: its depth, class, name; then what lies in it, for a layout
    /// its margins, stretch factors and items with their places, for a tab widget the titles, for a list its items, for
    /// a label its buddy.
    QStringList tree;
    /// Every property of every object, by the number of its line in the tree and the property's name.
    QMap<QString, QVariant> properties;
    /// The names of the widgets in the order of the tabulator key.
    QStringList focusChain;
};
