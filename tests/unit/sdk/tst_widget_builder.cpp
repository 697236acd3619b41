#include <MVPluginQt/WidgetBuilder.h>

#include "tests/support/Children.h"
#include "tests/support/EmptyHost.h"
#include "tests/support/RootComponent.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sdk/FormFolder.h"

#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>
#include <BFQtCustomWidgetPluginU/QDoubleSpinBoxEx.h>
#include <BFQtCustomWidgetPluginU/QItemLabel.h>
#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>
#include <MVPluginQt/PluginDialog.h>

#include <QFile>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QPixmap>

class TestWidgetBuilder : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void plainFormPathDropsTheLastPreset_data();
    void plainFormPathDropsTheLastPreset();

    void nullArgumentIsRefused_data();
    void nullArgumentIsRefused();
    void unusableFormIsAFailure_data();
    void unusableFormIsAFailure();
    void missingFormLeavesTheDialogAsItWas();
    void unknownClassFallsBackToItsBase();

    void componentIsSetUpOnceWithFormAndTarget();
    void rootMayBeOfAnyClassAndName_data();
    void rootMayBeOfAnyClassAndName();
    void widgetsOfTheHostAreReal();
    void oneBuilderBuildsSeveralTimes();
    void libraryPathsStayAsTheyAre();

    void filledTargetHasTheFormFromEdgeToEdge();
    void filledTargetKeepsItsOwnLayout();
    void unfilledTargetOnlyOwnsTheForm();

    void dialogTakesOverTitleAndIcon();
    void dialogKeepsTitleAndIcon();

    void relativePixmapComesFromTheResourceBase();
    void relativePixmapComesFromBesideTheForm();

private:
    QString WriteForm(const QByteArray& content) const { return m_folder.Write(QStringLiteral("form.ui"), content); }

    FormFolder m_folder;
    EmptyHost m_host;
};

namespace {

QByteArray LabelForm()
{
    return FormFolder::Form("SampleForm", FormFolder::Widget("QLabel", "qtLabel"));
}

QByteArray TitledForm()
{
    return FormFolder::Form(
        "SampleForm", FormFolder::Property("windowTitle", "<string>Materials</string>") +
                          FormFolder::Property("windowIcon", "<iconset><normaloff>icon.png</normaloff></iconset>"));
}

QByteArray PictureForm()
{
    return FormFolder::Form(
        "SampleForm",
        FormFolder::Widget("QLabel", "qtLabel", FormFolder::Property("pixmap", "<pixmap>images/picture.png</pixmap>")));
}

void SavePicture(const QString& path, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    if (!image.save(path)) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

} // namespace

void TestWidgetBuilder::plainFormPathDropsTheLastPreset_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("plain");
    QTest::newRow("none") << QStringLiteral(":/plugin/Form.ui") << QStringLiteral(":/plugin/Form.ui");
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("one") << QStringLiteral(":/plugin/Form.presetui") << QStringLiteral(":/plugin/Form.ui");
    QTest::newRow("at the end") << QStringLiteral("Form.preset") << QStringLiteral("Form.");
    QTest::newRow("two") << QStringLiteral("a.preset/Form.presetui") << QStringLiteral("a.preset/Form.ui");
    QTest::newRow("without point") << QStringLiteral("preset/Form.ui") << QStringLiteral("preset/Form.ui");
    QTest::newRow("other case") << QStringLiteral("Form.Preset.ui") << QStringLiteral("Form.Preset.ui");
}

void TestWidgetBuilder::plainFormPathDropsTheLastPreset()
{
    QFETCH(QString, path);
    QFETCH(QString, plain);
    const MV::CWidgetBuilder builder(path, QString());
    QCOMPARE(builder.FormPath(), path);
    QCOMPARE(builder.PlainFormPath(), plain);
}

void TestWidgetBuilder::nullArgumentIsRefused_data()
{
    QTest::addColumn<bool>("hasTarget");
    QTest::addColumn<bool>("hasComponent");
    QTest::addColumn<bool>("hasHost");
    QTest::newRow("target") << false << true << true;
    QTest::newRow("component") << true << false << true;
    QTest::newRow("host") << true << true << false;
}

void TestWidgetBuilder::nullArgumentIsRefused()
{
    QFETCH(bool, hasTarget);
    QFETCH(bool, hasComponent);
    QFETCH(bool, hasHost);
    MV::CWidgetBuilder builder(WriteForm(LabelForm()), QString());
    MV::CPluginDialog dialog;
    RootComponent component;
    MV::CPluginDialog* target = hasTarget ? &dialog : nullptr;
    CUiComponent* setUp = hasComponent ? &component : nullptr;
    MV::CMoviraInterface* host = hasHost ? &m_host : nullptr;

    QCOMPARE(builder.InitUi(static_cast<QWidget*>(target), setUp, host, true), BF::Results::InvalidArgument);
    QCOMPARE(builder.InitUi(target, setUp, host, true, true), BF::Results::InvalidArgument);
    QCOMPARE(component.SetUps(), 0);
    QVERIFY(dialog.children().isEmpty());
}

void TestWidgetBuilder::unusableFormIsAFailure_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("qtWarning"); // That of Qt UI Tools, which names no file.
    QTest::newRow("empty") << QByteArray("\n") << QStringLiteral("line 1, column 0: Premature end of document");
    QTest::newRow("cut off") << LabelForm().chopped(20) << QStringLiteral("Premature end of document");
    QTest::newRow("not a form") << QByteArray("<html><body/></html>") << QStringLiteral("Invalid UI file");
    QTest::newRow("no widget") << QByteArray("<ui version=\"4.0\"><class>Form</class></ui>") << QString();
}

void TestWidgetBuilder::unusableFormIsAFailure()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, qtWarning);
#ifdef FORMS_COME_THROUGH_UI_TOOLS
    if (!qtWarning.isEmpty()) {
        ExpectWarning(qtWarning);
    }
#endif
    ExpectWarning(QStringLiteral("form.ui: "));
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(content), QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::ResourceFailure);
    QCOMPARE(component.SetUps(), 0);
    QVERIFY(target.children().isEmpty());
}

void TestWidgetBuilder::missingFormLeavesTheDialogAsItWas()
{
    QFile missing(m_folder.Path(QStringLiteral("missing.ui")));
    QVERIFY(!missing.open(QIODevice::ReadOnly));
    ExpectWarning(QStringLiteral("missing.ui: ") + missing.errorString());
    MV::CPluginDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Before"));
    RootComponent component;
    MV::CWidgetBuilder builder(m_folder.Path(QStringLiteral("missing.ui")), QString());
    QCOMPARE(builder.InitUi(&dialog, &component, &m_host, true, true), BF::Results::ResourceFailure);
    QCOMPARE(component.SetUps(), 0);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Before"));
    QVERIFY(dialog.children().isEmpty());
}

void TestWidgetBuilder::unknownClassFallsBackToItsBase()
{
    const QString path = WriteForm("<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">"
                                   "<widget class=\"Unknown\" name=\"qtUnknown\"/></widget>"
                                   "<customwidgets><customwidget><class>Unknown</class><extends>QLabel</extends>"
                                   "</customwidget></customwidgets></ui>");
    ExpectWarning(QStringLiteral("unable to create a custom widget of the class 'Unknown'"));
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(path, QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QVERIFY(Child<QLabel>(&target, "qtUnknown"));
}

void TestWidgetBuilder::componentIsSetUpOnceWithFormAndTarget()
{
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(LabelForm()), QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QCOMPARE(component.SetUps(), 1);
    QVERIFY(component.GetRootWidget());
    QCOMPARE(component.GetRootWidget()->objectName(), QStringLiteral("SampleForm"));
    QCOMPARE(component.GetRootWidget()->parentWidget(), &target);
    QCOMPARE(component.SecondRoot(), &target);
}

void TestWidgetBuilder::rootMayBeOfAnyClassAndName_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("group box") << QByteArray("QGroupBox") << QByteArray("form");
    QTest::newRow("dialog") << QByteArray("QDialog") << QByteArray("SampleDialog");
    QTest::newRow("name other than the file's") << QByteArray("QWidget") << QByteArray("Other");
}

void TestWidgetBuilder::rootMayBeOfAnyClassAndName()
{
    QFETCH(QByteArray, className);
    QFETCH(QByteArray, name);
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(FormFolder::Form(name, {}, className)), QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QCOMPARE(component.GetRootWidget()->metaObject()->className(), className.constData());
    QCOMPARE(component.GetRootWidget()->objectName(), QString::fromLatin1(name));
    target.resize(200, 100);
    target.show();
    QVERIFY(component.GetRootWidget()->isVisible());
    QVERIFY(!component.GetRootWidget()->isWindow());
    QCOMPARE(component.GetRootWidget()->geometry(), QRect(0, 0, 200, 100));
}

void TestWidgetBuilder::widgetsOfTheHostAreReal()
{
    QByteArray body;
    for (const char* className :
         {"QSpinBoxEx", "QDoubleSpinBoxEx", "QComboSpinBox", "QComboDoubleSpinBox", "QItemLabel"}) {
        body += FormFolder::Widget(className, QByteArray("qt") + className);
    }
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(FormFolder::Form("SampleForm", body)), QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QVERIFY(Child<QSpinBoxEx>(&target, "qtQSpinBoxEx"));
    QVERIFY(Child<QDoubleSpinBoxEx>(&target, "qtQDoubleSpinBoxEx"));
    QVERIFY(Child<QComboSpinBox>(&target, "qtQComboSpinBox"));
    QVERIFY(Child<QComboDoubleSpinBox>(&target, "qtQComboDoubleSpinBox"));
    QVERIFY(Child<QItemLabel>(&target, "qtQItemLabel"));
}

void TestWidgetBuilder::oneBuilderBuildsSeveralTimes()
{
    MV::CWidgetBuilder builder(WriteForm(LabelForm()), QString());
    QWidget first;
    QWidget second;
    RootComponent component;
    QCOMPARE(builder.InitUi(&first, &component, &m_host, true), BF::Results::Success);
    QCOMPARE(builder.InitUi(&second, &component, &m_host, true), BF::Results::Success);
    QVERIFY(Child<QLabel>(&first, "qtLabel") != Child<QLabel>(&second, "qtLabel"));
}

void TestWidgetBuilder::libraryPathsStayAsTheyAre()
{
    const QStringList before = QCoreApplication::libraryPaths();
    QVERIFY(!before.isEmpty());
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(LabelForm()), QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QCOMPARE(QCoreApplication::libraryPaths(), before);
}

void TestWidgetBuilder::filledTargetHasTheFormFromEdgeToEdge()
{
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(LabelForm()), QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    target.resize(321, 123);
    target.show();
    QCOMPARE(component.GetRootWidget()->geometry(), QRect(0, 0, 321, 123));
    target.resize(250, 200);
    QCOMPARE(component.GetRootWidget()->geometry(), QRect(0, 0, 250, 200));
}

void TestWidgetBuilder::filledTargetKeepsItsOwnLayout()
{
    QWidget target;
    auto* layout = new QHBoxLayout(&target);
    layout->setContentsMargins(7, 7, 7, 7);
    layout->addWidget(new QLabel);
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(LabelForm()), QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QCOMPARE(target.layout(), layout);
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(1)->widget(), component.GetRootWidget());
    QCOMPARE(layout->contentsMargins(), QMargins(7, 7, 7, 7));
}

void TestWidgetBuilder::unfilledTargetOnlyOwnsTheForm()
{
    const QByteArray geometry = "<rect><x>5</x><y>6</y><width>70</width><height>80</height></rect>";
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(WriteForm(FormFolder::Form("SampleForm", FormFolder::Property("geometry", geometry))),
                               QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, false), BF::Results::Success);
    QVERIFY(!target.layout());
    QCOMPARE(component.GetRootWidget()->parentWidget(), &target);
    QCOMPARE(component.GetRootWidget()->size(), QSize(70, 80));
}

void TestWidgetBuilder::dialogTakesOverTitleAndIcon()
{
    const QString path = WriteForm(TitledForm());
    SavePicture(m_folder.Path(QStringLiteral("icon.png")), QSize(16, 16));
    MV::CPluginDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Before"));
    RootComponent component;
    MV::CWidgetBuilder builder(path, QString());
    QCOMPARE(builder.InitUi(&dialog, &component, &m_host, true, true), BF::Results::Success);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Materials"));
    QCOMPARE(dialog.windowIcon().pixmap(16).toImage().pixelColor(8, 8), QColor(Qt::red));
}

void TestWidgetBuilder::dialogKeepsTitleAndIcon()
{
    const QString path = WriteForm(TitledForm());
    SavePicture(m_folder.Path(QStringLiteral("icon.png")), QSize(16, 16));
    MV::CPluginDialog dialog;
    dialog.setWindowTitle(QStringLiteral("Before"));
    RootComponent component;
    MV::CWidgetBuilder builder(path, QString());
    QCOMPARE(builder.InitUi(&dialog, &component, &m_host, true, false), BF::Results::Success);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Before"));
    QVERIFY(dialog.windowIcon().isNull());
}

void TestWidgetBuilder::relativePixmapComesFromTheResourceBase()
{
    const QString path = m_folder.Write(QStringLiteral("forms/form.ui"), PictureForm());
    m_folder.Write(QStringLiteral("base/images/picture.png"), {});
    m_folder.Write(QStringLiteral("forms/images/picture.png"), {});
    SavePicture(m_folder.Path(QStringLiteral("base/images/picture.png")), QSize(12, 8));
    SavePicture(m_folder.Path(QStringLiteral("forms/images/picture.png")), QSize(30, 20));
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(path, m_folder.Path(QStringLiteral("base")));
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QCOMPARE(Child<QLabel>(&target, "qtLabel")->pixmap(Qt::ReturnByValue).size(), QSize(12, 8));
}

void TestWidgetBuilder::relativePixmapComesFromBesideTheForm()
{
    const QString path = m_folder.Write(QStringLiteral("forms/form.ui"), PictureForm());
    m_folder.Write(QStringLiteral("forms/images/picture.png"), {});
    SavePicture(m_folder.Path(QStringLiteral("forms/images/picture.png")), QSize(30, 20));
    QWidget target;
    RootComponent component;
    MV::CWidgetBuilder builder(path, QString());
    QCOMPARE(builder.InitUi(&target, &component, &m_host, true), BF::Results::Success);
    QCOMPARE(Child<QLabel>(&target, "qtLabel")->pixmap(Qt::ReturnByValue).size(), QSize(30, 20));
}

SOFTCLOTH_TEST(TestWidgetBuilder)

#include "tst_widget_builder.moc"
