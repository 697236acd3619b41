#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/ShownTexts.h"
#include "tests/support/TestCase.h"

#include <MVPluginQt/SectionInterface.h>

#include <QDir>
#include <QImage>

/// How the sections look on this platform: none of their texts and boxes is cut off. The pictures are kept, for people
/// to look at.
class TestSectionPictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsCutOff_data();
    void nothingIsCutOff();
};

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
    QCOMPARE(CutOffTexts(section).join(u'\n'), QString());
}

SOFTCLOTH_TEST(TestSectionPictures)
#include "tst_section_pictures.moc"
