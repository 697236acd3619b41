#pragma once

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

/// Offers the library's widgets to Qt Designer.
class DesignerPlugin : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit DesignerPlugin(QObject* parent = nullptr);
    ~DesignerPlugin() override;

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return m_widgets; }

private:
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};
