#include "tests/support/TestCase.h"
#include "tests/unit/material/DialogFixture.h"

#include "material/SoftClothMaterialDlgUiComponent.h"
#include "material/SoftClothMaterialTableUiComponent.h"
#include "ui/QtUiLoader.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>

#include <QAbstractButton>
#include <QAction>
#include <QLabel>

#include <algorithm>

/// The forms of the material dialog and the material table: what is in them, and that everything in them can be
/// understood and reached.
class TestMaterialForms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void componentFindsAllNames_data();
    void componentFindsAllNames();
    void childrenAreOfTheirClass_data();
    void childrenAreOfTheirClass();
    void adjustmentRanges();
    void tableButtonIsOutsideWhatIsDisabled();
    void widgetsExplainThemselves();
    void captionsLeadToTheirWidgets();
    void accessKeysAreUnique();
    void tabLeadsThroughTheDialog();
    void escapeActionsHaveNoKeyOfTheirOwn();
};

namespace {

QStringList Split(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

const QStringList dialogNames =
    Split("qtBrightnessCombospinbox qtContrastCombospinbox frame line_2 label label_2 label_3 label_4 "
          "qtMaterialGroupBox qtDiffuseItemLabel qtOpacityItemLabel qtWeightingItemLabel qtBitmapLabel "
          "qtBitmapPathLineEdit qtMaterialListWidget qtDeleteFilePushButton qtEmbedTexturePushButton "
          "qtLaunchPushButton qtOpenFilePushButton qtOpenPathPushButton qtPickMaterialPushButton "
          "qtSaveFilePushButton qtShowMaterialTableButton qtUvRefPushButton SoftClothMaterialDlg ListBorderWidget "
          "qtTextureEditButtonWidget qtTextureSettingWidget qtDoEscapeAction qtBrightnessLabel qtContrastLabel "
          "horizontalLayout horizontalLayout_2 horizontalLayout_3 horizontalLayout_4 horizontalLayout_8 "
          "verticalLayout verticalLayout_2 verticalLayout_3 verticalLayout_4 verticalLayout_5 verticalLayout_6 "
          "verticalLayout_7 verticalLayout_8 verticalLayout_9 verticalLayout_10 verticalLayout_11 verticalLayout_12 "
          "verticalLayout_13 verticalLayout_14");

const QStringList tableNames =
    Split("qtMaterialTableGroupBox qtMaterialTableLabel qtCancelPushButton qtConfirmPushButton qtMaterialTableWidget "
          "SoftClothMaterialTable qtMaterialTableBorderWidget qtMaterialTableButtonWidget qtDoEscapeAction "
          "qtMaterialTableButtonLayout qtMaterialTableLayout qtMaterialTableHBoxLayout qtGroupBoxLayout "
          "qtWidgetLayout");

QWidget* FormRoot(const DialogFixture& fixture, bool isTable)
{
    return isTable ? Child<QWidget>(fixture.table.data(), "SoftClothMaterialTable")
                   : fixture.Find<QWidget>("SoftClothMaterialDlg");
}

/// Name of \p widget, or of the nearest widget around it that a form named.
QString FormName(const QWidget* widget)
{
    while (widget && (widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_")))) {
        widget = widget->parentWidget();
    }
    return widget ? widget->objectName() : QString();
}

template <class T>
QList<T*> Named(const QWidget* root)
{
    QList<T*> named = root->findChildren<T*>();
    named.erase(std::remove_if(named.begin(), named.end(),
                               [](const T* each) {
                                   return each->objectName().isEmpty() ||
                                          each->objectName().startsWith(QLatin1String("qt_"));
                               }),
                named.end());
    return named;
}

} // namespace

void TestMaterialForms::componentFindsAllNames_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("dialog") << false << dialogNames;
    QTest::newRow("table") << true << tableNames;
}

void TestMaterialForms::componentFindsAllNames()
{
    QFETCH(const bool, isTable);
    QFETCH(const QStringList, names);
    const DialogFixture fixture;
    CSoftClothMaterialDlgUiComponent dialog;
    CSoftClothMaterialTableUiComponent table;
    CUiComponent& component = isTable ? static_cast<CUiComponent&>(table) : dialog;
    QVERIFY(!component.GetRootWidget());

    CQtUiLoader withoutRoot;
    component.SetupUi(withoutRoot);
    QCOMPARE(withoutRoot.UnresolvedNames(), names);
    QWidget* root = FormRoot(fixture, isTable);
    CQtUiLoader loader(root);
    component.SetupUi(loader);
    QCOMPARE(loader.UnresolvedNames(), QStringList());
    QCOMPARE(component.GetRootWidget(), root);
}

void TestMaterialForms::childrenAreOfTheirClass_data()
{
    QTest::addColumn<bool>("isTable");
    QTest::addColumn<QString>("className");
    const auto rows = [](bool isTable, const char* className, const char* names) {
        const QStringList all = Split(names);
        for (const QString& name : all) {
            QTest::addRow("%s %s", isTable ? "table" : "dialog", qPrintable(name))
                << isTable << QString::fromLatin1(className);
        }
    };
    rows(false, "QWidget", "SoftClothMaterialDlg ListBorderWidget qtTextureEditButtonWidget qtTextureSettingWidget");
    rows(false, "QComboSpinBox", "qtBrightnessCombospinbox qtContrastCombospinbox");
    rows(false, "QFrame", "frame line_2");
    rows(false, "QLabel", "label label_2 label_3 label_4 qtBitmapLabel");
    rows(false, "QGroupBox", "qtMaterialGroupBox");
    rows(false, "QItemLabel", "qtDiffuseItemLabel qtOpacityItemLabel qtWeightingItemLabel");
    rows(false, "QLineEdit", "qtBitmapPathLineEdit");
    rows(false, "QListWidget", "qtMaterialListWidget");
    rows(false, "QPushButton",
         "qtDeleteFilePushButton qtEmbedTexturePushButton qtLaunchPushButton qtOpenFilePushButton "
         "qtOpenPathPushButton qtPickMaterialPushButton qtSaveFilePushButton qtShowMaterialTableButton "
         "qtUvRefPushButton");
    rows(false, "QAction", "qtDoEscapeAction");
    for (const QString& name : dialogNames) {
        if (name.contains(QLatin1String("Layout"))) {
            const bool isHorizontal = name.startsWith(QLatin1String("horizontal"));
            rows(false, isHorizontal ? "QHBoxLayout" : "QVBoxLayout", name.toLatin1().constData());
        }
    }
    rows(true, "QWidget", "SoftClothMaterialTable qtMaterialTableBorderWidget qtMaterialTableButtonWidget");
    rows(true, "QGroupBox", "qtMaterialTableGroupBox");
    rows(true, "QLabel", "qtMaterialTableLabel");
    rows(true, "QPushButton", "qtCancelPushButton qtConfirmPushButton");
    rows(true, "QTableWidget", "qtMaterialTableWidget");
    rows(true, "QAction", "qtDoEscapeAction");
    rows(true, "QHBoxLayout", "qtMaterialTableButtonLayout qtMaterialTableHBoxLayout");
    rows(true, "QVBoxLayout", "qtMaterialTableLayout qtGroupBoxLayout qtWidgetLayout");
}

void TestMaterialForms::childrenAreOfTheirClass()
{
    QFETCH(const bool, isTable);
    QFETCH(const QString, className);
    const DialogFixture fixture;
    const QWidget* dialog = isTable ? static_cast<QWidget*>(fixture.table.data()) : fixture.dialog.data();
    const QByteArray name = QByteArray(QTest::currentDataTag()).split(' ').last();
    const auto* found = Child<QObject>(dialog, name);
    QCOMPARE(QString::fromLatin1(found->metaObject()->className()), className);
}

void TestMaterialForms::adjustmentRanges()
{
    const DialogFixture fixture;
    for (const char* name : {"qtBrightnessCombospinbox", "qtContrastCombospinbox"}) {
        const auto* box = fixture.Find<QComboSpinBox>(name);
        QCOMPARE(box->Minimum(), -100);
        QCOMPARE(box->Maximum(), 100);
        QCOMPARE(box->SingleStep(), 1);
        QCOMPARE(box->Value(), 0);
    }
}

void TestMaterialForms::tableButtonIsOutsideWhatIsDisabled()
{
    DialogFixture fixture;
    fixture.Show();
    QVERIFY(fixture.Find<QAbstractButton>("qtShowMaterialTableButton")->isEnabled());
    QVERIFY(!fixture.Find<QAbstractButton>("qtPickMaterialPushButton")->isEnabled());
}

void TestMaterialForms::widgetsExplainThemselves()
{
    const DialogFixture fixture;
    for (const bool isTable : {false, true}) {
        const QWidget* root = FormRoot(fixture, isTable);
        const auto buttons = Named<QAbstractButton>(root);
        for (const auto* button : buttons) {
            QVERIFY2(!button->text().isEmpty() && !button->toolTip().isEmpty(), qPrintable(button->objectName()));
        }
        const auto widgets = Named<QWidget>(root);
        for (const auto* widget : widgets) {
            const bool isField = widget->focusPolicy() != Qt::NoFocus && !qobject_cast<const QAbstractButton*>(widget);
            if (isField || widget->focusProxy()) {
                QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
                QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->objectName()));
            }
        }
        QVERIFY(!root->windowTitle().isEmpty());
    }
}

void TestMaterialForms::captionsLeadToTheirWidgets()
{
    const DialogFixture fixture;
    const QVector<std::pair<const char*, const char*>> captions{{"label", "qtDiffuseItemLabel"},
                                                                {"label_2", "qtOpacityItemLabel"},
                                                                {"label_3", "qtWeightingItemLabel"},
                                                                {"label_4", "qtBitmapPathLineEdit"},
                                                                {"qtMaterialListLabel", "qtMaterialListWidget"},
                                                                {"qtBrightnessLabel", "qtBrightnessCombospinbox"},
                                                                {"qtContrastLabel", "qtContrastCombospinbox"}};
    for (const auto& [caption, widget] : captions) {
        QVERIFY2(fixture.Find<QLabel>(caption)->buddy() == fixture.Find<QWidget>(widget), caption);
    }
    QCOMPARE(Child<QLabel>(fixture.table.data(), "qtMaterialTableLabel")->buddy(),
             Child<QWidget>(fixture.table.data(), "qtMaterialTableWidget"));
}

void TestMaterialForms::accessKeysAreUnique()
{
    const DialogFixture fixture;
    for (const bool isTable : {false, true}) {
        const QWidget* root = FormRoot(fixture, isTable);
        QStringList texts;
        const auto buttons = Named<QAbstractButton>(root);
        for (const auto* button : buttons) {
            texts.append(button->text());
        }
        const auto labels = Named<QLabel>(root);
        for (const auto* label : labels) {
            texts.append(label->text());
        }
        QStringList keys;
        for (const QString& text : texts) {
            const int at = text.indexOf(QLatin1Char('&'));
            if (at >= 0) {
                keys.append(text.mid(at + 1, 1).toUpper());
            }
        }
        QVERIFY(keys.size() >= 3);
        QCOMPARE(keys.removeDuplicates(), 0);
    }
}

void TestMaterialForms::tabLeadsThroughTheDialog()
{
    DialogFixture fixture;
    fixture.Open();
    const QStringList order =
        Split("qtMaterialListWidget qtPickMaterialPushButton qtShowMaterialTableButton qtDiffuseItemLabel "
              "qtOpacityItemLabel qtWeightingItemLabel qtBitmapPathLineEdit qtOpenPathPushButton "
              "qtOpenFilePushButton qtSaveFilePushButton qtDeleteFilePushButton qtEmbedTexturePushButton "
              "qtLaunchPushButton qtUvRefPushButton qtBrightnessCombospinbox qtContrastCombospinbox");
    fixture.Find<QWidget>("qtMaterialListWidget")->setFocus(Qt::TabFocusReason);
    QStringList visited;
    for (int i = 0; i < order.size(); ++i) {
        visited.append(FormName(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, order);
    QCOMPARE(FormName(QApplication::focusWidget()), order.first());
}

void TestMaterialForms::escapeActionsHaveNoKeyOfTheirOwn()
{
    const DialogFixture fixture;
    // The host gives the dialog's action its key; the table's Escape is that of any dialog.
    QVERIFY(Child<QAction>(fixture.table.data(), "qtDoEscapeAction")->shortcut().isEmpty());
    QCOMPARE(fixture.Find<QAction>("qtDoEscapeAction")->shortcut(), QKeySequence(Qt::Key_Escape));
}

SOFTCLOTH_TEST(TestMaterialForms)
#include "tst_material_forms.moc"
