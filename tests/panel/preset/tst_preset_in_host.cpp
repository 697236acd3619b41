#include "tests/support/Children.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/PropertyRows.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QAbstractButton>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QGroupBox>
#include <QImage>
#include <QListWidget>
#include <QMessageBox>
#include <QRegularExpression>
#include <QSettings>
#include <QTabWidget>

#include <cmath>

using MV::ECompatibleApp;

/// The preset section of the built library, with the presets that the host ships.
class TestPresetInHost : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyShippedPresetIsInItsTab_data();
    void everyShippedPresetIsInItsTab();
    void presetNamesEveryProperty_data();
    void presetNamesEveryProperty();
    void everyItemOfTheGalleryHasAPreset();
    void windPushesAsHardAsTheGuideSays_data();
    void windPushesAsHardAsTheGuideSays();
    void thumbnailsAreSeenOnTheDarkGround_data();
    void thumbnailsAreSeenOnTheDarkGround();
    void presetChangesItsGroupsAndIsUndone_data();
    void presetChangesItsGroupsAndIsUndone();
    void singleMaterialBecomesSoftCloth_data();
    void singleMaterialBecomesSoftCloth();
    void severalMaterialsAreAskedAbout_data();
    void severalMaterialsAreAskedAbout();
    void severalMaterialsOfTheHostAreAskedAbout_data();
    void severalMaterialsOfTheHostAreAskedAbout();
    void presetOfAnotherMaterialLeavesTheFirstAlone();

private:
    static void AddPresetRows();
    static void AddAnswerRows();
};

namespace {

constexpr const char* activeBox = "qtActivePhysicsCheckBox";

struct PresetPanel : PanelFixture
{
    explicit PresetPanel(ECompatibleApp app = ECompatibleApp::FamilyA)
        : PanelFixture(app, QStringLiteral(SOFTCLOTH_DATA_FOLDER))
    {
    }

    /// Adds an object that is no soft cloth and selects it.
    const Host::Object& AddPlain(Host::Object model)
    {
        BF::CHandle* handle = App().AddModel(std::move(model));
        App().Journal().Clear();
        return *CurrentScene().FindObject(handle);
    }
    QListWidget& List(int page)
    {
        return *Child<QTabWidget>(&Window(), "qtPresetTabWidget")->widget(page)->findChild<QListWidget*>();
    }
    void DoubleClick(int page, int row)
    {
        Child<QTabWidget>(&Window(), "qtPresetTabWidget")->setCurrentIndex(page);
        QListWidget& list = List(page);
        list.scrollToItem(list.item(row));
        const QPoint at = list.visualItemRect(list.item(row)).center();
        QVERIFY(list.viewport()->rect().contains(at));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    }
    void Click(const char* box)
    {
        auto* button = Child<QAbstractButton>(&Window(), box);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(8, button->height() / 2));
    }
    bool IsBodyEnabled(const char* form) { return Child<QGroupBox>(Section(form), "qtSectionGroupBox")->isEnabled(); }
    /// The operations that change something or talk to the user.
    QStringList Actions()
    {
        return TakeOperations(App().Journal())
            .filter(QRegularExpression(QStringLiteral("^(Set|Apply|Convert|Cancel|Show|Undo)")));
    }
};

/// Values that no shipped preset has.
Host::ClothState OddCloth()
{
    Host::ClothState cloth;
    cloth.active = true;
    cloth.property.mass = 91;
    cloth.collision.rigidMargin = 9.25F;
    cloth.wind.externalAcceleration = {81, 82, 83};
    return cloth;
}

/// The group of a profile, the operation that writes it, and how its values get from one state into another.
struct Group
{
    const char* name;
    const char* operation;
    void (*copy)(Host::ClothState& to, const Host::ClothState& from);
};

const Group groups[] = {
    {"Preset", "SetUseGlobalGravity",
     [](Host::ClothState& to, const Host::ClothState& from) { to.useGlobalGravity = from.useGlobalGravity; }},
    {"Property", "SetSoftClothProperty",
     [](Host::ClothState& to, const Host::ClothState& from) { to.property = from.property; }},
    {"Collision", "SetSoftClothCollision",
     [](Host::ClothState& to, const Host::ClothState& from) { to.collision = from.collision; }},
    {"Wind_Setting", "SetSoftClothWind",
     [](Host::ClothState& to, const Host::ClothState& from) { to.wind = from.wind; }},
};

} // namespace

void TestPresetInHost::AddPresetRows()
{
    QTest::addColumn<QString>("profile");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("row");
    const QString root = QStringLiteral(SOFTCLOTH_DATA_FOLDER "/PhysicsSoftPreset/");
    QDirIterator files(root, {QStringLiteral("*.ini")}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        const QString relative = path.mid(root.size());
        QTest::newRow(qPrintable(relative)) << path << relative.section(QLatin1Char('/'), 0, 0).toInt()
                                            << files.fileName().section(QLatin1Char('_'), 0, 0).toInt() - 1;
    }
}

void TestPresetInHost::AddAnswerRows()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::addColumn<bool>("confirm");
    QTest::newRow("confirmed, family A") << ECompatibleApp::FamilyA << true;
    QTest::newRow("refused, family A") << ECompatibleApp::FamilyA << false;
    QTest::newRow("confirmed, family B") << ECompatibleApp::FamilyB << true;
    QTest::newRow("refused, family B") << ECompatibleApp::FamilyB << false;
}

void TestPresetInHost::everyShippedPresetIsInItsTab_data()
{
    AddPresetRows();
}

void TestPresetInHost::everyShippedPresetIsInItsTab()
{
    QFETCH(const QString, profile);
    QFETCH(const int, page);
    QFETCH(const int, row);
    PresetPanel panel;
    const QListWidgetItem* item = panel.List(page).item(row);
    QVERIFY(item);
    QVERIFY(!item->icon().isNull());
    QCOMPARE(QFileInfo(item->data(Qt::UserRole).toString()).canonicalFilePath(),
             QFileInfo(profile).canonicalFilePath());
    // The form's name of the item is the one of the file.
    QCOMPARE(item->text(), QFileInfo(profile).completeBaseName().section(QLatin1Char('_'), 1));
}

void TestPresetInHost::presetNamesEveryProperty_data()
{
    AddPresetRows();
}

/// A key that is missing from a group would count as 0.
void TestPresetInHost::presetNamesEveryProperty()
{
    QFETCH(const QString, profile);
    QSettings file(profile, QSettings::IniFormat);
    file.beginGroup(QStringLiteral("Property"));
    QStringList keys;
    for (const PropertyRow& row : PropertyRows::All()) {
        keys.append(QLatin1String(row.key));
    }
    keys.sort();
    QStringList named = file.childKeys();
    named.sort();
    QCOMPARE(named, named.isEmpty() ? QStringList() : keys);
}

void TestPresetInHost::everyItemOfTheGalleryHasAPreset()
{
    PresetPanel panel;
    for (int page = 0; page < 3; ++page) {
        const QListWidget& list = panel.List(page);
        QVERIFY(list.count() > 0);
        for (int row = 0; row < list.count(); ++row) {
            const QListWidgetItem* item = list.item(row);
            QVERIFY2(QFileInfo(item->data(Qt::UserRole).toString()).isFile(), qPrintable(item->text()));
        }
    }
}

void TestPresetInHost::windPushesAsHardAsTheGuideSays_data()
{
    QTest::addColumn<double>("steadily"); // in pulls of gravity
    QTest::addColumn<double>("atMost");
    QTest::newRow("1_Calm") << 0.0 << 0.0;
    QTest::newRow("2_Breeze") << 0.07 << 0.2;
    QTest::newRow("3_Steady") << 0.5 << 0.6;
    QTest::newRow("4_Gale") << 1.5 << 3.0;
    QTest::newRow("5_Gusts") << 0.1 << 3.6;
    QTest::newRow("6_Whirl") << 0.2 << 1.4; // never as much as the gale pushes steadily
}

void TestPresetInHost::windPushesAsHardAsTheGuideSays()
{
    QFETCH(const double, steadily);
    QFETCH(const double, atMost);
    QSettings file(QStringLiteral(SOFTCLOTH_DATA_FOLDER "/PhysicsSoftPreset/2/%1.ini")
                       .arg(QString::fromLatin1(QTest::currentDataTag())),
                   QSettings::IniFormat);
    file.beginGroup(QStringLiteral("Wind_Setting"));
    const auto numbers = [&file](const char* key) { return file.value(QLatin1String(key)).toStringList(); };
    const double factor = numbers("Wind_Random_Factor").value(1).toDouble();
    double steadySquare = 0.0;
    double mostSquare = 0.0;
    for (int axis = 0; axis < 3; ++axis) {
        const double external = numbers("External_Acceleration").value(axis).toDouble();
        const double most = qAbs(external) + numbers("Random_Acceleration").value(axis).toDouble() * factor;
        steadySquare += external * external;
        mostSquare += most * most;
    }
    const double gravity = 981.0;
    const double steady = std::sqrt(steadySquare) / gravity;
    const double most = std::sqrt(mostSquare) / gravity;
    QVERIFY2(qAbs(steady - steadily) < 0.1, qPrintable(QString::number(steady)));
    QVERIFY2(qAbs(most - atMost) < 0.1, qPrintable(QString::number(most)));
}

void TestPresetInHost::thumbnailsAreSeenOnTheDarkGround_data()
{
    AddPresetRows();
}

void TestPresetInHost::thumbnailsAreSeenOnTheDarkGround()
{
    QFETCH(const QString, profile);
    QString path = profile;
    const QImage thumbnail = QImage(path.replace(QLatin1String(".ini"), QLatin1String(".png")));
    QVERIFY(!thumbnail.isNull());
    // Of the swatch itself: what is around it may be transparent.
    double sum = 0;
    double weight = 0;
    for (int y = 0; y < thumbnail.height(); ++y) {
        for (int x = 0; x < thumbnail.width(); ++x) {
            const QColor color = thumbnail.pixelColor(x, y);
            sum += color.alphaF() * qGray(color.rgb());
            weight += color.alphaF();
        }
    }
    const double mean = sum / weight;
    constexpr double ground = 40;
    QVERIFY2(mean >= 1.3 * ground, qPrintable(QString::number(mean)));
}

void TestPresetInHost::presetChangesItsGroupsAndIsUndone_data()
{
    AddPresetRows();
}

void TestPresetInHost::presetChangesItsGroupsAndIsUndone()
{
    QFETCH(const QString, profile);
    QFETCH(const int, page);
    QFETCH(const int, row);
    PresetPanel panel;
    const Host::Object& flag = panel.AddCloth(SampleModels::Flag());
    panel.Cloth(flag) = OddCloth();
    const int steps = panel.CurrentScene().UndoStack().index();
    panel.DoubleClick(page, row);

    const QStringList present = QSettings(profile, QSettings::IniFormat).childGroups();
    QStringList expected;
    Host::ClothState changed = OddCloth();
    for (const Group& group : groups) {
        if (present.contains(QLatin1String(group.name))) {
            expected.append(QLatin1String(group.operation));
            Host::ClothState alone = OddCloth();
            group.copy(alone, panel.Cloth(flag));
            QVERIFY2(!(alone == OddCloth()), group.name);
            group.copy(changed, panel.Cloth(flag));
        }
    }
    QVERIFY(panel.Cloth(flag) == changed);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(panel.Actions(), expected);

    QCOMPARE(panel.CurrentScene().UndoStack().index(), steps + expected.size());
    for (int i = 0; i < expected.size(); ++i) {
        panel.App().Undo();
    }
    QVERIFY(panel.Cloth(flag) == OddCloth());
    // Applied once more it gives the same.
    panel.DoubleClick(page, row);
    const Host::ClothState applied = panel.Cloth(flag);
    panel.DoubleClick(page, row);
    QVERIFY(panel.Cloth(flag) == applied);
}

void TestPresetInHost::singleMaterialBecomesSoftCloth_data()
{
    QTest::addColumn<ECompatibleApp>("app");
    QTest::newRow("family A") << ECompatibleApp::FamilyA;
    QTest::newRow("family B") << ECompatibleApp::FamilyB;
}

void TestPresetInHost::singleMaterialBecomesSoftCloth()
{
    QFETCH(const ECompatibleApp, app);
    PresetPanel panel(app);
    const Host::Object& flag = panel.AddPlain(SampleModels::Flag());
    QVERIFY(panel.Section("SoftClothPreset")->isVisible());
    QVERIFY(!panel.IsBodyEnabled("SoftClothProperty"));
    const int steps = panel.CurrentScene().UndoStack().index();
    panel.Click(activeBox);
    // The first refresh with soft cloth turns the gravity box on, which is written once.
    QCOMPARE(panel.Actions(), (QStringList{QStringLiteral("ApplySingleMaterialSoftCloth"),
                                           QStringLiteral("SetPhysicsActive"), QStringLiteral("SetUseGlobalGravity")}));
    QVERIFY(flag.state.softCloth);
    QVERIFY(panel.Cloth(flag).active);
    for (const char* form : {"SoftClothProperty", "SoftClothCollision", "SoftClothWindSetting"}) {
        QVERIFY2(panel.IsBodyEnabled(form), form);
    }
    QVERIFY(Child<QWidget>(&panel.Window(), "qtSoftPresetGroupBox")->isEnabled());

    while (panel.CurrentScene().UndoStack().index() > steps) {
        panel.App().Undo();
    }
    QVERIFY(!flag.state.softCloth);
    QVERIFY(!panel.Cloth(flag).active);
    QVERIFY(!Child<QAbstractButton>(&panel.Window(), activeBox)->isChecked());
    QVERIFY(!panel.IsBodyEnabled("SoftClothProperty"));
}

void TestPresetInHost::severalMaterialsAreAskedAbout_data()
{
    AddAnswerRows();
}

void TestPresetInHost::severalMaterialsAreAskedAbout()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, confirm);
    PresetPanel panel(app);
    const Host::Object& hero = panel.AddPlain(SampleModels::Hero());
    panel.App().Answers().AddButton(confirm ? QMessageBox::Ok : QMessageBox::Cancel);
    panel.Click(activeBox);
    QStringList expected{QStringLiteral("ShowMessageBox")};
    if (confirm) {
        expected.append(QStringLiteral("SetDialogMode"));
    }
    QCOMPARE(panel.Actions(), expected);
    QVERIFY(panel.App().Answers().IsEmpty());
    QVERIFY(!hero.state.softCloth);
    QVERIFY(!Child<QAbstractButton>(&panel.Window(), activeBox)->isChecked());
    QCOMPARE(Child<QWidget>(&panel.Window(), "SoftClothMaterialDlg")->isVisible(), confirm);
    QVERIFY(!panel.IsBodyEnabled("SoftClothProperty"));
    QVERIFY(!panel.IsBodyEnabled("SoftClothCollision"));
    // The box can be tried again.
    QVERIFY(Child<QWidget>(&panel.Window(), activeBox)->isEnabled());
}

void TestPresetInHost::severalMaterialsOfTheHostAreAskedAbout_data()
{
    AddAnswerRows();
}

void TestPresetInHost::severalMaterialsOfTheHostAreAskedAbout()
{
    QFETCH(const ECompatibleApp, app);
    QFETCH(const bool, confirm);
    PresetPanel panel(app);
    const Host::Object& hero = panel.AddPlain(SampleModels::Hero());
    panel.App().Answers().AddButton(confirm ? QMessageBox::Ok : QMessageBox::Cancel);
    panel.App().ConvertToSoftCloth(hero.handle);
    const QStringList actions = panel.Actions();
    QVERIFY(actions.contains(QStringLiteral("ShowMessageBox")));
    QCOMPARE(actions.contains(QStringLiteral("SetDialogMode")), confirm);
    QCOMPARE(actions.contains(QStringLiteral("CancelMultiMaterialSoftCloth")), !confirm);
    QCOMPARE(hero.state.softCloth, confirm);
    QCOMPARE(Child<QWidget>(&panel.Window(), "SoftClothMaterialDlg")->isVisible(), confirm);
}

void TestPresetInHost::presetOfAnotherMaterialLeavesTheFirstAlone()
{
    PresetPanel panel;
    const Host::Object& hero = panel.AddCloth(SampleModels::Hero());
    const Host::ClothState before = panel.Cloth(hero);
    panel.App().SetDialogMode(MV::EDialogMode::WeightMap);
    Child<QListWidget>(&panel.Window(), "qtMaterialListWidget")->setCurrentRow(1);
    panel.DoubleClick(0, 2);
    QVERIFY(panel.Cloth(hero, 0) == before);
    QVERIFY(!(panel.Cloth(hero, 1) == before));
    QVERIFY(panel.Cloth(hero, 2) == before);
}

SOFTCLOTH_TEST(TestPresetInHost)
#include "tst_preset_in_host.moc"
