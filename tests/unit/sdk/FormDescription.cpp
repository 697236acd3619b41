#include "tests/unit/sdk/FormDescription.h"

#include <QAction>
#include <QGridLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QListWidget>
#include <QMetaProperty>
#include <QPixmap>
#include <QTabWidget>
#include <QWidget>

namespace {

/// \p value as something that can be compared.
QVariant Comparable(const QMetaProperty& property, const QVariant& value)
{
    if (property.isEnumType()) {
        return value.toInt();
    }
    switch (value.userType()) {
    case QMetaType::QIcon:
        return value.value<QIcon>().pixmap(64).toImage();
    case QMetaType::QPixmap:
        return value.value<QPixmap>().toImage();
    default:
        return value;
    }
}

QString Text(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QString ItemText(QLayoutItem& item)
{
    QString text =
        QStringLiteral("alignment %1 expanding %2 ").arg(int(item.alignment())).arg(int(item.expandingDirections()));
    if (item.widget()) {
        return text + item.widget()->objectName();
    }
    if (item.layout()) {
        return text + item.layout()->objectName();
    }
    const QSizePolicy policy = item.spacerItem()->sizePolicy();
    return text + QStringLiteral("space %1 policy %2 %3")
                      .arg(Text(item.sizeHint()))
                      .arg(int(policy.horizontalPolicy()))
                      .arg(int(policy.verticalPolicy()));
}

QStringList LayoutLines(const QLayout& layout)
{
    const QMargins margins = layout.contentsMargins();
    QStringList lines{QStringLiteral("spacing %5 margins %1 %2 %3 %4")
                          .arg(margins.left())
                          .arg(margins.top())
                          .arg(margins.right())
                          .arg(margins.bottom())
                          .arg(layout.spacing())};
    const auto* grid = qobject_cast<const QGridLayout*>(&layout);
    const auto* box = qobject_cast<const QBoxLayout*>(&layout);
    for (int i = 0; i < layout.count(); ++i) {
        QString place;
        if (grid) {
            int row = 0;
            int column = 0;
            int rows = 0;
            int columns = 0;
            grid->getItemPosition(i, &row, &column, &rows, &columns);
            place = QStringLiteral("cell %1 %2 %3 %4 ").arg(row).arg(column).arg(rows).arg(columns);
        } else if (box) {
            place = QStringLiteral("stretch %1 ").arg(box->stretch(i));
        }
        lines.append(place + ItemText(*layout.itemAt(i)));
    }
    if (grid) {
        lines.append(QStringLiteral("spacing %1 %2").arg(grid->horizontalSpacing()).arg(grid->verticalSpacing()));
    }
    for (int i = 0; grid && i < grid->rowCount(); ++i) {
        lines.append(QStringLiteral("row stretch %1").arg(grid->rowStretch(i)));
    }
    for (int i = 0; grid && i < grid->columnCount(); ++i) {
        lines.append(QStringLiteral("column stretch %1").arg(grid->columnStretch(i)));
    }
    return lines;
}

/// What no property says about \p object.
QStringList ExtraLines(const QObject& object)
{
    QStringList lines;
    if (const auto* layout = qobject_cast<const QLayout*>(&object)) {
        lines = LayoutLines(*layout);
    } else if (const auto* label = qobject_cast<const QLabel*>(&object)) {
        lines.append(QStringLiteral("buddy ") + (label->buddy() ? label->buddy()->objectName() : QString()));
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(&object)) {
        for (int i = 0; i < tabs->count(); ++i) {
            lines.append(QStringLiteral("tab %1 %2").arg(tabs->tabText(i), tabs->widget(i)->objectName()));
        }
    }
    if (const auto* list = qobject_cast<const QListWidget*>(&object)) {
        for (int i = 0; i < list->count(); ++i) {
            const QListWidgetItem& item = *list->item(i);
            lines.append(QStringLiteral("item %1 flags %2").arg(item.text()).arg(int(item.flags())));
        }
    }
    if (const auto* widget = qobject_cast<const QWidget*>(&object)) {
        const auto actions = widget->actions();
        for (const QAction* action : actions) {
            lines.append(QStringLiteral("offers ") + action->objectName());
        }
    }
    return lines;
}

void Describe(const QObject& object, int depth, FormDescription& description)
{
    if (!object.isWidgetType() && object.objectName().isEmpty()) {
        return; // A helper of the reader's own.
    }
    const QString number = QStringLiteral("%1 ").arg(description.tree.size(), 4, 10, QLatin1Char('0'));
    const QString indent(depth, QLatin1Char(' '));
    const QMetaObject* meta = object.metaObject();
    description.tree.append(indent + QLatin1String(meta->className()) + QLatin1Char(' ') + object.objectName());
    const QStringList extras = ExtraLines(object);
    for (const QString& line : extras) {
        description.tree.append(indent + QLatin1String("- ") + line);
    }
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QVariant value = property.read(&object);
        if (!value.canConvert<QObject*>()) {
            description.properties.insert(number + object.objectName() + QLatin1Char('.') +
                                              QLatin1String(property.name()),
                                          Comparable(property, value));
        }
    }
    for (const QObject* child : object.children()) {
        Describe(*child, depth + 1, description);
    }
}

} // namespace

FormDescription::FormDescription(const QWidget& root)
{
    Describe(root, 0, *this);
    for (const QWidget* widget = root.nextInFocusChain(); widget != &root; widget = widget->nextInFocusChain()) {
        focusChain.append(widget->objectName());
    }
}
