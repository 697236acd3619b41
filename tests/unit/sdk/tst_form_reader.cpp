#include <MVPluginQt/FormReader.h>
#include <MVPluginQt/UiToolsReader.h>

#include "tests/support/TestCase.h"
#include "tests/unit/sdk/FormDescription.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLayout>
#include <QPixmap>
#include <QTabBar>
#include <QTabWidget>
#include <QWidget>

#include <memory>

/// The panel's forms, once as Qt UI Tools builds them and once as the reader for a Qt without them does.
class TestFormReader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void formsAreAsFromUiTools_data();
    void formsAreAsFromUiTools();
    void tabIsTitledAsByUiTools_data();
    void tabIsTitledAsByUiTools();
    void unknownThingsAreReported_data();
    void unknownThingsAreReported();
    void formBeyondTheLimitsIsRefused_data();
    void formBeyondTheLimitsIsRefused();
    void formAtTheLimitsIsBuilt_data();
    void formAtTheLimitsIsBuilt();

private:
    using Reader = QWidget* (*)(QIODevice&, const QDir&, QWidget*, QString&);
    static std::unique_ptr<QWidget> Build(Reader reader, const QString& form);
};

void TestFormReader::initTestCase()
{
    // Qt's own property of this type cannot be read without.
    qRegisterMetaType<QTabBar::SelectionBehavior>("SelectionBehavior");
}

std::unique_ptr<QWidget> TestFormReader::Build(Reader reader, const QString& form)
{
    const QDir folder(QStringLiteral(FORMS_FOLDER));
    QFile file(folder.filePath(form));
    QString error;
    auto parent = std::make_unique<QWidget>();
    if (!file.open(QIODevice::ReadOnly) || !reader(file, folder, parent.get(), error)) {
        qFatal("%s: %s", qPrintable(form), qPrintable(error));
    }
    // Everything in its place, on the pages behind the first one too.
    const QList<QLayout*> layouts = parent->findChildren<QLayout*>();
    for (QLayout* layout : layouts) {
        layout->activate();
    }
    return parent;
}

void TestFormReader::formsAreAsFromUiTools_data()
{
    QTest::addColumn<QString>("form");
    const QStringList forms = QDir(QStringLiteral(FORMS_FOLDER)).entryList({QStringLiteral("*.ui")});
    QVERIFY(forms.size() >= 5);
    for (const QString& form : forms) {
        QTest::newRow(qPrintable(form)) << form;
    }
}

void TestFormReader::formsAreAsFromUiTools()
{
    QFETCH(const QString, form);
    const std::unique_ptr<QWidget> ours = Build(&MV::Internal::ReadForm, form);
    const std::unique_ptr<QWidget> theirs = Build(&MV::Internal::ReadFormWithUiTools, form);
    const FormDescription actual(*ours);
    const FormDescription expected(*theirs);
    QVERIFY(expected.tree.size() > 10);
    QCOMPARE(actual.tree.join(u'\n'), expected.tree.join(u'\n'));
    QCOMPARE(QStringList(actual.properties.keys()), QStringList(expected.properties.keys()));
    for (auto property = expected.properties.cbegin(); property != expected.properties.cend(); ++property) {
        QVERIFY2(actual.properties.value(property.key()) == property.value(), qPrintable(property.key()));
    }
    QCOMPARE(actual.focusChain, expected.focusChain);
    QCOMPARE(ours->grab().toImage(), theirs->grab().toImage());
}

void TestFormReader::tabIsTitledAsByUiTools_data()
{
    QTest::addColumn<QByteArray>("attribute");
    QTest::addColumn<QString>("title");
    QTest::newRow("title") << QByteArray("<attribute name=\"title\"><string>One</string></attribute>")
                           << QStringLiteral("One");
    QTest::newRow("none") << QByteArray() << QStringLiteral("Page");
    QTest::newRow("other attribute") << QByteArray("<attribute name=\"toolTip\"><string>One</string></attribute>")
                                     << QStringLiteral("Page");
    QTest::newRow("empty") << QByteArray("<attribute name=\"title\"><string/></attribute>") << QString();
}

void TestFormReader::tabIsTitledAsByUiTools()
{
    QFETCH(const QByteArray, attribute);
    QFETCH(const QString, title);
    QByteArray form = "<ui version=\"4.0\"><class>Form</class><widget class=\"QTabWidget\" name=\"Form\">"
                      "<widget class=\"QWidget\" name=\"page\">" +
                      attribute + "</widget></widget></ui>";
    for (const Reader reader : {&MV::Internal::ReadForm, &MV::Internal::ReadFormWithUiTools}) {
        QBuffer buffer(&form);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QString error;
        const std::unique_ptr<QWidget> root(reader(buffer, QDir(), nullptr, error));
        const auto* tabs = qobject_cast<QTabWidget*>(root.get());
        QVERIFY2(tabs, qPrintable(error));
        QCOMPARE(tabs->count(), 1);
        QCOMPARE(tabs->tabText(0), title);
    }
}

void TestFormReader::unknownThingsAreReported_data()
{
    QTest::addColumn<QByteArray>("body");
    QTest::addColumn<QString>("warning");
    QTest::newRow("kind of value") << QByteArray("<property name=\"locale\"><locale/></property>")
                                   << QStringLiteral("property 'locale' has a value of the unknown kind 'locale'");
    QTest::newRow("class") << QByteArray("<widget class=\"QDial\" name=\"dial\"/>")
                           << QStringLiteral("unable to create a custom widget of the class 'QDial'");
    QTest::newRow("layout") << QByteArray("<layout class=\"QFormLayout\" name=\"layout\"/>")
                            << QStringLiteral("unable to create a layout of the class 'QFormLayout'");
    QTest::newRow("property") << QByteArray("<property name=\"colour\"><number>1</number></property>")
                              << QStringLiteral("QWidget has no property 'colour'");
}

void TestFormReader::unknownThingsAreReported()
{
    QFETCH(const QByteArray, body);
    QFETCH(const QString, warning);
    QByteArray form =
        "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">" + body + "</widget></ui>";
    QBuffer buffer(&form);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QWidget parent;
    QString error;
    ExpectWarning(warning);
    const QWidget* root = MV::Internal::ReadForm(buffer, QDir(), &parent, error);
    QVERIFY(root);
    QVERIFY(root->children().isEmpty());
}

namespace {

/// A form of that many elements in each other, its own one included.
QByteArray DeepForm(int levels)
{
    const QByteArray widget = "<widget class=\"QWidget\" name=\"w\">";
    return "<ui version=\"4.0\">" + widget.repeated(levels - 1) + QByteArray("</widget>").repeated(levels - 1) +
           "</ui>";
}

QByteArray GridForm(const QByteArray& cell)
{
    return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\"><layout class=\"QGridLayout\" name=\"l\"><item " +
           cell + "><widget class=\"QWidget\" name=\"c\"/></item></layout></widget></ui>";
}

QByteArray TableForm(const QByteArray& property, const QByteArray& number)
{
    return "<ui version=\"4.0\"><widget class=\"QTableWidget\" name=\"t\"><property name=\"" + property +
           "\"><number>" + number + "</number></property></widget></ui>";
}

} // namespace

void TestFormReader::formBeyondTheLimitsIsRefused_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::addColumn<QString>("complaint");
    const auto row = [](const char* name, const QByteArray& form, const char* complaint) {
        QTest::newRow(name) << form << QString::fromLatin1(complaint);
    };
    const char* const cells = "line 1: rows and columns are numbers up to 1000";
    row("one level too many", DeepForm(101), "line 1: there are more than 100 elements in each other");
    row("60,000 levels", DeepForm(60000), "line 1: there are more than 100 elements in each other");
    row("60,000 levels without an end", DeepForm(60000).left(1000000),
        "line 1: there are more than 100 elements in each other");
    row("far row", GridForm("row=\"2000000000\" column=\"0\""), cells);
    row("far column", GridForm("row=\"0\" column=\"2000000000\""), cells);
    row("row beyond all numbers", GridForm("row=\"3000000000\" column=\"0\""), cells);
    row("negative row", GridForm("row=\"-1\" column=\"0\""), cells);
    row("many rows at once", GridForm("row=\"0\" column=\"0\" rowspan=\"2000000000\""), cells);
    row("many columns at once", GridForm("row=\"0\" column=\"0\" colspan=\"1001\""), cells);
    row("no row at all", GridForm("row=\"0\" column=\"0\" rowspan=\"0\""), cells);
    row("rows of a table", TableForm("rowCount", "2000000000"), cells);
    row("columns of a table", TableForm("columnCount", " 2000000000 "), cells);
    row("too many elements",
        "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"w\">" + QByteArray("<action/>").repeated(100000) +
            "</widget></ui>",
        "line 1: there are more than 100000 elements");
    row("too many bytes", DeepForm(2) + QByteArray(16 << 20, ' '), "a form has 16777216 bytes at most");
    row("entities", "<!DOCTYPE ui [<!ENTITY a \"aaaa\">]>\n" + DeepForm(2), "line 1: a form declares no entities");
}

void TestFormReader::formBeyondTheLimitsIsRefused()
{
    QFETCH(QByteArray, form);
    QFETCH(QString, complaint);
    for (const Reader reader : {&MV::Internal::ReadForm, &MV::Internal::ReadFormWithUiTools}) {
        QBuffer buffer(&form);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QWidget parent;
        QString error;
        QVERIFY(!reader(buffer, QDir(), &parent, error));
        QCOMPARE(error, complaint);
        QVERIFY(parent.children().isEmpty());
    }
}

void TestFormReader::formAtTheLimitsIsBuilt_data()
{
    QTest::addColumn<QByteArray>("form");
    QTest::newRow("levels") << DeepForm(100);
    QTest::newRow("cells") << GridForm("row=\"500\" column=\"1000\" rowspan=\"1\" colspan=\"1\"");
    QTest::newRow("rows of a table") << TableForm("rowCount", "1000");
    QTest::newRow("another number of a table") << TableForm("minimumWidth", "5000");
    QTest::newRow("old document type") << "<!DOCTYPE UI>" + DeepForm(2);
}

void TestFormReader::formAtTheLimitsIsBuilt()
{
    QFETCH(QByteArray, form);
    for (const Reader reader : {&MV::Internal::ReadForm, &MV::Internal::ReadFormWithUiTools}) {
        QBuffer buffer(&form);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QWidget parent;
        QString error;
        QVERIFY2(reader(buffer, QDir(), &parent, error), qPrintable(error));
    }
}

SOFTCLOTH_TEST(TestFormReader)

#include "tst_form_reader.moc"
