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
    void unknownThingsAreReported_data();
    void unknownThingsAreReported();

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

QTEST_MAIN(TestFormReader)

#include "tst_form_reader.moc"
