#include "tests/support/UserDialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace UserDialogs {

namespace {

constexpr int pollInterval = 5;
constexpr int patience = 10000;

/// Looks again and again, in whatever event loop runs, until \p deal has found what it waits for. A dialog needs some
/// turns of the loop before it takes input, and one that opens inside another runs a loop of its own.
class Watch : public QTimer
{
public:
    explicit Watch(const std::function<bool()>& deal)
    {
        callOnTimeout([this, deal] {
            // Stopped while it deals: that can open the next loop, where this watch has nothing to look for.
            stop();
            if (!deal()) {
                start(pollInterval);
            }
        });
        start(pollInterval);
    }
};

/// Fails the test and closes the modal windows when they have stayed open for too long: nobody would close them.
class Watchdog : public QTimer
{
public:
    Watchdog()
    {
        callOnTimeout([] {
            QTest::qFail("nobody dealt with a modal window", __FILE__, __LINE__);
            CloseModalWindows();
        });
        start(patience);
    }

private:
    static void CloseModalWindows()
    {
        // Each leaves its own event loop when control comes back to it.
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget* window : windows) {
            if (window->isModal() && window->isVisible()) {
                if (auto* dialog = qobject_cast<QDialog*>(window)) {
                    dialog->reject();
                } else {
                    window->hide();
                }
            }
        }
    }
};

/// Clicks Yes in the question whether to replace a file, and waits for it to come.
bool AnswerYes()
{
    const auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QAbstractButton* yes = question ? question->button(QMessageBox::Yes) : nullptr;
    if (!yes || !yes->isVisible()) {
        return false;
    }
    QTest::mouseClick(yes, Qt::LeftButton);
    return true;
}

} // namespace

void WithFileDialog(const std::function<void()>& trigger, const std::function<void(QFileDialog&)>& use)
{
    bool came = false;
    const Watchdog watchdog;
    const Watch watch([&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog) {
            came = true;
            use(*dialog);
        }
        return came;
    });
    trigger();
    QVERIFY2(came, "no file dialog came");
}

void ChooseFile(const std::function<void()>& trigger, const QString& path, const std::function<void()>& accepted)
{
    WithFileDialog(trigger, [&](QFileDialog& dialog) {
        if (path.isEmpty()) {
            QTest::keyClick(&dialog, Qt::Key_Escape);
            return;
        }
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        name->clear();
        QTest::keyClicks(name, path);
        const auto* buttons = dialog.findChild<QDialogButtonBox*>();
        const auto button =
            dialog.acceptMode() == QFileDialog::AcceptSave ? QDialogButtonBox::Save : QDialogButtonBox::Open;
        // Over an existing file the dialog asks whether to replace it.
        const Watch question(AnswerYes);
        QTest::mouseClick(buttons->button(button), Qt::LeftButton);
        if (accepted) {
            accepted();
        }
    });
}

bool OpensDialog(const std::function<void()>& trigger)
{
    bool came = false;
    const Watchdog watchdog;
    const Watch watch([&] {
        if (auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            came = true;
            modal->reject();
        }
        return came;
    });
    trigger();
    return came;
}

} // namespace UserDialogs
