#include "host/services/UserDialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QInputDialog>
#include <QPointer>

#include <memory>

namespace Host {

namespace {

/// Runs \p dialog, which may be destroyed meanwhile. \return its result, or \p whenGone
template <class Dialog, class Result, class Read>
Result Run(std::unique_ptr<Dialog> dialog, const Result& whenGone, Read read)
{
    // On the heap and watched: a parent that is destroyed frees it.
    const QPointer<Dialog> guard(dialog.release());
    const int code = guard->exec();
    if (!guard) {
        return whenGone;
    }
    const Result result = read(*guard, code);
    delete guard.data();
    return result;
}

/// The window that the user is in, if it belongs to \p parent: there the focus is to be again afterwards.
QWidget* WindowInUse(QWidget* parent)
{
    QWidget* const active = QApplication::activeWindow();
    for (const QWidget* window = active; window && parent; window = window->parentWidget()) {
        if (window == parent) {
            return active;
        }
    }
    return parent;
}

/// Makes \p box wide enough for its title. Qt does not count the application's name, which the system writes after it.
void FitTitle(QMessageBox& box)
{
    auto* const grid = qobject_cast<QGridLayout*>(box.layout());
    if (!grid) {
        return;
    }
    QFont font = QApplication::font("QMdiSubWindowTitleBar");
    font.setBold(true);
    constexpr int roomForButtons = 120;
    const QString title = box.windowTitle() + QStringLiteral(" - ") + QGuiApplication::applicationDisplayName();
    grid->addItem(new QSpacerItem(QFontMetrics(font).horizontalAdvance(title) + roomForButtons, 0), grid->rowCount(), 0,
                  1, grid->columnCount());
}

} // namespace

QMessageBox::StandardButton UserQuestion::EscapeAnswer() const
{
    return buttons.testFlag(QMessageBox::Cancel) ? QMessageBox::Cancel : QMessageBox::Ok;
}

QMessageBox::StandardButton AskUser(QWidget* parent, const UserQuestion& question)
{
    auto box = std::make_unique<QMessageBox>(question.icon, question.title, question.text, question.buttons,
                                             WindowInUse(parent));
    FitTitle(*box);
    if (question.defaultButton != QMessageBox::NoButton) {
        box->setDefaultButton(question.defaultButton);
    }
    return Run(std::move(box), question.EscapeAnswer(),
               [](const QMessageBox&, int code) { return QMessageBox::StandardButton(code); });
}

QString AskForFile(QWidget* parent, const FileQuestion& question)
{
    auto dialog = std::make_unique<QFileDialog>(WindowInUse(parent), question.title, QString(), question.filter);
    dialog->setAcceptMode(question.isForSaving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog->setFileMode(question.isForSaving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog->setDefaultSuffix(question.defaultSuffix);
    dialog->selectFile(question.start);
    return Run(std::move(dialog), QString(), [](const QFileDialog& closed, int code) {
        return code == QDialog::Accepted ? closed.selectedFiles().value(0) : QString();
    });
}

std::optional<QString> AskForText(QWidget* parent, const TextQuestion& question)
{
    auto dialog = std::make_unique<QInputDialog>(WindowInUse(parent));
    dialog->setWindowTitle(question.title);
    dialog->setLabelText(question.label);
    dialog->setTextValue(question.text);
    return Run(std::move(dialog), std::optional<QString>(), [](const QInputDialog& closed, int code) {
        return code == QDialog::Accepted ? std::make_optional(closed.textValue()) : std::nullopt;
    });
}

} // namespace Host
