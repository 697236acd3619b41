#include "MVPluginQt/FormClasses.h"

#include <BFQtCustomWidgetPluginU/CustomWidgetFactory.h>

#include <QCheckBox>
#include <QDialog>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

namespace MV::Internal {

namespace {

template <class Widget>
QWidget* New(QWidget* parent)
{
    return new Widget(parent);
}

/// A line is no class of Qt's: a frame with a direction.
QWidget* NewLine(QWidget* parent)
{
    auto* line = new QFrame(parent);
    line->setFrameStyle(int(QFrame::HLine) | int(QFrame::Sunken));
    return line;
}

QWidget* CreateQtWidget(const QString& className, QWidget* parent)
{
    static const QHash<QString, QWidget* (*)(QWidget*)> classes{
        {QStringLiteral("Line"), &NewLine},
        {QStringLiteral("QCheckBox"), &New<QCheckBox>},
        {QStringLiteral("QDialog"), &New<QDialog>},
        {QStringLiteral("QDoubleSpinBox"), &New<QDoubleSpinBox>},
        {QStringLiteral("QFrame"), &New<QFrame>},
        {QStringLiteral("QGroupBox"), &New<QGroupBox>},
        {QStringLiteral("QLabel"), &New<QLabel>},
        {QStringLiteral("QLineEdit"), &New<QLineEdit>},
        {QStringLiteral("QListWidget"), &New<QListWidget>},
        {QStringLiteral("QPushButton"), &New<QPushButton>},
        {QStringLiteral("QRadioButton"), &New<QRadioButton>},
        {QStringLiteral("QSpinBox"), &New<QSpinBox>},
        {QStringLiteral("QTabWidget"), &New<QTabWidget>},
        {QStringLiteral("QTableWidget"), &New<QTableWidget>},
        {QStringLiteral("QWidget"), &New<QWidget>},
    };
    const auto create = classes.value(className);
    return create ? create(parent) : nullptr;
}

} // namespace

QWidget* CreateFormWidget(const QString& className, const QString& baseClass, QWidget* parent)
{
    if (QWidget* widget = CreateCustomWidget(className, parent)) {
        return widget;
    }
    if (QWidget* widget = CreateQtWidget(className, parent)) {
        return widget;
    }
    qWarning("Form: unable to create a custom widget of the class '%s', making a '%s' instead",
             qUtf8Printable(className), qUtf8Printable(baseClass));
    return CreateQtWidget(baseClass, parent);
}

QLayout* CreateFormLayout(const QString& className)
{
    if (className == QLatin1String("QVBoxLayout")) {
        return new QVBoxLayout;
    }
    if (className == QLatin1String("QHBoxLayout")) {
        return new QHBoxLayout;
    }
    if (className == QLatin1String("QGridLayout")) {
        return new QGridLayout;
    }
    qWarning("Form: unable to create a layout of the class '%s'", qUtf8Printable(className));
    return nullptr;
}

} // namespace MV::Internal
