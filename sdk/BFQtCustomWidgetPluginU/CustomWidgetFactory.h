#pragma once

#include "BFQtCustomWidgetPluginU/Export.h"

#include <QSize>
#include <QString>
#include <QVector>

class QWidget;

/// One of the library's widgets, as forms and designers know it.
struct CustomWidgetInfo
{
    QString className;
    QString baseClassName; ///< The Qt class that a form names as its base.
    QString toolTip;
    QSize size; ///< Of a fresh one in a designer.
    QWidget* (*create)(QWidget* parent);
};

/// All widgets of the library.
BFQTCUSTOMWIDGETPLUGINU_EXPORT const QVector<CustomWidgetInfo>& CustomWidgets();

/// A new widget of the class called \p className, or null when the library has none of that name.
BFQTCUSTOMWIDGETPLUGINU_EXPORT QWidget* CreateCustomWidget(const QString& className, QWidget* parent);
