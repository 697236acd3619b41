#include "MVPluginQt/FormReader.h"

#include "MVPluginQt/FormClasses.h"
#include "MVPluginQt/FormLimits.h"
#include "MVPluginQt/FormValues.h"

#include <QAction>
#include <QDomDocument>
#include <QGridLayout>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMetaEnum>
#include <QTabWidget>
#include <QTableWidget>

#include <vector>

namespace MV::Internal {

namespace {

const QString nameAttribute = QStringLiteral("name");
const QString classAttribute = QStringLiteral("class");

QString NameOf(const QDomElement& element)
{
    return element.attribute(nameAttribute);
}

std::vector<QDomElement> Children(const QDomElement& parent, const QString& tag)
{
    std::vector<QDomElement> children;
    for (QDomElement child = parent.firstChildElement(tag); !child.isNull(); child = child.nextSiblingElement(tag)) {
        children.push_back(child);
    }
    return children;
}

void SetProperty(QObject* object, const QString& name, const QVariant& value)
{
    const QByteArray property = name.toLatin1();
    if (object->metaObject()->indexOfProperty(property.constData()) < 0) {
        qWarning("Form: %s has no property '%s'", object->metaObject()->className(), property.constData());
    } else if (value.isValid()) {
        object->setProperty(property.constData(), value);
    }
}

/// Calls \p add with the layout and, in a grid, with the cells of \p item.
template <class Add>
void InLayout(QLayout* layout, const QDomElement& item, Add add)
{
    if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        const auto number = [&item](const char* name, int otherwise) {
            return item.attribute(QLatin1String(name), QString::number(otherwise)).toInt();
        };
        add(grid, number("row", 0), number("column", 0), number("rowspan", 1), number("colspan", 1));
    } else if (auto* box = qobject_cast<QBoxLayout*>(layout)) {
        add(box);
    }
}

/// Sets what forms hold for a property of a layout and Qt does not. \return whether \p name is such a thing
bool SetLayoutValue(QLayout* layout, const QString& name, int value)
{
    QMargins margins = layout->contentsMargins();
    auto* grid = qobject_cast<QGridLayout*>(layout);
    if (name == QLatin1String("leftMargin")) {
        margins.setLeft(value);
    } else if (name == QLatin1String("topMargin")) {
        margins.setTop(value);
    } else if (name == QLatin1String("rightMargin")) {
        margins.setRight(value);
    } else if (name == QLatin1String("bottomMargin")) {
        margins.setBottom(value);
    } else if (grid && name == QLatin1String("horizontalSpacing")) {
        grid->setHorizontalSpacing(value);
        return true;
    } else if (grid && name == QLatin1String("verticalSpacing")) {
        grid->setVerticalSpacing(value);
        return true;
    } else {
        return false;
    }
    layout->setContentsMargins(margins);
    return true;
}

/// The stretch factors of a layout's rows or columns, as lists with commas.
void ApplyStretch(QLayout* layout, const QDomElement& element)
{
    const auto apply = [&element](const char* attribute, auto set) {
        const QStringList factors =
            element.attribute(QLatin1String(attribute)).split(QLatin1Char(','), Qt::SkipEmptyParts);
        for (int i = 0; i < factors.size(); ++i) {
            set(i, factors.at(i).toInt());
        }
    };
    if (auto* box = qobject_cast<QBoxLayout*>(layout)) {
        apply("stretch", [box](int index, int factor) { box->setStretch(index, factor); });
    } else if (auto* grid = qobject_cast<QGridLayout*>(layout)) {
        apply("rowstretch", [grid](int index, int factor) { grid->setRowStretch(index, factor); });
        apply("columnstretch", [grid](int index, int factor) { grid->setColumnStretch(index, factor); });
    }
}

/// Builds one form.
class CFormBuild
{
public:
    CFormBuild(const QDomElement& ui, const QDir& folder);

    QWidget* Root(const QDomElement& widget, QWidget* parent);

private:
    QWidget* Widget(const QDomElement& element, QWidget* parent);
    void Apply(QObject* object, const QDomElement& element);
    void ApplyToWidget(QWidget* widget, const QString& name, const QVariant& value);
    void ApplyHeaderAttributes(QTableWidget* table, const QDomElement& element) const;
    void AddListItems(QListWidget* list, const QDomElement& element) const;
    void AddPage(QWidget* page, const QDomElement& element, QTabWidget* tabs) const;
    void FillLayout(QLayout* layout, const QDomElement& element, QWidget* parent);
    void AddItem(QLayout* layout, const QDomElement& item, QWidget* parent);
    QSpacerItem* Spacer(const QDomElement& element) const;
    void ApplyTabStops(QWidget* root) const;
    void ApplyBuddies(QWidget* root) const;

    QDomElement m_ui;
    CFormValues m_values;
    QHash<QString, QString> m_baseClasses; ///< Of the form's custom widgets, by class.
    QVector<std::pair<QLabel*, QString>> m_buddies;
    QWidget* m_parent = nullptr; ///< Of the top widget.
};

CFormBuild::CFormBuild(const QDomElement& ui, const QDir& folder)
    : m_ui(ui)
    , m_values(folder, ui.firstChildElement(classAttribute).text())
{
    const QDomElement customWidgets = ui.firstChildElement(QStringLiteral("customwidgets"));
    for (const QDomElement& custom : Children(customWidgets, QStringLiteral("customwidget"))) {
        m_baseClasses.insert(custom.firstChildElement(classAttribute).text(),
                             custom.firstChildElement(QStringLiteral("extends")).text());
    }
}

QWidget* CFormBuild::Root(const QDomElement& widget, QWidget* parent)
{
    m_parent = parent;
    QWidget* root = Widget(widget, parent);
    if (root) {
        ApplyTabStops(root);
        ApplyBuddies(root);
    }
    return root;
}

QWidget* CFormBuild::Widget(const QDomElement& element, QWidget* parent)
{
    const QString className = element.attribute(classAttribute);
    auto* tabs = qobject_cast<QTabWidget*>(parent);
    // A page becomes a child of the tab widget when it is added, at the end.
    QWidget* widget = CreateFormWidget(className, m_baseClasses.value(className), tabs ? nullptr : parent);
    if (!widget) {
        return nullptr;
    }
    widget->setObjectName(NameOf(element));
    Apply(widget, element);
    for (const QDomElement& action : Children(element, QStringLiteral("action"))) {
        auto* made = new QAction(widget);
        made->setObjectName(NameOf(action));
        Apply(made, action);
    }
    for (const QDomElement& child : Children(element, QStringLiteral("widget"))) {
        Widget(child, widget);
    }
    for (const QDomElement& layout : Children(element, QStringLiteral("layout"))) {
        if (QLayout* made = CreateFormLayout(layout.attribute(classAttribute))) {
            widget->setLayout(made);
            FillLayout(made, layout, widget);
        }
    }
    if (auto* table = qobject_cast<QTableWidget*>(widget)) {
        ApplyHeaderAttributes(table, element);
    }
    if (auto* list = qobject_cast<QListWidget*>(widget)) {
        AddListItems(list, element);
    }
    if (tabs) {
        AddPage(widget, element, tabs);
    }
    return widget;
}

void CFormBuild::Apply(QObject* object, const QDomElement& element)
{
    for (const QDomElement& property : Children(element, QStringLiteral("property"))) {
        const QVariant value = m_values.Of(property);
        if (auto* widget = qobject_cast<QWidget*>(object)) {
            ApplyToWidget(widget, NameOf(property), value);
        } else {
            SetProperty(object, NameOf(property), value);
        }
    }
}

void CFormBuild::ApplyToWidget(QWidget* widget, const QString& name, const QVariant& value)
{
    if (name == QLatin1String("geometry") && widget->parentWidget() == m_parent) {
        // Where the top widget goes is not the form's affair.
        widget->resize(value.toRect().size());
        return;
    }
    auto* label = qobject_cast<QLabel*>(widget);
    if (label && name == QLatin1String("buddy")) {
        // It may come further down.
        m_buddies.append({label, value.toString()});
        return;
    }
    auto* frame = qobject_cast<QFrame*>(widget);
    if (frame && frame->metaObject() == &QFrame::staticMetaObject && name == QLatin1String("orientation")) {
        frame->setFrameShape(value == QLatin1String("Qt::Vertical") ? QFrame::VLine : QFrame::HLine);
        return;
    }
    SetProperty(widget, name, value);
}

/// Properties of a table's headers belong to the table, under names that start with the header's.
void CFormBuild::ApplyHeaderAttributes(QTableWidget* table, const QDomElement& element) const
{
    const std::pair<QString, QHeaderView*> headers[] = {
        {QStringLiteral("horizontalHeader"), table->horizontalHeader()},
        {QStringLiteral("verticalHeader"), table->verticalHeader()},
    };
    for (const QDomElement& attribute : Children(element, QStringLiteral("attribute"))) {
        for (const auto& [prefix, header] : headers) {
            if (NameOf(attribute).startsWith(prefix)) {
                QString property = NameOf(attribute).mid(prefix.size());
                property.replace(0, 1, property.mid(0, 1).toLower());
                SetProperty(header, property, m_values.Of(attribute));
            }
        }
    }
}

void CFormBuild::AddListItems(QListWidget* list, const QDomElement& element) const
{
    for (const QDomElement& item : Children(element, QStringLiteral("item"))) {
        auto* made = new QListWidgetItem(list);
        for (const QDomElement& property : Children(item, QStringLiteral("property"))) {
            if (NameOf(property) == QLatin1String("text")) {
                made->setText(m_values.Of(property).toString());
            } else {
                qWarning("Form: a list item has no property '%s'", qUtf8Printable(NameOf(property)));
            }
        }
    }
}

void CFormBuild::AddPage(QWidget* page, const QDomElement& element, QTabWidget* tabs) const
{
    // What Qt's own loader calls a page that has no title.
    QString title = QStringLiteral("Page");
    for (const QDomElement& attribute : Children(element, QStringLiteral("attribute"))) {
        if (NameOf(attribute) == QLatin1String("title")) {
            title = m_values.Of(attribute).toString();
        }
    }
    tabs->addTab(page, title);
}

void CFormBuild::FillLayout(QLayout* layout, const QDomElement& element, QWidget* parent)
{
    layout->setObjectName(NameOf(element));
    for (const QDomElement& property : Children(element, QStringLiteral("property"))) {
        const QVariant value = m_values.Of(property);
        if (!SetLayoutValue(layout, NameOf(property), value.toInt())) {
            SetProperty(layout, NameOf(property), value);
        }
    }
    for (const QDomElement& item : Children(element, QStringLiteral("item"))) {
        AddItem(layout, item, parent);
    }
    ApplyStretch(layout, element);
}

void CFormBuild::AddItem(QLayout* layout, const QDomElement& item, QWidget* parent)
{
    const QDomElement element = item.firstChildElement();
    if (element.tagName() == QLatin1String("widget")) {
        if (QWidget* widget = Widget(element, parent)) {
            InLayout(layout, item, [widget](auto* target, auto... cell) { target->addWidget(widget, cell...); });
        }
    } else if (element.tagName() == QLatin1String("layout")) {
        if (QLayout* nested = CreateFormLayout(element.attribute(classAttribute))) {
            InLayout(layout, item, [nested](auto* target, auto... cell) { target->addLayout(nested, cell...); });
            FillLayout(nested, element, parent);
        }
    } else if (element.tagName() == QLatin1String("spacer")) {
        QSpacerItem* spacer = Spacer(element);
        InLayout(layout, item, [spacer](auto* target, auto... cell) { target->addItem(spacer, cell...); });
    }
}

QSpacerItem* CFormBuild::Spacer(const QDomElement& element) const
{
    QHash<QString, QVariant> values;
    for (const QDomElement& property : Children(element, QStringLiteral("property"))) {
        values.insert(NameOf(property), m_values.Of(property));
    }
    const QSize size = values.value(QStringLiteral("sizeHint"), QSize(0, 0)).toSize();
    const QByteArray key =
        values.value(QStringLiteral("sizeType"), QStringLiteral("QSizePolicy::Expanding")).toByteArray();
    const auto along = QSizePolicy::Policy(QMetaEnum::fromType<QSizePolicy::Policy>().keyToValue(key.constData()));
    const bool isVertical = values.value(QStringLiteral("orientation")) == QLatin1String("Qt::Vertical");
    return isVertical ? new QSpacerItem(size.width(), size.height(), QSizePolicy::Minimum, along)
                      : new QSpacerItem(size.width(), size.height(), along, QSizePolicy::Minimum);
}

void CFormBuild::ApplyTabStops(QWidget* root) const
{
    QWidget* last = nullptr;
    const QDomElement tabStops = m_ui.firstChildElement(QStringLiteral("tabstops"));
    for (const QDomElement& tabStop : Children(tabStops, QStringLiteral("tabstop"))) {
        auto* next = root->findChild<QWidget*>(tabStop.text());
        if (!next) {
            qWarning("Form: tab stop '%s' is no widget of the form", qUtf8Printable(tabStop.text()));
            continue;
        }
        if (last) {
            QWidget::setTabOrder(last, next);
        }
        last = next;
    }
}

void CFormBuild::ApplyBuddies(QWidget* root) const
{
    for (const auto& [label, name] : m_buddies) {
        label->setBuddy(root->findChild<QWidget*>(name));
    }
}

} // namespace

QWidget* ReadForm(QIODevice& device, const QDir& workingFolder, QWidget* parent, QString& error)
{
    QBuffer form;
    if (!TakeForm(device, form, error)) {
        return nullptr;
    }
    QDomDocument document;
    int line = 0;
    if (!document.setContent(&form, &error, &line)) {
        error = QStringLiteral("line %1: %2").arg(line).arg(error);
        return nullptr;
    }
    const QDomElement ui = document.documentElement();
    const QDomElement top = ui.firstChildElement(QStringLiteral("widget"));
    if (ui.tagName() != QLatin1String("ui") || top.isNull()) {
        error = QStringLiteral("this is no form");
        return nullptr;
    }
    CFormBuild build(ui, workingFolder);
    QWidget* root = build.Root(top, parent);
    if (!root) {
        error = QStringLiteral("the top widget cannot be made");
    }
    return root;
}

} // namespace MV::Internal
