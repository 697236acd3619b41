#include "BFQtCustomWidgetPluginU/DesignerPlugin.h"

#include "BFQtCustomWidgetPluginU/CustomWidgetFactory.h"

#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace {

/// One row of CustomWidgets() as Designer asks for it.
class DesignerWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit DesignerWidget(const CustomWidgetInfo& info)
        : m_info(info)
    {
    }

    QString name() const override { return m_info.className; }
    QString group() const override { return QStringLiteral("Movira"); }
    QString toolTip() const override { return m_info.toolTip; }
    QString whatsThis() const override { return m_info.toolTip; }
    QString includeFile() const override
    {
        return QStringLiteral("BFQtCustomWidgetPluginU/%1.h").arg(m_info.className);
    }
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override { return m_info.create(parent); }

    QIcon icon() const override
    {
        QPixmap pixmap(22, 22);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setPen(Qt::darkGray);
        painter.setBrush(QColor(90, 150, 200));
        painter.drawRoundedRect(1, 6, 19, 10, 3, 3);
        return QIcon(pixmap);
    }

    QString domXml() const override
    {
        const QString objectName = QStringLiteral("qt") + m_info.className.mid(1);
        return QStringLiteral("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
                              "<property name=\"geometry\"><rect><x>0</x><y>0</y>"
                              "<width>%3</width><height>%4</height></rect></property></widget>"
                              "<customwidgets><customwidget><class>%1</class><extends>%5</extends>"
                              "</customwidget></customwidgets></ui>")
            .arg(m_info.className, objectName)
            .arg(m_info.size.width())
            .arg(m_info.size.height())
            .arg(m_info.baseClassName);
    }

private:
    CustomWidgetInfo m_info;
};

} // namespace

DesignerPlugin::DesignerPlugin(QObject* parent)
    : QObject(parent)
{
    for (const CustomWidgetInfo& info : CustomWidgets()) {
        m_widgets.append(new DesignerWidget(info));
    }
}

DesignerPlugin::~DesignerPlugin()
{
    qDeleteAll(m_widgets);
}
