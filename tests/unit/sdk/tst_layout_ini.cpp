#include <MVPluginQt/WidgetBuilder.h>

#include "tests/support/Children.h"
#include "tests/support/EmptyHost.h"
#include "tests/support/RootComponent.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sdk/FormFolder.h"

#include <QLineEdit>
#include <QSize>
#include <QSpinBox>
#include <QVariant>

#include <memory>

/// A layout file applied to a form "SampleForm" with a few widgets.
class TestLayoutIni : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void entrySetsAProperty_data();
    void entrySetsAProperty();
    void mistakeIsReportedAndPassedOver_data();
    void mistakeIsReportedAndPassedOver();
    void mistakeIsReportedOnce();
    void missingFileIsReportedOnce();
    void emptyPathDoesNothing();
    void onlyTheFormsOwnGroupIsApplied();
    void rangeIsSetBeforeTheValue();
    void isAppliedBeforeTheComponentIsSetUp();

protected:
    void SetUp() override;

private:
    QString WriteIni(const QByteArray& content);
    /// Builds the form with the layout file.
    std::unique_ptr<QWidget> Build(const QString& iniPath, CUiComponent& component);
    std::unique_ptr<QWidget> Build(const QString& iniPath);

    FormFolder m_folder;
    EmptyHost m_host;
    QString m_form;
    int m_files = 0;
};

namespace {

QByteArray SampleForm()
{
    const QByteArray layout = "<layout class=\"QVBoxLayout\" name=\"verticalLayout\"><item>"
                              "<layout class=\"QHBoxLayout\" name=\"horizontalLayout\"/></item></layout>";
    return FormFolder::Form(
        "SampleForm",
        FormFolder::Widget("QSpinBox", "qtSpinBox") + FormFolder::Widget("QDoubleSpinBox", "qtDoubleSpinBox") +
            FormFolder::Widget("QCheckBox", "qtCheckBox") + FormFolder::Widget("QLineEdit", "qtLineEdit") +
            FormFolder::Widget("QPushButton", "qtPushButton") + FormFolder::Widget("QGroupBox", "qtGroupBox", layout));
}

/// What \p object of \p target has for \p property; enumerations as numbers.
QVariant PropertyOf(const QWidget* target, const QString& object, const QByteArray& property)
{
    const QVariant value = Child<QObject>(target, object.toLatin1().constData())->property(property.constData());
    return value.userType() >= QMetaType::User ? QVariant(value.toInt()) : value;
}

/// A component that reads the spin box's maximum while it is set up.
class MaximumComponent : public CUiComponent
{
public:
    void SetupUi(CQtUiLoader& loader) override
    {
        maximum = loader.Find<QSpinBox>(QStringLiteral("qtSpinBox"))->maximum();
    }
    QWidget* GetRootWidget() override { return nullptr; }

    int maximum = 0;
};

} // namespace

void TestLayoutIni::SetUp()
{
    m_form = m_folder.Write(QStringLiteral("SampleForm.ui"), SampleForm());
}

QString TestLayoutIni::WriteIni(const QByteArray& content)
{
    return m_folder.Write(QStringLiteral("layout%1.ini").arg(++m_files), content);
}

std::unique_ptr<QWidget> TestLayoutIni::Build(const QString& iniPath, CUiComponent& component)
{
    auto target = std::make_unique<QWidget>();
    MV::CWidgetBuilder builder(m_form, QString());
    builder.SetLayoutIniPath(iniPath);
    if (builder.InitUi(target.get(), &component, &m_host, true) != BF::Results::Success) {
        qFatal("the form is not built");
    }
    return target;
}

std::unique_ptr<QWidget> TestLayoutIni::Build(const QString& iniPath)
{
    RootComponent component;
    return Build(iniPath, component);
}

void TestLayoutIni::entrySetsAProperty_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QVariant>("expected");
    const auto row = [](const char* name, const char* entry, const QVariant& expected) {
        QTest::newRow(name) << QByteArray(entry) << expected;
    };
    row("int", "qtSpinBox/maximum=250", 250);
    row("negative int", "qtSpinBox/minimum=-3", -3);
    row("bool true", "qtCheckBox/checked=true", true);
    row("bool TRUE", "qtCheckBox/checked=TRUE", true);
    row("bool 1", "qtCheckBox/checked=1", true);
    row("bool false", "qtCheckBox/enabled=false", false);
    row("bool 0", "qtCheckBox/enabled=0", false);
    row("double", "qtDoubleSpinBox/singleStep=0.25", 0.25);
    row("whole double", "qtDoubleSpinBox/maximum=250", 250.0);
    row("string", "qtLineEdit/placeholderText=Type a name", QStringLiteral("Type a name"));
    row("quoted string", "qtLineEdit/placeholderText=\"One, two\"", QStringLiteral("One, two"));
    row("string in UTF-8", "qtLineEdit/placeholderText=Gr\303\266\303\237e", QString::fromUtf8("Gr\303\266\303\237e"));
    row("enumeration", "qtLineEdit/echoMode=Password", int(QLineEdit::Password));
    row("one flag", "qtSpinBox/alignment=AlignRight", int(Qt::AlignRight));
    row("flags", "qtSpinBox/alignment=AlignRight|AlignVCenter", int(Qt::AlignRight | Qt::AlignVCenter));
    row("size of a settings store", "qtPushButton/minimumSize=@Size(96 24)", QSize(96, 24));
    row("size as two numbers", "qtPushButton/minimumSize=96 24", QSize(96, 24));
    row("size with many blanks", "qtPushButton/iconSize=\"  12   13 \"", QSize(12, 13));
    row("layout", "verticalLayout/spacing=17", 17);
    row("layout in a layout", "horizontalLayout/spacing=18", 18);
    row("the form itself", "SampleForm/windowTitle=Sample", QStringLiteral("Sample"));
}

void TestLayoutIni::entrySetsAProperty()
{
    QFETCH(QByteArray, entry);
    QFETCH(QVariant, expected);
    const QList<QByteArray> path = entry.left(entry.indexOf('=')).split('/');
    const QString object = QString::fromLatin1(path.at(0));
    QVERIFY(PropertyOf(Build(QString()).get(), object, path.at(1)) != expected);
    const auto target = Build(WriteIni("[SampleForm]\n" + entry + "\n"));
    QCOMPARE(PropertyOf(target.get(), object, path.at(1)), expected);
}

void TestLayoutIni::mistakeIsReportedAndPassedOver_data()
{
    QTest::addColumn<QByteArray>("entry");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* entry, const char* problem) {
        QTest::newRow(name) << QByteArray(entry) << QString::fromLatin1(problem);
    };
    row("unknown object", "qtMissing/maximum=3", "[SampleForm] qtMissing/maximum: unknown object");
    row("no object", "maximum=3", "[SampleForm] maximum: unknown object");
    row("unknown property", "qtSpinBox/largest=3", "[SampleForm] qtSpinBox/largest: unknown property");
    row("no property", "qtSpinBox=3", "[SampleForm] qtSpinBox: unknown property");
    row("property that is read only", "qtSpinBox/cleanText=3", "value \"3\" not understood");
    row("int of letters", "qtSpinBox/maximum=many", "value \"many\" not understood");
    row("int with a rest", "qtSpinBox/maximum=12px", "value \"12px\" not understood");
    row("int with decimals", "qtSpinBox/maximum=1.5", "value \"1.5\" not understood");
    row("empty int", "qtSpinBox/maximum=", "value \"\" not understood");
    row("bool of another word", "qtCheckBox/checked=maybe", "value \"maybe\" not understood");
    row("bool of another number", "qtCheckBox/checked=2", "value \"2\" not understood");
    row("double of letters", "qtDoubleSpinBox/maximum=much", "value \"much\" not understood");
    row("unknown key", "qtLineEdit/echoMode=Hidden", "value \"Hidden\" not understood");
    row("number for a key", "qtLineEdit/echoMode=2", "value \"2\" not understood");
    row("unknown key among flags", "qtSpinBox/alignment=AlignRight|AlignAskew",
        "value \"AlignRight|AlignAskew\" not understood");
    row("one number for a size", "qtPushButton/minimumSize=96", "value \"96\" not understood");
    row("three numbers for a size", "qtPushButton/minimumSize=96 24 1", "value \"96 24 1\" not understood");
    row("words for a size", "qtPushButton/minimumSize=very wide", "value \"very wide\" not understood");
}

void TestLayoutIni::mistakeIsReportedAndPassedOver()
{
    QFETCH(QByteArray, entry);
    QFETCH(QString, problem);
    ExpectWarning(problem);
    const auto target =
        Build(WriteIni("[SampleForm]\n" + entry + "\nhorizontalLayout/spacing=18\nverticalLayout/spacing=17\n"));
    QCOMPARE(PropertyOf(target.get(), QStringLiteral("verticalLayout"), "spacing").toInt(), 17);
    QCOMPARE(PropertyOf(target.get(), QStringLiteral("horizontalLayout"), "spacing").toInt(), 18);

    // Nothing else has changed.
    const auto plain = Build(QString());
    for (const char* object : {"qtSpinBox", "qtDoubleSpinBox", "qtCheckBox", "qtLineEdit", "qtPushButton"}) {
        const QMetaObject* meta = Child<QObject>(plain.get(), object)->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            const char* property = meta->property(i).name();
            if (qstrcmp(property, "pos") == 0 || qstrcmp(property, "palette") == 0) {
                continue;
            }
            QVERIFY2(PropertyOf(target.get(), QLatin1String(object), property) ==
                         PropertyOf(plain.get(), QLatin1String(object), property),
                     property);
        }
    }
}

void TestLayoutIni::mistakeIsReportedOnce()
{
    const QString ini = WriteIni("[SampleForm]\nqtMissing/maximum=3\n");
    ExpectWarning(QStringLiteral("qtMissing/maximum: unknown object"));
    Build(ini);
    Build(ini);
}

void TestLayoutIni::missingFileIsReportedOnce()
{
    const QString ini = m_folder.Path(QStringLiteral("missing.ini"));
    ExpectWarning(QStringLiteral("missing.ini is missing"));
    Build(ini);
    Build(ini);
}

void TestLayoutIni::emptyPathDoesNothing()
{
    const auto target = Build(QString());
    QCOMPARE(Child<QSpinBox>(target.get(), "qtSpinBox")->maximum(), 99);
}

void TestLayoutIni::onlyTheFormsOwnGroupIsApplied()
{
    const auto target = Build(WriteIni("qtSpinBox/maximum=1\n[OtherForm]\nqtSpinBox/maximum=2\nqtMissing/maximum=3\n"));
    QCOMPARE(Child<QSpinBox>(target.get(), "qtSpinBox")->maximum(), 99);
}

void TestLayoutIni::rangeIsSetBeforeTheValue()
{
    const auto target = Build(WriteIni("[SampleForm]\n"
                                       "qtSpinBox/value=300\n"
                                       "qtSpinBox/minimum=200\n"
                                       "qtSpinBox/maximum=400\n"
                                       "qtDoubleSpinBox/value=0.125\n"
                                       "qtDoubleSpinBox/decimals=3\n"));
    QCOMPARE(Child<QSpinBox>(target.get(), "qtSpinBox")->value(), 300);
    QCOMPARE(Child<QDoubleSpinBox>(target.get(), "qtDoubleSpinBox")->value(), 0.125);
}

void TestLayoutIni::isAppliedBeforeTheComponentIsSetUp()
{
    MaximumComponent component;
    Build(WriteIni("[SampleForm]\nqtSpinBox/maximum=250\n"), component);
    QCOMPARE(component.maximum, 250);
}

SOFTCLOTH_TEST(TestLayoutIni)

#include "tst_layout_ini.moc"
