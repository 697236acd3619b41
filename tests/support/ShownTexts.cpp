#include "tests/support/ShownTexts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStyle>
#include <QTabBar>
#include <QTableView>

namespace {

/// What Qt puts into its own widgets is Qt's affair, and what lies in the cells of a list or a table the scene's.
bool IsOurs(const QWidget* widget)
{
    for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QTabBar*>(parent) || qobject_cast<const QAbstractItemView*>(parent)) {
            return false;
        }
    }
    return !widget->objectName().startsWith(QLatin1String("qt_"));
}

QList<const QWidget*> WidgetsOf(const QWidget* form)
{
    QList<const QWidget*> widgets{form};
    const auto children = form->findChildren<QWidget*>();
    for (const QWidget* child : children) {
        if (IsOurs(child)) {
            widgets.append(child);
        }
    }
    return widgets;
}

QStringList TextsOfItems(const QWidget* widget)
{
    QStringList texts;
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            texts.append(tabs->tabText(i));
        }
    }
    const auto* table = qobject_cast<const QTableView*>(widget);
    for (int i = 0; table && table->model() && i < table->model()->columnCount(); ++i) {
        texts.append(table->model()->headerData(i, Qt::Horizontal).toString());
    }
    const auto* choice = qobject_cast<const QComboBox*>(widget);
    for (int i = 0; choice && i < choice->count(); ++i) {
        texts.append(choice->itemText(i));
    }
    // The presets are the form's; other lists hold what is in the scene.
    const auto* list = qobject_cast<const QListWidget*>(widget);
    for (int i = 0; list && list->viewMode() == QListView::IconMode && i < list->count(); ++i) {
        texts.append(list->item(i)->text());
    }
    return texts;
}

/// Whether \p widget shows something that takes a certain room.
bool HasContent(const QWidget* widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return !label->text().isEmpty() && !label->wordWrap();
    }
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
           qobject_cast<const QComboBox*>(widget);
}

bool IsCutOff(const QWidget* widget, const QWidget* form)
{
    // A form may hold a box narrower than its longest possible number.
    const QSize needed = widget->minimumSizeHint().boundedTo(widget->maximumSize());
    const QRect place(widget->mapTo(form, QPoint()), widget->size());
    return widget->width() < needed.width() || widget->height() < needed.height() || !form->rect().contains(place) ||
           !widget->parentWidget()->rect().contains(widget->geometry());
}

/// The items of \p widget that are narrower than their texts.
QStringList CutOffItems(const QWidget* widget)
{
    QStringList found;
    const QFontMetrics metrics = widget->fontMetrics();
    if (const auto* list = qobject_cast<const QListWidget*>(widget)) {
        const int margins = 2 * (list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, list) + 1);
        for (int i = 0; list->viewMode() == QListView::IconMode && i < list->count(); ++i) {
            const QListWidgetItem* item = list->item(i);
            if (list->gridSize().width() < metrics.horizontalAdvance(item->text()) + margins) {
                found.append(item->text());
            }
        }
    }
    if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            if (!tabs->rect().contains(tabs->tabRect(i)) ||
                tabs->tabRect(i).width() < metrics.horizontalAdvance(tabs->tabText(i))) {
                found.append(tabs->tabText(i));
            }
        }
    }
    if (const auto* table = qobject_cast<const QTableView*>(widget)) {
        const QHeaderView* header = table->horizontalHeader();
        for (int i = 0; !header->isHidden() && i < header->count(); ++i) {
            if (header->sectionSize(i) < header->sectionSizeHint(i)) {
                found.append(header->model()->headerData(i, Qt::Horizontal).toString());
            }
        }
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
        if (box->width() < box->minimumSizeHint().width()) {
            found.append(box->title());
        }
    }
    if (const auto* box = qobject_cast<const QAbstractSpinBox*>(widget)) {
        const auto* number = box->findChild<QLineEdit*>(QStringLiteral("qt_spinbox_lineedit"));
        if (number && number->width() < metrics.horizontalAdvance(number->text())) {
            found.append(number->text());
        }
    }
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    if (line && line->text().isEmpty() && line->width() < metrics.horizontalAdvance(line->placeholderText())) {
        found.append(line->placeholderText());
    }
    return found;
}

} // namespace

QVector<ShownText> ShownTexts(const QWidget* form)
{
    static const char* const properties[] = {"text",
                                             "title",
                                             "placeholderText",
                                             "suffix",
                                             "prefix",
                                             "toolTip",
                                             "statusTip",
                                             "whatsThis",
                                             "windowTitle",
                                             "accessibleName",
                                             "accessibleDescription"};
    QVector<ShownText> texts;
    const auto add = [&texts](const QWidget* widget, const char* property, const QString& text) {
        if (!text.trimmed().isEmpty()) {
            texts.append({widget, QLatin1String(property), text});
        }
    };
    const QList<const QWidget*> widgets = WidgetsOf(form);
    for (const QWidget* widget : widgets) {
        const bool isField = qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
        for (const char* property : properties) {
            if (!isField || qstrcmp(property, "text") != 0) {
                add(widget, property, widget->property(property).toString());
            }
        }
        const QStringList items = TextsOfItems(widget);
        for (const QString& item : items) {
            add(widget, "item", item);
        }
        const QList<QAction*> actions = widget->actions();
        for (const QAction* action : actions) {
            add(widget, "action", action->text());
        }
    }
    return texts;
}

QStringList CutOffTexts(const QWidget* form)
{
    QStringList found;
    const QList<const QWidget*> widgets = WidgetsOf(form);
    for (const QWidget* widget : widgets) {
        if (!widget->isVisible()) {
            continue;
        }
        if (widget != form && HasContent(widget) && IsCutOff(widget, form)) {
            const QSize needed = widget->minimumSizeHint();
            found.append(QStringLiteral("%1 has %2x%3 and needs %4x%5")
                             .arg(widget->objectName())
                             .arg(widget->width())
                             .arg(widget->height())
                             .arg(needed.width())
                             .arg(needed.height()));
        }
        found += CutOffItems(widget);
    }
    return found;
}

QStringList OverlappingTexts(const QWidget* form)
{
    QStringList found;
    const QList<const QWidget*> widgets = WidgetsOf(form);
    for (int i = 0; i < widgets.size(); ++i) {
        const QWidget* one = widgets.at(i);
        for (int j = i + 1; j < widgets.size(); ++j) {
            const QWidget* other = widgets.at(j);
            const bool areShown = one->isVisible() && other->isVisible() && HasContent(one) && HasContent(other);
            if (areShown && one->parentWidget() == other->parentWidget() &&
                one->geometry().intersects(other->geometry())) {
                found.append(one->objectName() + QLatin1String(" and ") + other->objectName());
            }
        }
    }
    return found;
}
