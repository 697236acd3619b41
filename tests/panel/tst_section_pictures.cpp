#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <MVPluginQt/SectionInterface.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

/// How the sections look on this platform: none of their texts and boxes is cut off. The pictures are kept, for people
/// to look at.
class TestSectionPictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsCutOff_data();
    void nothingIsCutOff();
};

namespace {

/// Whether \p widget shows something that takes a certain room.
bool HasContent(const QWidget* widget)
{
    const auto* label = qobject_cast<const QLabel*>(widget);
    if (label) {
        return !label->text().isEmpty() && !label->wordWrap();
    }
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget);
}

/// What of \p section is cut off, by its own size or by what it lies in.
QStringList CutOff(const QWidget* section)
{
    QStringList found;
    const QList<QWidget*> widgets = section->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        // What Qt puts into its own widgets is Qt's affair.
        if (!widget->isVisible() || widget->objectName().startsWith(QLatin1String("qt_")) || !HasContent(widget)) {
            continue;
        }
        // A form may hold a box narrower than its longest possible number.
        const QSize needed = widget->minimumSizeHint().boundedTo(widget->maximumSize());
        const bool isSmall = widget->width() < needed.width() || widget->height() < needed.height();
        const QRect place(widget->mapTo(section, QPoint()), widget->size());
        if (isSmall || !section->rect().contains(place) ||
            !widget->parentWidget()->rect().contains(widget->geometry())) {
            found.append(QStringLiteral("%1 has %2x%3 and needs %4x%5")
                             .arg(widget->objectName())
                             .arg(widget->width())
                             .arg(widget->height())
                             .arg(needed.width())
                             .arg(needed.height()));
        }
    }
    return found;
}

/// The items whose names are wider than they are, in the lists that are shown.
QStringList CutOffItems(const QWidget* section)
{
    QStringList found;
    const QList<QListWidget*> lists = section->findChildren<QListWidget*>();
    for (const QListWidget* list : lists) {
        for (int row = 0; list->isVisible() && row < list->count(); ++row) {
            const QListWidgetItem* item = list->item(row);
            if (list->visualItemRect(item).width() < list->fontMetrics().horizontalAdvance(item->text())) {
                found.append(item->text());
            }
        }
    }
    return found;
}

} // namespace

void TestSectionPictures::nothingIsCutOff_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("width");
    PanelFixture fixture;
    const QVector<MV::CSectionInterface*> sections = fixture.Plugin().Sections();
    QVERIFY(sections.size() >= 3);
    for (int i = 0; i < sections.size(); ++i) {
        const auto* form =
            sections.at(i)->GetSectionWidget()->findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const int width : {360, 600}) {
            QTest::addRow("%s-%d", qPrintable(form->objectName()), width) << i << width;
        }
    }
}

void TestSectionPictures::nothingIsCutOff()
{
    QFETCH(const int, index);
    QFETCH(const int, width);
    PanelFixture fixture(MV::ECompatibleApp::FamilyA, QStringLiteral(SOFTCLOTH_DATA_FOLDER));
    fixture.AddCloth(SampleModels::Hero());
    QWidget* section = fixture.Plugin().Sections().at(index)->GetSectionWidget();
    // As wide as asked for, where the platform's style and font allow it.
    fixture.Window().resize(qMax(width, fixture.Window().minimumSizeHint().width()), 900);
    QVERIFY(QTest::qWaitForWindowExposed(&fixture.Window()));
    QVERIFY(section->isVisible());

    const QDir folder(QStringLiteral(SOFTCLOTH_PICTURES "/%1").arg(QGuiApplication::platformName()));
    QVERIFY(folder.mkpath(QStringLiteral(".")));
    const QString file = folder.filePath(QString::fromLatin1(QTest::currentDataTag()) + QLatin1String(".png"));
    const QImage picture = section->grab().toImage();
    QVERIFY2(picture.save(file), qPrintable(file));
    QCOMPARE(picture.size() / picture.devicePixelRatio(), section->size());
    QCOMPARE(CutOff(section).join(u'\n'), QString());
    QCOMPARE(CutOffItems(section), QStringList());
}

QTEST_MAIN(TestSectionPictures)
#include "tst_section_pictures.moc"
