#include "tests/support/Children.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"
#include "tests/support/UserDialogs.h"

#include <QAbstractSpinBox>
#include <QFile>
#include <QLocale>
#include <QPushButton>
#include <QTemporaryDir>

/// Numbers on the screen are written as the user writes them, numbers in a profile as everybody does.
class TestLocaleNumbers : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boxesShowAndTakeTheUsersNumbers();
    void profilesHoldEverybodysNumbers();
    void profilesAreReadInEveryLocale();

protected:
    void SetUp() override { QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany)); }
    void TearDown() override { QLocale::setDefault(QLocale::c()); }
};

namespace {

/// A cloth in the panel.
struct ClothPanel
{
    ClothPanel()
        : object(panel.AddCloth(SampleModels::Flag()))
    {
    }

    MV::SoftClothPropertyData& Property() { return panel.Cloth(object).property; }
    QAbstractSpinBox* Box(const char* name) { return Child<QAbstractSpinBox>(&panel.Window(), name); }
    QPushButton* Button(const char* name) { return Child<QPushButton>(panel.Section("SoftClothPreset"), name); }
    void Type(const char* name, const char* text)
    {
        QAbstractSpinBox* box = Box(name);
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QString::fromLatin1(text));
        QTest::keyClick(box, Qt::Key_Return);
    }

    PanelFixture panel;
    Host::Object& object;
};

} // namespace

void TestLocaleNumbers::boxesShowAndTakeTheUsersNumbers()
{
    ClothPanel cloth;
    QCOMPARE(cloth.Box("qtFricionDoubleEXSpinBox")->text(), QStringLiteral("0,500"));
    cloth.Type("qtFricionDoubleEXSpinBox", "0,75");
    QCOMPARE(cloth.Property().friction, 0.75F);
    QCOMPARE(cloth.Box("qtFricionDoubleEXSpinBox")->text(), QStringLiteral("0,750"));
}

void TestLocaleNumbers::profilesHoldEverybodysNumbers()
{
    ClothPanel cloth;
    cloth.Type("qtFricionDoubleEXSpinBox", "0,75");
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("german.ini"));
    UserDialogs::ChooseFile([&] { cloth.Button("qtSaveFilePushButton")->click(); }, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray contents = file.readAll();
    QVERIFY2(contents.contains("=0.75\n"), contents.constData());
    QVERIFY2(!contents.contains("0,75"), contents.constData());
}

void TestLocaleNumbers::profilesAreReadInEveryLocale()
{
    ClothPanel cloth;
    cloth.Type("qtFricionDoubleEXSpinBox", "0,75");
    cloth.Type("qtTetherLimitDoubleEXSpinBox", "1,25");
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("german.ini"));
    UserDialogs::ChooseFile([&] { cloth.Button("qtSaveFilePushButton")->click(); }, path);
    cloth.Type("qtFricionDoubleEXSpinBox", "0,1");
    cloth.Type("qtTetherLimitDoubleEXSpinBox", "1");
    UserDialogs::ChooseFile([&] { cloth.Button("qtOpenFilePushButton")->click(); }, path);
    QCOMPARE(cloth.Property().friction, 0.75F);
    QCOMPARE(cloth.Property().tetherLimit, 1.25F);
}

SOFTCLOTH_TEST(TestLocaleNumbers)
#include "tst_locale_numbers.moc"
