#include "tests/support/TestCase.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QFormBuilder>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QUiLoader>
#include <QWidget>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <memory>

/// The widget library as Qt Designer and other readers of forms load it.
class TestDesignerPlugin : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void metaDataNamesTheDesignersInterface();
    void collectionHasAllWidgets();
    void widgetIsCreated_data();
    void widgetIsCreated();
    void widgetIsDescribed_data();
    void widgetIsDescribed();
    void freshWidgetIsReadByAFormBuilder_data();
    void freshWidgetIsReadByAFormBuilder();
    void freshWidgetIsReadByAUiLoader_data();
    void freshWidgetIsReadByAUiLoader();

private:
    QDesignerCustomWidgetInterface* Interface(const QString& name) const;
    void CheckFreshWidget(const QWidget* widget, const QString& name) const;

    QPluginLoader m_library{QStringLiteral(CUSTOM_WIDGET_LIBRARY)};
    QDesignerCustomWidgetCollectionInterface* m_collection = nullptr;
    /// Holds the library alone: a form builder loads every library of its plug-in folder.
    QTemporaryDir m_folder;
};

namespace {

void WidgetRows()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("base");
    QTest::newRow("QSpinBoxEx") << QStringLiteral("QSpinBoxEx") << QByteArray("QSpinBox");
    QTest::newRow("QDoubleSpinBoxEx") << QStringLiteral("QDoubleSpinBoxEx") << QByteArray("QDoubleSpinBox");
    QTest::newRow("QComboSpinBox") << QStringLiteral("QComboSpinBox") << QByteArray("QWidget");
    QTest::newRow("QComboDoubleSpinBox") << QStringLiteral("QComboDoubleSpinBox") << QByteArray("QWidget");
    QTest::newRow("QItemLabel") << QStringLiteral("QItemLabel") << QByteArray("QLabel");
}

} // namespace

void TestDesignerPlugin::initTestCase()
{
    QVERIFY2(m_library.load(), qPrintable(m_library.errorString()));
    m_collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_library.instance());
    QVERIFY(m_collection);
    QVERIFY(m_folder.isValid());
    const QString file = m_library.fileName();
    QVERIFY(QFile::link(file, m_folder.filePath(QFileInfo(file).fileName())));
}

QDesignerCustomWidgetInterface* TestDesignerPlugin::Interface(const QString& name) const
{
    const auto widgets = m_collection->customWidgets();
    for (QDesignerCustomWidgetInterface* widget : widgets) {
        if (widget->name() == name) {
            return widget;
        }
    }
    return nullptr;
}

void TestDesignerPlugin::metaDataNamesTheDesignersInterface()
{
    QCOMPARE(m_library.metaData().value(QStringLiteral("IID")).toString(),
             QStringLiteral("org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface"));
}

void TestDesignerPlugin::collectionHasAllWidgets()
{
    QStringList names;
    const auto widgets = m_collection->customWidgets();
    for (const QDesignerCustomWidgetInterface* widget : widgets) {
        names.append(widget->name());
    }
    QCOMPARE(names, QStringList({QStringLiteral("QSpinBoxEx"), QStringLiteral("QDoubleSpinBoxEx"),
                                 QStringLiteral("QComboSpinBox"), QStringLiteral("QComboDoubleSpinBox"),
                                 QStringLiteral("QItemLabel")}));
}

void TestDesignerPlugin::widgetIsCreated_data()
{
    WidgetRows();
}

void TestDesignerPlugin::widgetIsCreated()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, base);
    QWidget parent;
    const QWidget* widget = Interface(name)->createWidget(&parent);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &parent);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QVERIFY(widget->inherits(base.constData()));
}

void TestDesignerPlugin::widgetIsDescribed_data()
{
    WidgetRows();
}

void TestDesignerPlugin::widgetIsDescribed()
{
    QFETCH(QString, name);
    const QDesignerCustomWidgetInterface* widget = Interface(name);
    QCOMPARE(widget->group(), QStringLiteral("Movira"));
    QVERIFY(!widget->toolTip().isEmpty());
    QVERIFY(!widget->whatsThis().isEmpty());
    QVERIFY(!widget->icon().isNull());
    QVERIFY(!widget->isContainer());
    QVERIFY(QFileInfo(QStringLiteral(SDK_INCLUDE_FOLDER "/") + widget->includeFile()).isFile());
}

void TestDesignerPlugin::CheckFreshWidget(const QWidget* widget, const QString& name) const
{
    QVERIFY(widget);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QVERIFY(widget->objectName().startsWith(QStringLiteral("qt")));
    QVERIFY(!widget->size().isEmpty());
}

void TestDesignerPlugin::freshWidgetIsReadByAFormBuilder_data()
{
    WidgetRows();
}

void TestDesignerPlugin::freshWidgetIsReadByAFormBuilder()
{
    QFETCH(QString, name);
    QBuffer xml;
    xml.setData(Interface(name)->domXml().toUtf8());
    QVERIFY(xml.open(QIODevice::ReadOnly));
    QFormBuilder builder;
    builder.setPluginPath({m_folder.path()});
    const std::unique_ptr<QWidget> widget(builder.load(&xml, nullptr));
    CheckFreshWidget(widget.get(), name);
}

void TestDesignerPlugin::freshWidgetIsReadByAUiLoader_data()
{
    WidgetRows();
}

void TestDesignerPlugin::freshWidgetIsReadByAUiLoader()
{
    QFETCH(QString, name);
    QBuffer xml;
    xml.setData(Interface(name)->domXml().toUtf8());
    QVERIFY(xml.open(QIODevice::ReadOnly));
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(m_folder.path());
    QVERIFY(loader.availableWidgets().contains(name));
    const std::unique_ptr<QWidget> widget(loader.load(&xml));
    CheckFreshWidget(widget.get(), name);
}

SOFTCLOTH_TEST(TestDesignerPlugin)

#include "tst_designer_plugin.moc"
