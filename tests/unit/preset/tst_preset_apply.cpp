#include "tests/support/TestCase.h"
#include "tests/unit/preset/PresetFixture.h"
#include "tests/unit/sections/SectionFixture.h"

#include <QTabWidget>

/// Presets of the gallery that the user applies.
class TestPresetApply : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void doubleClickAppliesTheCurrentItem_data();
    void doubleClickAppliesTheCurrentItem();
    void keysApplyTheCurrentItemOnce_data();
    void keysApplyTheCurrentItemOnce();
    void keysOfAListWithoutCurrentItemDoNothing();
    void sectionMayEndWhileAKeyAppliesAnItem();
    void nothingElseAppliesAnItem();
    void itemUnderTheMouseDoesNotCount();
    void itemWithoutProfileIsAnInvalidPath();
    void missingCurrentItemIsAnInvalidPath();
    void everyListUnderTheTabsCounts();
    void slotAppliesTheGivenList();
    void presetsAddedLaterDoNotAppear();
};

namespace {

void DoubleClick(const QListWidget& list, const QListWidgetItem* item)
{
    const QPoint at = list.visualItemRect(item).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, at);
}

/// A preset at place 1 of the cloth and of the hair list, and one at place 2 of the wind list; the profiles have a
/// group each.
void FillData(const QString& folder)
{
    const QString root = folder + QStringLiteral("/PhysicsSoftPreset/");
    Files::Write(root + QStringLiteral("0/1_First.png"), ImageBytes({8, 8}));
    Files::Write(root + QStringLiteral("0/1_First.ini"), "[Collision]\nSelf_Collision_Margin=1.5\n");
    Files::Write(root + QStringLiteral("1/1_Middle.png"), ImageBytes({8, 8}));
    Files::Write(root + QStringLiteral("1/1_Middle.ini"), "[Property]\nMass=2\n");
    Files::Write(root + QStringLiteral("2/2_Second.png"), ImageBytes({8, 8}));
    Files::Write(root + QStringLiteral("2/2_Second.ini"), "[Wind_Setting]\nWind_Frequency=3\n");
}

const QString invalidPath = QStringLiteral("InValid File Path.");

} // namespace

void TestPresetApply::doubleClickAppliesTheCurrentItem_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("item");
    QTest::addColumn<QString>("call");
    QTest::newRow("cloth") << 0 << 0 << QStringLiteral("SetSoftClothCollision");
    QTest::newRow("hair") << 1 << 0 << QStringLiteral("SetSoftClothProperty");
    QTest::newRow("wind") << 2 << 1 << QStringLiteral("SetSoftClothWind");
}

void TestPresetApply::doubleClickAppliesTheCurrentItem()
{
    QFETCH(const int, page);
    QFETCH(const int, item);
    QFETCH(const QString, call);
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    fixture.Find<QTabWidget>("qtPresetTabWidget")->setCurrentIndex(page);
    DoubleClick(fixture.List(page), fixture.List(page).item(item));
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.size(), 1);
    QVERIFY2(calls.first().startsWith(call), qPrintable(calls.first()));
}

void TestPresetApply::keysApplyTheCurrentItemOnce_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("onNumberPad");
    QTest::newRow("Return") << int(Qt::Key_Return) << false;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << true;
    QTest::newRow("Space") << int(Qt::Key_Space) << false;
}

void TestPresetApply::keysApplyTheCurrentItemOnce()
{
    QFETCH(const int, key);
    QFETCH(const bool, onNumberPad);
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    fixture.Find<QTabWidget>("qtPresetTabWidget")->setCurrentIndex(2);
    QListWidget& list = fixture.List(2);
    list.setCurrentRow(1);
    const Qt::KeyboardModifiers modifiers = onNumberPad ? Qt::KeypadModifier : Qt::NoModifier;
    QTest::keyPress(&list, Qt::Key(key), modifiers);
    // Held for a while.
    for (int i = 0; i < 3; ++i) {
        QKeyEvent again(QEvent::KeyPress, key, modifiers, QString(), true);
        QApplication::sendEvent(&list, &again);
    }
    QTest::keyRelease(&list, Qt::Key(key), modifiers);
    const QStringList calls = fixture.Take();
    QCOMPARE(calls.size(), 1);
    QVERIFY2(calls.first().startsWith(QLatin1String("SetSoftClothWind")), qPrintable(calls.first()));
    QCOMPARE(list.currentRow(), 1);
}

void TestPresetApply::keysOfAListWithoutCurrentItemDoNothing()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    QListWidget& list = fixture.List(0);
    list.setCurrentItem(nullptr);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        QTest::keyClick(&list, key);
    }
    QCOMPARE(fixture.Take(), QStringList());
}

void TestPresetApply::sectionMayEndWhileAKeyAppliesAnItem()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    QListWidget& list = fixture.List(0);
    list.setCurrentRow(3);
    // The item has no profile, so there is a message, and the section is destroyed while it is shown.
    fixture.During("ShowMessageBox", [&] { delete fixture.section; });
    QTest::keyClick(&list, Qt::Key_Return);
    QVERIFY(!fixture.section);
}

void TestPresetApply::nothingElseAppliesAnItem()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    QListWidget& list = fixture.List(0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, list.visualItemRect(list.item(0)).center());
    QCOMPARE(list.currentRow(), 0);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Left, Qt::Key_End, Qt::Key_Home, Qt::Key_R}) {
        QTest::keyClick(&list, key);
    }
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        QTest::keyClick(&list, key, Qt::ControlModifier);
    }
    QCOMPARE(fixture.Take(), QStringList());
}

void TestPresetApply::itemUnderTheMouseDoesNotCount()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    QListWidget& list = fixture.List(0);
    // Whatever is clicked, the first item becomes current before the double click.
    connect(&list, &QListWidget::itemPressed, this, [&list] { list.setCurrentRow(0); });
    DoubleClick(list, list.item(2));
    QVERIFY(fixture.Take().join(QLatin1Char(' ')).startsWith(QLatin1String("SetSoftClothCollision")));
}

void TestPresetApply::itemWithoutProfileIsAnInvalidPath()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    DoubleClick(fixture.List(0), fixture.List(0).item(3));
    QCOMPARE(fixture.Take(), QStringList{Journal::Message(invalidPath)});
}

void TestPresetApply::missingCurrentItemIsAnInvalidPath()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    QListWidget& list = fixture.List(0);
    connect(&list, &QListWidget::itemPressed, this, [&list] { list.setCurrentItem(nullptr); });
    DoubleClick(list, list.item(0));
    QCOMPARE(list.currentItem(), nullptr);
    QCOMPARE(fixture.Take(), QStringList{Journal::Message(invalidPath)});
}

void TestPresetApply::everyListUnderTheTabsCounts()
{
    SectionFixture fixture;
    fixture.host.Answers().unattended = true;
    MV::CSoftClothPresetSection section(&fixture.plugin);
    QListWidget* own = nullptr;
    // Somebody has put a list of their own deep into a page by the time that the gallery is filled.
    During(fixture.host, "GetDataFolderPath", [&] {
        auto* page = new QWidget(Child<QWidget>(&section, "qtHairTab"));
        own = new QListWidget(new QWidget(page));
    });
    QCOMPARE(section.Init({}, {}, &fixture.host), BF::Results::Success);
    QVERIFY(own);
    own->addItem(QStringLiteral("mine"));
    own->setCurrentRow(0);
    fixture.TakeCalls();
    Q_EMIT own->itemDoubleClicked(own->item(0));
    const QStringList calls = fixture.TakeCalls();
    QCOMPARE(calls.size(), 1);
    QVERIFY2(calls.first().contains(invalidPath), qPrintable(calls.first()));
}

void TestPresetApply::slotAppliesTheGivenList()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    const auto apply = [&](QListWidget* list) {
        return QMetaObject::invokeMethod(fixture.section, "OnChangeCurrentItemOfPresetContentListWidget",
                                         Q_ARG(QListWidget*, list));
    };
    QListWidget own;
    own.addItem(QStringLiteral("mine"));
    own.item(0)->setData(256, fixture.data.filePath(QStringLiteral("PhysicsSoftPreset/2/2_Second.ini")));
    own.setCurrentRow(0);
    QVERIFY(apply(&own));
    QVERIFY(fixture.Take().constFirst().startsWith(QLatin1String("SetSoftClothWind")));
    QVERIFY(apply(nullptr));
    QCOMPARE(fixture.Take(), QStringList{Journal::Message(invalidPath)});
}

void TestPresetApply::presetsAddedLaterDoNotAppear()
{
    PresetFixture fixture(MV::ECompatibleApp::FamilyA, FillData);
    fixture.AddCloth();
    Files::Write(fixture.data.filePath(QStringLiteral("PhysicsSoftPreset/0/2_Later.png")), ImageBytes({8, 8}));
    fixture.section->UpdateUi(false);
    QVERIFY(fixture.List(0).item(1)->icon().isNull());
    // A profile is read again each time.
    Files::Write(fixture.data.filePath(QStringLiteral("PhysicsSoftPreset/0/1_First.ini")),
                 "[Wind_Setting]\nWind_Frequency=3\n");
    fixture.host.Journal().Clear();
    DoubleClick(fixture.List(0), fixture.List(0).item(0));
    QVERIFY(fixture.Take().constFirst().startsWith(QLatin1String("SetSoftClothWind")));
}

SOFTCLOTH_TEST(TestPresetApply)
#include "tst_preset_apply.moc"
