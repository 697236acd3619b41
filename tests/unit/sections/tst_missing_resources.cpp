#include "sections/MultiLevelSlider.h"
#include "sections/SoftClothPropertySection.h"
#include "sections/SoftClothWindSection.h"
#include "tests/support/TestCase.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QResource>

/// Sections whose resource file lacks something.
class TestMissingResources : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void missingImageEndsTheWindSection_data();
    void missingImageEndsTheWindSection();
    void hoverImageOfAnotherSizeEndsTheWindSection();
    void missingContainerEndsTheWindSection();
    void emptyPropertyFormIsLivedWith();
    void emptyWindFormIsLivedWith();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    void Register(const QString& name);

    QStringList m_registered;
    std::unique_ptr<SectionFixture> m_fixture;
};

void TestMissingResources::SetUp()
{
    m_fixture = std::make_unique<SectionFixture>(SectionFixture::Resources::None);
}

void TestMissingResources::TearDown()
{
    m_fixture.reset();
    for (const QString& file : qAsConst(m_registered)) {
        QVERIFY(QResource::unregisterResource(file));
    }
    m_registered.clear();
}

void TestMissingResources::Register(const QString& name)
{
    const QString file = QStringLiteral(SOFTCLOTH_PARTIAL_RESOURCES "/%1.rcc").arg(name);
    QVERIFY2(QResource::registerResource(file), qPrintable(file));
    m_registered.append(file);
}

void TestMissingResources::missingImageEndsTheWindSection_data()
{
    QTest::addColumn<QStringList>("images");
    QTest::addColumn<quint32>("code");
    const QStringList all{QStringLiteral("unselect"), QStringLiteral("select"), QStringLiteral("hover"),
                          QStringLiteral("disable")};
    QTest::newRow("none is missing") << all << 0U;
    for (const QString& image : all) {
        QStringList others = all;
        others.removeAll(image);
        QTest::newRow(qPrintable(image)) << others << 0x80000002U;
    }
}

void TestMissingResources::missingImageEndsTheWindSection()
{
    QFETCH(QStringList, images);
    QFETCH(quint32, code);
    Register(QStringLiteral("forms"));
    for (const QString& image : images) {
        Register(image);
    }
    auto& section = m_fixture->Make<MV::CSoftClothWindSection>();
    QCOMPARE(m_fixture->initialised, BF::Result(code));
    QCOMPARE(section.findChild<MV::CMultiLevelSlider*>()->LevelValue(1), code == 0 ? 10 : 0);
}

void TestMissingResources::hoverImageOfAnotherSizeEndsTheWindSection()
{
    for (const char* name : {"forms", "unselect", "select", "large_hover", "disable"}) {
        Register(QString::fromLatin1(name));
    }
    auto& section = m_fixture->Make<MV::CSoftClothWindSection>();
    // What the slider's set-up returns, unchanged.
    QCOMPARE(m_fixture->initialised, BF::Results::InvalidArgument);
    QCOMPARE(section.findChild<MV::CMultiLevelSlider*>()->LevelValue(1), 0);
}

void TestMissingResources::missingContainerEndsTheWindSection()
{
    Register(QStringLiteral("empty_forms"));
    auto& section = m_fixture->Make<MV::CSoftClothWindSection>();
    QCOMPARE(m_fixture->initialised, BF::Results::ResourceFailure);
    QVERIFY(!section.findChild<MV::CMultiLevelSlider*>());
}

void TestMissingResources::emptyPropertyFormIsLivedWith()
{
    Register(QStringLiteral("empty_forms"));
    auto& section = m_fixture->Make<MV::CSoftClothPropertySection>();
    QCOMPARE(m_fixture->initialised, BF::Results::Success);
    QVERIFY(!section.AbleToShowSection());
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    section.EnableUi(false);
    m_fixture->Load(section, "Property", {QStringLiteral("Mass=16")});
    QCOMPARE(m_fixture->Cloth().property.mass, qint64(16));
    QVERIFY(m_fixture->Saved(section, "Property").contains(QStringLiteral("Mass=0")));
    m_fixture->plugin.Selection().Clear();
    QCOMPARE(section.UpdateUi(), BF::Results::NothingDone);
}

void TestMissingResources::emptyWindFormIsLivedWith()
{
    Register(QStringLiteral("empty_forms"));
    auto& section = m_fixture->Make<MV::CSoftClothWindSection>();
    QCOMPARE(section.UpdateUi(), BF::Results::Success);
    m_fixture->Load(section, "Wind_Setting", {QStringLiteral("Wind_Frequency=2")});
    QCOMPARE(m_fixture->Cloth().wind.frequency, 2.0F);
    QVERIFY(m_fixture->Saved(section, "Wind_Setting").contains(QStringLiteral("Wind_Frequency=0")));
}

SOFTCLOTH_TEST(TestMissingResources)
#include "tst_missing_resources.moc"
