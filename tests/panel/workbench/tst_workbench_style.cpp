#include "host/workbench/WorkbenchStyle.h"
#include "tests/panel/workbench/WorkbenchTestCase.h"

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionViewItem>
#include <QVBoxLayout>

#include <cmath>

/// What the workbench looks like, and what a screen reader says of it.
class TestWorkbenchStyle : public WorkbenchTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void emptyBoxesAreSeenOnTheDarkGround_data();
    void emptyBoxesAreSeenOnTheDarkGround();
    void listsHaveNames();

protected:
    void SetUp() override;
};

namespace {

/// The luminance of a colour as it is perceived.
double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& light, const QColor& dark)
{
    return (Luminance(light) + 0.05) / (Luminance(dark) + 0.05);
}

QRect IndicatorOf(const QAbstractButton& button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const bool isRadio = qobject_cast<const QRadioButton*>(&button);
    return button.style()->subElementRect(isRadio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator,
                                          &option, &button);
}

QRect IndicatorOf(const QListWidget& list)
{
    QStyleOptionViewItem option;
    option.initFrom(&list);
    option.rect = list.visualItemRect(list.item(0));
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = list.item(0)->text();
    return list.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &list);
}

} // namespace

void TestWorkbenchStyle::SetUp()
{
    Host::ApplyWorkbenchStyle(*qApp);
    WorkbenchTestCase::SetUp();
}

void TestWorkbenchStyle::emptyBoxesAreSeenOnTheDarkGround_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<double>("leastContrast");
    for (const char* kind : {"check box", "radio button", "tick of a list"}) {
        QTest::addRow("%s", kind) << QString::fromLatin1(kind) << true << 3.0;
        QTest::addRow("disabled %s", kind) << QString::fromLatin1(kind) << false << 1.5;
    }
}

void TestWorkbenchStyle::emptyBoxesAreSeenOnTheDarkGround()
{
    QFETCH(const QString, kind);
    QFETCH(const bool, enabled);
    QFETCH(const double, leastContrast);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* checkBox = new QCheckBox(QStringLiteral("Box"));
    auto* radioButton = new QRadioButton(QStringLiteral("Radio"));
    auto* list = new QListWidget;
    list->addItem(QStringLiteral("Tick"));
    list->item(0)->setCheckState(Qt::Unchecked);
    for (QWidget* widget :
         {static_cast<QWidget*>(checkBox), static_cast<QWidget*>(radioButton), static_cast<QWidget*>(list)}) {
        layout->addWidget(widget);
    }
    window.setEnabled(enabled);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    QWidget* widget = list->viewport();
    QRect indicator = IndicatorOf(*list);
    if (kind != QLatin1String("tick of a list")) {
        QAbstractButton* button =
            kind == QLatin1String("check box") ? static_cast<QAbstractButton*>(checkBox) : radioButton;
        widget = button;
        indicator = IndicatorOf(*button);
    }
    const QImage picture = widget->grab().toImage();
    const qreal ratio = picture.devicePixelRatio();
    const QRect box(indicator.topLeft() * ratio, indicator.size() * ratio);
    const QColor ground = picture.pixelColor(box.right() + 2, box.bottom() + 1);
    const QPoint middle = box.center();
    for (const QPoint& side : {QPoint(box.left(), middle.y()), QPoint(box.right(), middle.y()),
                               QPoint(middle.x(), box.top()), QPoint(middle.x(), box.bottom())}) {
        const double contrast = Contrast(picture.pixelColor(side), ground);
        QVERIFY2(contrast >= leastContrast, qPrintable(QString::number(contrast)));
    }
}

void TestWorkbenchStyle::listsHaveNames()
{
    for (const char* name :
         {"sceneTree", "hostCallsFilter", "hostCallsTable", "qtMaterialListWidget", "qtMaterialTableWidget",
          "qtPresetClothListWidget", "qtPresetHairListWidget", "qtPresetWindListWidget"}) {
        const auto* widget = Child<QWidget>(&Window(), name);
        QVERIFY2(widget && !widget->accessibleName().isEmpty(), name);
    }
}

SOFTCLOTH_TEST(TestWorkbenchStyle)
#include "tst_workbench_style.moc"
