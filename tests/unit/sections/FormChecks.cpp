#include "tests/unit/sections/FormChecks.h"

#include "sections/MultiLevelSlider.h"
#include "ui/QtUiLoader.h"
#include "ui/UiComponent.h"

#include <BFQtCustomWidgetPluginU/QComboDoubleSpinBox.h>
#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLabel>
#include <QLayout>

#include <algorithm>

namespace FormChecks {

namespace {

QStringList Split(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

/// Name of \p widget, or of the nearest widget around it that a form named.
QString FormName(const QWidget* widget)
{
    while (widget && (widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_")))) {
        widget = widget->parentWidget();
    }
    return widget ? widget->objectName() : QString();
}

bool IsCombo(const QWidget* widget)
{
    return qobject_cast<const QComboSpinBox*>(widget) || qobject_cast<const QComboDoubleSpinBox*>(widget);
}

/// The boxes that the form names: combo spin boxes and plain ones, not the parts of a combo.
QList<QWidget*> Boxes(const QWidget& section)
{
    QList<QWidget*> boxes;
    const auto all = section.findChildren<QWidget*>();
    for (QWidget* widget : all) {
        const bool isPlain = qobject_cast<QAbstractSpinBox*>(widget) && !IsCombo(widget->parentWidget());
        if (isPlain || IsCombo(widget)) {
            boxes.append(widget);
        }
    }
    return boxes;
}

bool HasLabel(const QWidget& section, const QWidget* box)
{
    const auto labels = section.findChildren<QLabel*>();
    return std::any_of(labels.cbegin(), labels.cend(), [box](const QLabel* label) {
        return label->buddy() == box && !label->text().isEmpty() && !label->toolTip().isEmpty();
    });
}

/// Everything that a refresh can change of the widgets in \p section: values, checks, texts and enabled states.
QStringList State(const QWidget& section)
{
    QStringList state;
    const auto widgets = section.findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool enabled = widget->isEnabledTo(widget->parentWidget());
        state.append(FormName(widget) + QLatin1Char(' ') + Shown(widget).toString() + QLatin1Char(' ') +
                     widget->property("text").toString() + QLatin1String(enabled ? " enabled" : " disabled"));
    }
    const auto sliders = section.findChildren<MV::CMultiLevelSlider*>();
    for (const MV::CMultiLevelSlider* slider : sliders) {
        state.append(QStringLiteral("%1 to %2").arg(slider->LevelValue(0)).arg(slider->LevelValue(1)));
    }
    return state;
}

} // namespace

void Component(CUiComponent& component, QWidget& form, const char* names)
{
    QVERIFY(!component.GetRootWidget());
    CQtUiLoader withoutRoot;
    component.SetupUi(withoutRoot);
    QCOMPARE(withoutRoot.UnresolvedNames(), Split(names));

    CQtUiLoader loader(&form);
    component.SetupUi(loader);
    QCOMPARE(loader.UnresolvedNames(), QStringList());
    QCOMPARE(component.GetRootWidget(), &form);
}

void AddClassColumns()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QStringList>("names");
}

void AddClassRow(const char* className, const char* names)
{
    QTest::newRow(className) << QByteArray(className) << Split(names);
}

void Classes(const QWidget& section)
{
    QFETCH(QByteArray, className);
    QFETCH(QStringList, names);
    for (const QString& name : names) {
        const auto* object = Child<QObject>(&section, qPrintable(name));
        QCOMPARE(QByteArray(object->metaObject()->className()), className);
    }
}

void AddRangeColumns()
{
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<QString>("suffix");
}

void Range(const QWidget& section)
{
    QFETCH(QByteArray, box);
    const auto* widget = Child<QWidget>(&section, box);
    QTEST(widget->property("minimum").toDouble(), "minimum");
    QTEST(widget->property("maximum").toDouble(), "maximum");
    QTEST(widget->property("singleStep").toDouble(), "step");
    QTEST(widget->property("suffix").toString(), "suffix");
}

void Help(const QWidget& section, int count)
{
    const QList<QWidget*> boxes = Boxes(section);
    QCOMPARE(boxes.size(), count);
    for (const QWidget* box : boxes) {
        const QByteArray name = box->objectName().toLatin1();
        QVERIFY2(box->toolTip().contains(QLatin1String(". ")), name);
        QVERIFY2(!box->accessibleName().isEmpty(), name);
        QVERIFY2(HasLabel(section, box), name);
    }
    const auto spinBoxes = section.findChildren<QAbstractSpinBox*>();
    for (const QAbstractSpinBox* spinBox : spinBoxes) {
        QVERIFY2(!spinBox->keyboardTracking(), qPrintable(FormName(spinBox)));
    }
}

void LayoutFile(const QWidget& section, const char* layout, int spacing)
{
    QCOMPARE(Child<QLayout>(&section, layout)->spacing(), spacing);
    const QList<QWidget*> boxes = Boxes(section);
    for (const QWidget* box : boxes) {
        if (const auto* plain = qobject_cast<const QAbstractSpinBox*>(box)) {
            QVERIFY2(plain->alignment() == (Qt::AlignRight | Qt::AlignVCenter), qPrintable(box->objectName()));
        }
    }
}

QVariantList ShownByAll(const QWidget& section)
{
    QVariantList shown;
    const QList<QWidget*> boxes = Boxes(section);
    for (const QWidget* box : boxes) {
        shown.append(Shown(box));
    }
    return shown;
}

void TabOrder(QWidget& section, const char* names)
{
    Child<QPushButton>(&section, "qtExpandPushButton")->setFocus(Qt::TabFocusReason);
    QStringList visited;
    for (int i = 0; i < Split(names).size(); ++i) {
        visited.append(FormName(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited, Split(names));
}

void AddNothingShownRows()
{
    QTest::addColumn<bool>("hasMesh");
    QTest::addColumn<bool>("hasMaterial");
    QTest::addColumn<bool>("objectActive");
    QTest::addColumn<bool>("materialActive");
    QTest::addColumn<bool>("asksTheHost");
    QTest::newRow("no soft cloth on the object") << true << true << false << true << false;
    QTest::newRow("no mesh") << false << true << true << true << false;
    QTest::newRow("no material") << true << false << true << true << false;
    QTest::newRow("no soft cloth on the material") << true << true << true << false << true;
}

void NothingShown(SectionFixture& fixture, const QWidget& section, const std::function<BF::Result()>& refresh,
                  const char* box)
{
    QFETCH(bool, hasMesh);
    QFETCH(bool, hasMaterial);
    QFETCH(bool, objectActive);
    QFETCH(bool, materialActive);
    QFETCH(bool, asksTheHost);
    MV::SoftClothSelection& selection = fixture.plugin.Selection();
    selection.mesh = hasMesh ? selection.mesh : 0;
    selection.material = hasMaterial ? selection.material : 0;
    selection.softClothActive = objectActive;
    fixture.Cloth().active = materialActive;
    const QVariant shown = Shown(Child<QWidget>(&section, box));

    QCOMPARE(refresh(), BF::Results::NothingDone);

    QVERIFY(!Child<QGroupBox>(&section, "qtSectionGroupBox")->isEnabled());
    QCOMPARE(Shown(Child<QWidget>(&section, box)), shown);
    QStringList asked;
    if (asksTheHost) {
        asked.append(fixture.Call("Scene.IsSoftClothActive", {QStringLiteral("false")}));
    }
    QCOMPARE(fixture.TakeCalls(), asked);
}

void FailedRead(SectionFixture& fixture, const QWidget& section, const std::function<BF::Result()>& refresh,
                const std::function<void()>& change)
{
    QFETCH(QString, operation);
    QCOMPARE(refresh(), BF::Results::Success);
    const QVariantList shown = ShownByAll(section);
    change();
    fixture.host.Faults().FailOperation(operation, BF::Results::Refused);
    for (const bool enabled : {true, false}) {
        Child<QGroupBox>(&section, "qtSectionGroupBox")->setEnabled(enabled);
        const QStringList before = State(section);
        QCOMPARE(refresh(), BF::Results::Refused);
        QCOMPARE(State(section), before);
        QVERIFY(fixture.TakeCalls().constLast().startsWith(QLatin1String("Scene.") + operation));
    }

    fixture.host.Faults().Clear();
    QCOMPARE(refresh(), BF::Results::Success);
    const QVariantList changed = ShownByAll(section);
    for (int i = 0; i < shown.size(); ++i) {
        QVERIFY2(changed.at(i) != shown.at(i), qPrintable(Boxes(section).at(i)->objectName()));
    }
}

} // namespace FormChecks
