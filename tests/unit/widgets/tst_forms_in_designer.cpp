#include "tests/support/EmptyHost.h"
#include "tests/support/RootComponent.h"
#include "tests/support/TestCase.h"

#include <MVPluginQt/WidgetBuilder.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFormBuilder>
#include <QFrame>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QMap>
#include <QPixmap>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QXmlStreamReader>

#include <memory>

/// The panel's forms, once as Qt Designer builds them and once as the host does.
class TestFormsInDesigner : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void sameTree_data();
    void sameTree();
    void sameProperties_data();
    void sameProperties();
    void sameFocusChain_data();
    void sameFocusChain();
    void sameLook_data();
    void sameLook();

protected:
    void TearDown() override;

private:
    void FormRows() const;
    /// Builds the form of the current row in both ways.
    void Build();

    /// Holds the widget library alone: a form builder loads every library of its plug-in folder.
    QTemporaryDir m_folder;
    QStringList m_forms;
    QString m_form;
    std::unique_ptr<QWidget> m_inDesigner;
    std::unique_ptr<QWidget> m_inHost;
};

namespace {

/// The names of the properties that a form sets, by the object that it sets them on.
QMap<QString, QStringList> PropertiesOf(const QString& formFile)
{
    QFile file(formFile);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    QMap<QString, QStringList> properties;
    QStringList owners; // One entry per open element; empty for those that are no object.
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        const QXmlStreamReader::TokenType token = xml.readNext();
        if (token == QXmlStreamReader::StartElement) {
            const bool isObject = xml.name() == QLatin1String("widget") || xml.name() == QLatin1String("layout");
            const QString name = xml.attributes().value(QLatin1String("name")).toString();
            if (xml.name() == QLatin1String("property") && !owners.isEmpty() && !owners.last().isEmpty()) {
                properties[owners.last()].append(name);
            }
            owners.append(isObject ? name : QString());
        } else if (token == QXmlStreamReader::EndElement) {
            owners.removeLast();
        }
    }
    return xml.hasError() ? QMap<QString, QStringList>() : properties;
}

/// One line per object: how deep it is, its class and its name. The loaders' own helpers have no name.
void Describe(const QObject* object, int depth, QStringList& lines)
{
    if (!object->isWidgetType() && object->objectName().isEmpty()) {
        return;
    }
    lines.append(QString(depth, QLatin1Char(' ')) + QLatin1String(object->metaObject()->className()) +
                 QLatin1Char(' ') + object->objectName());
    for (const QObject* child : object->children()) {
        Describe(child, depth + 1, lines);
    }
}

QStringList TreeOf(const QWidget* root)
{
    QStringList lines;
    Describe(root, 0, lines);
    return lines;
}

QObject* Named(QWidget* container, const QString& name)
{
    return container->findChild<QObject*>(name);
}

/// \p value as something that can be compared.
QVariant Comparable(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::QIcon:
        return value.value<QIcon>().pixmap(64).toImage();
    case QMetaType::QPixmap:
        return value.value<QPixmap>().toImage();
    default:
        return value;
    }
}

/// What \p object has for the property of a form; invalid when it has none of that name. Some properties of forms are
/// none of Qt's: margins, buddies, and the direction of a line.
QVariant PropertyOf(const QObject* object, const QString& name)
{
    if (const auto* layout = qobject_cast<const QLayout*>(object)) {
        const QMargins margins = layout->contentsMargins();
        const QMap<QString, int> sides{{QStringLiteral("leftMargin"), margins.left()},
                                       {QStringLiteral("topMargin"), margins.top()},
                                       {QStringLiteral("rightMargin"), margins.right()},
                                       {QStringLiteral("bottomMargin"), margins.bottom()}};
        if (sides.contains(name)) {
            return sides.value(name);
        }
    }
    const auto* label = qobject_cast<const QLabel*>(object);
    if (label && name == QLatin1String("buddy")) {
        return label->buddy() ? label->buddy()->objectName() : QVariant();
    }
    const auto* line = qobject_cast<const QFrame*>(object);
    if (line && name == QLatin1String("orientation")) {
        return int(line->frameShape());
    }
    return Comparable(object->property(name.toLatin1().constData()));
}

QStringList FocusChainOf(QWidget* container)
{
    QStringList names;
    for (const QWidget* widget = container->nextInFocusChain(); widget != container;
         widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() != Qt::NoFocus) {
            names.append(widget->objectName());
        }
    }
    return names;
}

} // namespace

void TestFormsInDesigner::initTestCase()
{
    const QString library = QStringLiteral(CUSTOM_WIDGET_LIBRARY);
    QVERIFY(m_folder.isValid());
    QVERIFY(QFile::link(library, m_folder.filePath(QFileInfo(library).fileName())));
    m_forms = QDir(QStringLiteral(FORMS_FOLDER)).entryList({QStringLiteral("*.ui")}, QDir::Files, QDir::Name);
    QVERIFY(!m_forms.isEmpty());
}

void TestFormsInDesigner::TearDown()
{
    m_inDesigner.reset();
    m_inHost.reset();
}

void TestFormsInDesigner::FormRows() const
{
    QTest::addColumn<QString>("form");
    for (const QString& form : m_forms) {
        QTest::newRow(qPrintable(form)) << form;
    }
}

void TestFormsInDesigner::Build()
{
    QFETCH(QString, form);
    m_form = QDir(QStringLiteral(FORMS_FOLDER)).filePath(form);

    QFile file(m_form);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QFormBuilder builder;
    builder.setPluginPath({m_folder.path()});
    builder.setWorkingDirectory(QFileInfo(m_form).dir());
    m_inDesigner = std::make_unique<QWidget>();
    auto* layout = new QVBoxLayout(m_inDesigner.get());
    layout->setContentsMargins(0, 0, 0, 0);
    QWidget* root = builder.load(&file, m_inDesigner.get());
    QVERIFY2(root, qPrintable(builder.errorString()));
    layout->addWidget(root);

    EmptyHost host;
    RootComponent component;
    m_inHost = std::make_unique<QWidget>();
    MV::CWidgetBuilder hostBuilder(m_form, QString());
    QVERIFY(hostBuilder.InitUi(m_inHost.get(), &component, &host, true).IsSuccess());

    const QSize size = root->size().expandedTo(m_inDesigner->sizeHint());
    m_inDesigner->resize(size);
    m_inHost->resize(size);
}

void TestFormsInDesigner::sameTree_data()
{
    FormRows();
}

void TestFormsInDesigner::sameTree()
{
    Build();
    const QStringList tree = TreeOf(m_inDesigner.get());
    QVERIFY(tree.size() > 3);
    QCOMPARE(TreeOf(m_inHost.get()), tree);
}

void TestFormsInDesigner::sameProperties_data()
{
    FormRows();
}

void TestFormsInDesigner::sameProperties()
{
    Build();
    const QMap<QString, QStringList> objects = PropertiesOf(m_form);
    QVERIFY(!objects.isEmpty());
    for (auto object = objects.cbegin(); object != objects.cend(); ++object) {
        const QObject* inDesigner = Named(m_inDesigner.get(), object.key());
        const QObject* inHost = Named(m_inHost.get(), object.key());
        QVERIFY2(inDesigner && inHost, qPrintable(object.key()));
        for (const QString& property : object.value()) {
            const QByteArray where = (object.key() + QLatin1Char('.') + property).toUtf8();
            const QVariant expected = PropertyOf(inDesigner, property);
            QVERIFY2(expected.isValid(), where.constData());
            QVERIFY2(PropertyOf(inHost, property) == expected, where.constData());
        }
    }
}

void TestFormsInDesigner::sameFocusChain_data()
{
    FormRows();
}

void TestFormsInDesigner::sameFocusChain()
{
    Build();
    const QStringList chain = FocusChainOf(m_inDesigner.get());
    QVERIFY(!chain.isEmpty());
    QCOMPARE(FocusChainOf(m_inHost.get()), chain);
}

void TestFormsInDesigner::sameLook_data()
{
    FormRows();
}

void TestFormsInDesigner::sameLook()
{
    Build();
    const QImage picture = m_inDesigner->grab().toImage();
    QVERIFY(picture.width() > 50 && picture.height() > 20);
    QCOMPARE(m_inHost->grab().toImage(), picture);
}

SOFTCLOTH_TEST(TestFormsInDesigner)

#include "tst_forms_in_designer.moc"
