#include "host/workbench/LanguageSwitch.h"
#include "host/workbench/Languages.h"
#include "host/workbench/MainWindow.h"
#include "tests/support/Children.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"
#include "tests/support/UserDialogs.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QKeySequence>
#include <QListWidget>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QTableWidget>

#include <algorithm>
#include <iterator>
#include <memory>

/// Another language, chosen while the workbench runs: the panel and the workbench speak it, and the work goes on.
class TestLanguageSwitch : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void menuOffersTheLanguages();
    void panelAndWorkbenchSpeakTheChosenLanguage();
    void tableHeadersAreTranslated();
    void messagesAndHotKeysAreTranslated();
    void fileDialogsAreTranslated();
    void mnemonicsOfAMenuDiffer_data();
    void mnemonicsOfAMenuDiffer();
    void workGoesOn();
    void sameMaterialIsEdited();
    void dialogStaysOpen();
    void unknownLanguageKeepsTheWindow();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    Host::MainWindow& Window() { return m_switch->Window(); }
    /// Chooses a language in the menu, as the user does.
    void ChooseInMenu(const char* action);
    /// A character as soft cloth, selected.
    void AddCloth();

    std::unique_ptr<Host::Languages> m_languages;
    std::unique_ptr<Host::LanguageSwitch> m_switch;
};

namespace {

const QStringList folders{QStringLiteral(SOFTCLOTH_PANEL_LANGUAGES),
                          QStringLiteral(SOFTCLOTH_DATA_FOLDER "/translations")};

} // namespace

void TestLanguageSwitch::SetUp()
{
    m_languages = std::make_unique<Host::Languages>(folders);
    m_switch = std::make_unique<Host::LanguageSwitch>(*m_languages, std::make_unique<Host::MainWindow>());
    Window().SetUnattended();
    Window().show();
    QVERIFY(Window().StartPlugin(QStringLiteral(SOFTCLOTH_PLUGIN_FILE), MV::ECompatibleApp::FamilyA));
}

void TestLanguageSwitch::TearDown()
{
    m_switch.reset();
    m_languages.reset();
}

void TestLanguageSwitch::ChooseInMenu(const char* action)
{
    const QPointer<Host::MainWindow> before(&Window());
    Child<QAction>(before, action)->trigger();
    QTRY_VERIFY(before.isNull());
}

void TestLanguageSwitch::AddCloth()
{
    BF::CHandle* hero = Window().Application().AddModel(SampleModels::Hero());
    Window().Application().SetSoftClothActive(hero, true);
}

void TestLanguageSwitch::menuOffersTheLanguages()
{
    const auto* system = Child<QAction>(&Window(), "language_");
    QVERIFY(system->isChecked());
    QCOMPARE(Child<QAction>(&Window(), "language_en")->text(), QStringLiteral("English"));
    QCOMPARE(Child<QAction>(&Window(), "language_de")->text(), QStringLiteral("Deutsch"));
    ChooseInMenu("language_de");
    QVERIFY(!Child<QAction>(&Window(), "language_")->isChecked());
    QVERIFY(Child<QAction>(&Window(), "language_de")->isChecked());
}

void TestLanguageSwitch::panelAndWorkbenchSpeakTheChosenLanguage()
{
    ChooseInMenu("language_de");
    AddCloth();
    QCOMPARE(Child<QPushButton>(Child<QWidget>(&Window(), "SoftClothCollision"), "qtExpandPushButton")->text(),
             QStringLiteral("Kollision"));
    QCOMPARE(Child<QAction>(&Window(), "undoAction")->text(), QStringLiteral("&Rückgängig: Weicher Stoff ein"));
    ChooseInMenu("language_en");
    QCOMPARE(Child<QPushButton>(Child<QWidget>(&Window(), "SoftClothCollision"), "qtExpandPushButton")->text(),
             QStringLiteral("Collision"));
    QVERIFY(Child<QAction>(&Window(), "undoAction")->text().startsWith(QStringLiteral("&Undo ")));
}

/// The notes to the translator that belong to them are in an old code page, which no translation file can hold.
void TestLanguageSwitch::tableHeadersAreTranslated()
{
    ChooseInMenu("language_de");
    AddCloth();
    const auto* table = Child<QTableWidget>(&Window(), "qtMaterialTableWidget");
    QCOMPARE(table->horizontalHeaderItem(0)->text(), QStringLiteral(" "));
    QCOMPARE(table->horizontalHeaderItem(2)->text(), QStringLiteral("Materialname"));
}

void TestLanguageSwitch::messagesAndHotKeysAreTranslated()
{
    ChooseInMenu("language_de");
    QString calls = Window().Application().Journal().ToText();
    QCOMPARE(calls.count(QStringLiteral("RegisterSectionHotKeys([\"[Tastenkürzel] Ändern\", "
                                        "\"[Tastenkürzel] Physik\"]")),
             2);
    AddCloth();
    Window().Application().SetDialogMode(MV::EDialogMode::WeightMap);
    Window().Application().Journal().Clear();
    Child<QPushButton>(&Window(), "qtUvRefPushButton")->click();
    calls = Window().Application().Journal().ToText();
    QVERIFY2(calls.contains(QStringLiteral("ShowMessageBox(\"Es gibt keine UV-Textur zur diffusen Textur.\", "
                                           "\"[Physik: weicher Stoff] Movira 6\"")),
             qPrintable(calls));
}

void TestLanguageSwitch::fileDialogsAreTranslated()
{
    ChooseInMenu("language_de");
    AddCloth();
    auto* preset = Child<QWidget>(&Window(), "SoftClothPreset");
    UserDialogs::WithFileDialog([&] { Child<QPushButton>(preset, "qtSaveFilePushButton")->click(); },
                                [](QFileDialog& dialog) {
                                    QCOMPARE(dialog.windowTitle(), QStringLiteral("Eigenes Stoffprofil speichern"));
                                    QCOMPARE(dialog.nameFilters(), QStringList(QStringLiteral("INI-Dateien (*.ini)")));
                                    dialog.reject();
                                });
}

void TestLanguageSwitch::mnemonicsOfAMenuDiffer_data()
{
    QTest::addColumn<QString>("language");
    const QStringList codes = Host::Languages(folders).Codes();
    for (const QString& code : codes) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

void TestLanguageSwitch::mnemonicsOfAMenuDiffer()
{
    QFETCH(const QString, language);
    m_switch->Choose(language);
    QList<QWidget*> menus{Window().menuBar()};
    const auto submenus = Window().findChildren<QMenu*>();
    std::copy(submenus.begin(), submenus.end(), std::back_inserter(menus));
    QVERIFY(menus.size() > 3);
    for (const QWidget* menu : qAsConst(menus)) {
        QStringList keys;
        const QList<QAction*> actions = menu->actions();
        for (const QAction* action : actions) {
            const QString key = QKeySequence::mnemonic(action->text()).toString();
            QVERIFY2(key.isEmpty() || !keys.contains(key), qPrintable(action->text()));
            keys.append(key);
        }
    }
}

void TestLanguageSwitch::workGoesOn()
{
    AddCloth();
    Host::Scene& scene = Window().Application().CurrentScene();
    const QVector<BF::CHandle*> selected = scene.Selection();
    const int steps = scene.UndoStack().count();
    Child<QPushButton>(Child<QWidget>(&Window(), "SoftClothCollision"), "qtExpandPushButton")->click();
    Window().move(40, 60);
    const QSize size = Window().size();
    const QPoint position = Window().pos();

    ChooseInMenu("language_de");
    QCOMPARE(&Window().Application().CurrentScene(), &scene);
    QCOMPARE(scene.Selection(), selected);
    QCOMPARE(scene.UndoStack().count(), steps);
    QVERIFY(Window().isVisible());
    QCOMPARE(Window().size(), size);
    QCOMPARE(Window().pos(), position);
    auto* collision = Child<QWidget>(&Window(), "SoftClothCollision");
    QVERIFY(collision->isVisible());
    QVERIFY(!Child<QWidget>(collision, "qtSectionGroupBox")->isVisible());
    auto* mass = Child<QAbstractSpinBox>(&Window(), "qtMassEXSpinBox");
    QVERIFY(mass->isVisible() && mass->isEnabled());
    QTest::keyClick(mass, Qt::Key_Up);
    QTest::keyClick(mass, Qt::Key_Return);
    QCOMPARE(scene.UndoStack().count(), steps + 1);
    QVERIFY(Window().isWindowModified());
}

void TestLanguageSwitch::sameMaterialIsEdited()
{
    AddCloth();
    auto* list = Child<QListWidget>(&Window(), "qtMaterialListWidget");
    QCOMPARE(list->currentRow(), 0);
    list->setCurrentRow(2);
    const QString name = list->currentItem()->text();
    ChooseInMenu("language_de");
    list = Child<QListWidget>(&Window(), "qtMaterialListWidget");
    QCOMPARE(list->currentRow(), 2);
    QCOMPARE(list->currentItem()->text(), name);
    QCOMPARE(int(Window().Application().CurrentScene().dialogMode), int(MV::EDialogMode::None));
    QVERIFY(!list->isVisible());
}

void TestLanguageSwitch::dialogStaysOpen()
{
    AddCloth();
    Window().Application().SetDialogMode(MV::EDialogMode::WeightMap);
    QVERIFY(Child<QWidget>(&Window(), "SoftClothMaterialDlg")->isVisible());
    ChooseInMenu("language_de");
    const auto* form = Child<QWidget>(&Window(), "SoftClothMaterialDlg");
    QVERIFY(form->isVisible());
    QCOMPARE(form->window()->windowTitle(), QStringLiteral("Gewichtskarte des weichen Stoffs"));
}

void TestLanguageSwitch::unknownLanguageKeepsTheWindow()
{
    const Host::MainWindow* before = &Window();
    m_switch->Choose(QStringLiteral("tlh"));
    QCOMPARE(&Window(), before);
    QCOMPARE(m_languages->Chosen(), QString());
}

SOFTCLOTH_TEST(TestLanguageSwitch)
#include "tst_language_switch.moc"
