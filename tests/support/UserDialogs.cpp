#include "tests/support/UserDialogs.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

namespace UserDialogs {

void WithFileDialog(const std::function<void()>& trigger, const std::function<void(QFileDialog&)>& use)
{
    bool came = false;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog) {
            came = true;
            use(*dialog);
        }
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
        QTimer::singleShot(0, qApp, [&dialog] {
            QWidget* question = QApplication::activeModalWidget();
            if (question && question != &dialog) {
                QTest::keyClick(question, Qt::Key_Y, Qt::AltModifier);
            }
        });
        QTest::mouseClick(buttons->button(button), Qt::LeftButton);
        if (accepted) {
            accepted();
        }
    });
}

bool OpensDialog(const std::function<void()>& trigger)
{
    bool came = false;
    QTimer::singleShot(0, qApp, [&] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            came = true;
            modal->close();
        }
    });
    trigger();
    QCoreApplication::processEvents();
    return came;
}

} // namespace UserDialogs
