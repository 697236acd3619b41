#include <MVPluginQt/PluginDialog.h>

#include "tests/support/TestCase.h"

#include <QApplication>
#include <QHideEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalSpy>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>
#include <utility>

namespace {

/// Records its hooks, and where it was at that moment: showing a dialog moves it over its parent.
class Dialog : public MV::CPluginDialog
{
public:
    using MV::CPluginDialog::CPluginDialog;

    QStringList TakeHooks() { return std::exchange(m_hooks, {}); }
    QPoint PositionBefore() const { return m_positionBefore; }
    QPoint PositionAfter() const { return m_positionAfter; }

protected:
    void BeforeDialogModeChangedToShow() override
    {
        m_hooks.append(QStringLiteral("before show"));
        m_positionBefore = pos();
    }
    void AfterDialogModeChangedToShow() override
    {
        m_hooks.append(QStringLiteral("after show"));
        m_positionAfter = pos();
    }
    void BeforeDialogModeChangedTHide() override { m_hooks.append(QStringLiteral("before hide")); }
    void AfterDialogModeChangedTHide() override { m_hooks.append(QStringLiteral("after hide")); }

private:
    QStringList m_hooks;
    QPoint m_positionBefore;
    QPoint m_positionAfter;
};

} // namespace

/// A dialog with a field of each kind and a default button.
class TestPluginDialog : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hooksRunInOrder();
    void hooksRunAroundTheShowing();
    void everyWayToHideRunsTheHooks_data();
    void everyWayToHideRunsTheHooks();
    void showingTwiceRunsTheHooksOnce();
    void windowSystemEventsRunNoHooks();

    void returnPressesNoButton_data();
    void returnPressesNoButton();
    void returnPressesTheButtonThatHasTheFocus();
    void escapeRejectsTheDialog_data();
    void escapeRejectsTheDialog();
    void dialogHasNoHelpButton();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    template <class Widget>
    Widget* Add(const char* name);
    bool Show();

    std::unique_ptr<QWidget> m_window;
    Dialog* m_dialog = nullptr;
    QPushButton* m_button = nullptr;
};

template <class Widget>
Widget* TestPluginDialog::Add(const char* name)
{
    auto* widget = new Widget(m_dialog);
    widget->setObjectName(QLatin1String(name));
    m_dialog->layout()->addWidget(widget);
    return widget;
}

void TestPluginDialog::SetUp()
{
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(300, 200, 200, 200);
    m_window->show();
    m_dialog = new Dialog(m_window.get());
    new QVBoxLayout(m_dialog);
    Add<QLineEdit>("line edit");
    Add<QSpinBox>("spin box");
    Add<QListWidget>("list")->addItem(QStringLiteral("item"));
    m_button = Add<QPushButton>("button");
    m_button->setDefault(true);
}

void TestPluginDialog::TearDown()
{
    m_window.reset();
}

bool TestPluginDialog::Show()
{
    m_dialog->show();
    m_dialog->activateWindow();
    return QTest::qWaitForWindowActive(m_dialog);
}

void TestPluginDialog::hooksRunInOrder()
{
    m_dialog->show();
    QCOMPARE(m_dialog->TakeHooks(), QStringList({QStringLiteral("before show"), QStringLiteral("after show")}));
    m_dialog->hide();
    QCOMPARE(m_dialog->TakeHooks(), QStringList({QStringLiteral("before hide"), QStringLiteral("after hide")}));
}

void TestPluginDialog::hooksRunAroundTheShowing()
{
    m_dialog->show();
    QVERIFY(!m_window->geometry().contains(m_dialog->PositionBefore()));
    QVERIFY(m_dialog->PositionAfter() != m_dialog->PositionBefore());
}

void TestPluginDialog::everyWayToHideRunsTheHooks_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"hide", "close", "accept", "reject", "Escape"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void TestPluginDialog::everyWayToHideRunsTheHooks()
{
    QFETCH(QString, way);
    QVERIFY(Show());
    m_dialog->TakeHooks();
    if (way == QLatin1String("Escape")) {
        QTest::keyClick(m_dialog, Qt::Key_Escape);
    } else {
        QVERIFY(QMetaObject::invokeMethod(m_dialog, way.toLatin1().constData()));
    }
    QCOMPARE(m_dialog->TakeHooks(), QStringList({QStringLiteral("before hide"), QStringLiteral("after hide")}));
}

void TestPluginDialog::showingTwiceRunsTheHooksOnce()
{
    m_dialog->show();
    m_dialog->show();
    QCOMPARE(m_dialog->TakeHooks().size(), 2);
    m_dialog->hide();
    m_dialog->hide();
    QCOMPARE(m_dialog->TakeHooks().size(), 2);
}

void TestPluginDialog::windowSystemEventsRunNoHooks()
{
    m_dialog->show();
    m_dialog->TakeHooks();
    QHideEvent minimised;
    QSpontaneKeyEvent::setSpontaneous(&minimised);
    qApp->notify(m_dialog, &minimised);
    QShowEvent restored;
    QSpontaneKeyEvent::setSpontaneous(&restored);
    qApp->notify(m_dialog, &restored);
    QVERIFY(m_dialog->TakeHooks().isEmpty());
}

void TestPluginDialog::returnPressesNoButton_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("focus");
    for (const char* focus : {"line edit", "spin box", "list", "nothing"}) {
        QTest::addRow("Return in %s", focus) << Qt::Key_Return << QString::fromLatin1(focus);
        QTest::addRow("Enter in %s", focus) << Qt::Key_Enter << QString::fromLatin1(focus);
    }
}

void TestPluginDialog::returnPressesNoButton()
{
    QFETCH(Qt::Key, key);
    QFETCH(QString, focus);
    QVERIFY(Show());
    QWidget* target = m_dialog->findChild<QWidget*>(focus);
    if (target) {
        target->setFocus();
    } else {
        target = m_dialog;
    }
    QSignalSpy clicked(m_button, &QPushButton::clicked);
    QTest::keyClick(target, key);
    QCOMPARE(clicked.size(), 0);
    QVERIFY(m_dialog->isVisible());
}

void TestPluginDialog::returnPressesTheButtonThatHasTheFocus()
{
    QVERIFY(Show());
    m_button->setFocus();
    QSignalSpy clicked(m_button, &QPushButton::clicked);
    QTest::keyClick(m_button, Qt::Key_Return);
    QCOMPARE(clicked.size(), 1);
}

void TestPluginDialog::escapeRejectsTheDialog_data()
{
    QTest::addColumn<QString>("focus");
    for (const char* focus : {"line edit", "spin box", "list", "button"}) {
        QTest::newRow(focus) << QString::fromLatin1(focus);
    }
}

void TestPluginDialog::escapeRejectsTheDialog()
{
    QFETCH(QString, focus);
    QVERIFY(Show());
    auto* target = m_dialog->findChild<QWidget*>(focus);
    target->setFocus();
    QSignalSpy rejected(m_dialog, &QDialog::rejected);
    QTest::keyClick(target, Qt::Key_Escape);
    QCOMPARE(rejected.size(), 1);
    QVERIFY(!m_dialog->isVisible());
}

void TestPluginDialog::dialogHasNoHelpButton()
{
    QVERIFY(!m_dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
    QVERIFY(m_dialog->isWindow());
}

SOFTCLOTH_TEST(TestPluginDialog)

#include "tst_plugin_dialog.moc"
