#include "host/services/HostApplication.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "tests/support/TestCase.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

#include <memory>

/// The host's message boxes and file dialogs, and that their parents may end while they are open.
class TestUserDialogs : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void boxGivesTheButton_data();
    void boxGivesTheButton();
    void boxShowsTheReasonBelowItsText();
    void boxIsAsWideAsItsTitle();
    void boxEndsWithItsParent_data();
    void boxEndsWithItsParent();
    void fileDialogEndsWithTheMainWindow_data();
    void fileDialogEndsWithTheMainWindow();
    void fileDialogGivesTheFile();
    void dialogBelongsToTheWindowInUse();

private:
    /// Runs \p ask and, once a dialog is open, \p use with it.
    template <class Ask, class Use>
    void WithDialog(Ask ask, Use use);
};

template <class Ask, class Use>
void TestUserDialogs::WithDialog(Ask ask, Use use)
{
    bool wasOpen = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, this, [&] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (dialog && dialog->isVisible()) {
            poll.stop();
            wasOpen = true;
            use(dialog);
        }
    });
    poll.start(5);
    ask();
    QVERIFY(wasOpen);
}

void TestUserDialogs::boxGivesTheButton_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("answer");
    QTest::newRow("Return is the default button") << int(Qt::Key_Return) << int(QMessageBox::Ok);
    QTest::newRow("Escape is Cancel") << int(Qt::Key_Escape) << int(QMessageBox::Cancel);
}

void TestUserDialogs::boxGivesTheButton()
{
    QFETCH(int, key);
    QFETCH(int, answer);
    Host::HostApplication host;
    int given = 0;
    WithDialog(
        [&] {
            given = host.GetUiService()->ShowMessageBox(QStringLiteral("Text"), QStringLiteral("Title"), nullptr, 2,
                                                        QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
        },
        [&](QWidget* dialog) {
            auto* const box = qobject_cast<QMessageBox*>(dialog);
            QVERIFY(box);
            QCOMPARE(box->text(), QStringLiteral("Text"));
            QCOMPARE(int(box->icon()), 2);
            QTest::keyClick(box, Qt::Key(key));
        });
    QCOMPARE(given, answer);
}

void TestUserDialogs::boxShowsTheReasonBelowItsText()
{
    Host::HostApplication host;
    const auto shownText = [&](const QString& text) {
        QString shown;
        WithDialog([&] { host.GetUiService()->ShowMessageBox(text, {}, nullptr, 2, QMessageBox::Ok, 0); },
                   [&](QWidget* dialog) {
                       shown = qobject_cast<QMessageBox*>(dialog)->text();
                       QTest::keyClick(dialog, Qt::Key_Return);
                   });
        return shown;
    };
    host.ExplainNextBox(QStringLiteral("The disk is full."));
    QCOMPARE(shownText(QStringLiteral("It failed.")), QStringLiteral("It failed.\n\nThe disk is full."));
    QCOMPARE(shownText(QStringLiteral("It failed.")), QStringLiteral("It failed."));
    host.ExplainNextBox(QStringLiteral("The disk is full."));
    QCOMPARE(shownText(QString()), QStringLiteral("The disk is full."));
}

void TestUserDialogs::boxIsAsWideAsItsTitle()
{
    Host::HostApplication host;
    const QString title = QStringLiteral("A title much longer than the text");
    QGuiApplication::setApplicationDisplayName(QStringLiteral("The name of the application"));
    int width = 0;
    int titleWidth = 0;
    WithDialog(
        [&] { host.GetUiService()->ShowMessageBox(QStringLiteral("Text"), title, nullptr, 1, QMessageBox::Ok, 0); },
        [&](QWidget* box) {
            width = box->width();
            // The system writes the application's name after the title.
            titleWidth = box->fontMetrics().horizontalAdvance(title + QStringLiteral(" - The name of the application"));
            QTest::keyClick(box, Qt::Key_Return);
        });
    QGuiApplication::setApplicationDisplayName({});
    QVERIFY2(width > titleWidth + 40, qPrintable(QStringLiteral("%1 for %2").arg(width).arg(titleWidth)));
}

void TestUserDialogs::boxEndsWithItsParent_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<int>("answer");
    constexpr int ok = QMessageBox::Ok;
    constexpr int cancel = QMessageBox::Cancel;
    for (const int icon : {0, 1, 2, 3}) {
        QTest::addRow("icon %d, Ok", icon) << icon << ok << ok;
        QTest::addRow("icon %d, Ok and Cancel", icon) << icon << (ok | cancel) << cancel;
    }
}

void TestUserDialogs::boxEndsWithItsParent()
{
    QFETCH(int, icon);
    QFETCH(int, buttons);
    QFETCH(int, answer);
    Host::HostApplication host;
    // Once the main window itself, once something in it, as the plug-in's dialog is.
    for (const bool isInside : {false, true}) {
        auto window = std::make_unique<QWidget>();
        QWidget* const parent = isInside ? new QWidget(window.get()) : window.get();
        int given = 0;
        WithDialog(
            [&] { given = host.GetUiService()->ShowMessageBox(QStringLiteral("Text"), {}, parent, icon, buttons, 0); },
            [&](QWidget*) { window.reset(); });
        QCOMPARE(given, answer);
    }
    QCOMPARE(host.Journal().Entries().last().result, QString::number(answer));
}

void TestUserDialogs::fileDialogEndsWithTheMainWindow_data()
{
    QTest::addColumn<bool>("isForSaving");
    QTest::newRow("open") << false;
    QTest::newRow("save") << true;
}

void TestUserDialogs::fileDialogEndsWithTheMainWindow()
{
    QFETCH(bool, isForSaving);
    Host::HostApplication host;
    auto window = std::make_unique<QWidget>();
    host.SetMainWindow(window.get());
    QString path = QStringLiteral("former");
    WithDialog(
        [&] {
            MV::CSceneService& scene = *host.GetSceneService();
            QCOMPARE(isForSaving ? scene.GetSaveImageFileName(path, 4, 71, 4, {})
                                 : scene.GetOpenImageFileName(path, 4, 71, 4),
                     BF::Results::Success);
        },
        [&](QWidget*) { window.reset(); });
    QVERIFY(path.isEmpty());
}

void TestUserDialogs::fileDialogGivesTheFile()
{
    Host::HostApplication host;
    QString path;
    WithDialog([&] { host.GetSceneService()->GetOpenImageFileName(path, 4, 71, 4); },
               [&](QWidget* dialog) {
                   auto* const files = qobject_cast<QFileDialog*>(dialog);
                   QVERIFY(files);
                   QVERIFY(files->nameFilters().constFirst().contains(QStringLiteral("*.tga")));
                   files->selectFile(QCoreApplication::applicationFilePath());
                   static_cast<QDialog*>(files)->done(QDialog::Accepted);
               });
    QCOMPARE(path, QCoreApplication::applicationFilePath());
}

void TestUserDialogs::dialogBelongsToTheWindowInUse()
{
    Host::HostApplication host;
    QWidget window;
    QDialog inside(&window);
    QWidget foreign;
    host.SetMainWindow(&window);
    // The plug-in's dialog gets the focus back afterwards, and not the window behind it.
    for (QWidget* active : {static_cast<QWidget*>(&inside), &window, &foreign}) {
        active->show();
        active->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(active));
        const QWidget* parent = nullptr;
        QString path;
        WithDialog([&] { host.GetSceneService()->GetOpenImageFileName(path, 4, 71, 4); },
                   [&](QWidget* dialog) {
                       parent = dialog->parentWidget();
                       dialog->close();
                   });
        QCOMPARE(parent, static_cast<const QWidget*>(active == &foreign ? &window : active));
    }
}

SOFTCLOTH_TEST(TestUserDialogs)
#include "tst_user_dialogs.moc"
