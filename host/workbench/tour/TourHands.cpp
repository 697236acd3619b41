#include "host/workbench/tour/TourHands.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QTimer>

#include <algorithm>

namespace Host {

namespace {

void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButton held)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

const QString boxOperation = QStringLiteral("ShowMessageBox");

/// A dialog goes by the name of the form in it.
QString NameOf(const QWidget& window)
{
    const auto* form = window.findChild<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    return window.objectName().isEmpty() && form ? form->objectName() : window.objectName();
}

} // namespace

TourHands::TourHands(MainWindow& window, const QString& folder)
    : m_window(window)
    , m_folder(QFileInfo(folder).absoluteFilePath())
{
    QObject::connect(&App(), &HostApplication::ProblemTold, &window, [this] { CountProblem(); });
}

void TourHands::BeginStep(const char* name)
{
    m_stepName = QLatin1String(name);
    ++m_stepNumber;
    m_journalSize = int(App().Journal().Entries().size());
    m_problems = 0;
    m_expectedMessages = 0;
}

/// What is told while a message box is up stands in that box.
void TourHands::CountProblem()
{
    const QVector<JournalEntry>& entries = App().Journal().Entries();
    const bool isInBox =
        !entries.isEmpty() && entries.constLast().operation == boxOperation && entries.constLast().result.isEmpty();
    m_problems += isInBox ? 0 : 1;
}

QString TourHands::CheckMessages() const
{
    const QVector<JournalEntry> entries = App().Journal().Entries().mid(m_journalSize);
    const auto boxes = std::count_if(entries.begin(), entries.end(),
                                     [](const JournalEntry& entry) { return entry.operation == boxOperation; });
    const int messages = int(boxes) + m_problems;
    return messages == m_expectedMessages
               ? QString()
               : QStringLiteral("%1 messages in place of %2").arg(messages).arg(m_expectedMessages);
}

bool TourHands::TakePictures()
{
    Settle();
    const QString stem =
        FileInFolder(QStringLiteral("%1-%2").arg(m_stepNumber, 2, 10, QLatin1Char('0')).arg(m_stepName));
    bool saved = m_window.grab().save(stem + QLatin1String(".png")) &&
                 Find<QWidget>("modifyDock")->grab().save(stem + QLatin1String("-panel.png"));
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window != &m_window && window->isVisible()) {
            saved = window->grab().save(QStringLiteral("%1-%2.png").arg(stem, NameOf(*window))) && saved;
        }
    }
    return saved;
}

void TourHands::Settle()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 50) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    }
}

QString TourHands::Click(const char* button, const char* form) const
{
    auto* found = Find<QAbstractButton>(button, form);
    if (!found || !found->isVisible()) {
        return QStringLiteral("%1 cannot be seen").arg(QLatin1String(button));
    }
    if (!found->isEnabled()) {
        return QStringLiteral("%1 is disabled").arg(QLatin1String(button));
    }
    ScrollTo(*found);
    found->click();
    return {};
}

void TourHands::ClickRow(QListWidget& list, int row, bool twice)
{
    QListWidgetItem* item = list.item(row);
    ScrollTo(list);
    list.scrollToItem(item);
    const QPoint at = list.visualItemRect(item).center();
    SendMouse(*list.viewport(), QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    SendMouse(*list.viewport(), QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    if (twice) {
        SendMouse(*list.viewport(), QEvent::MouseButtonDblClick, at, Qt::LeftButton, Qt::LeftButton);
        SendMouse(*list.viewport(), QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    }
}

void TourHands::Type(QAbstractSpinBox& box, const QString& text)
{
    ScrollTo(box);
    box.setFocus();
    box.selectAll();
    const auto press = [&box](int key, const QString& character) {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, character);
        QApplication::sendEvent(&box, &down);
        QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, character);
        QApplication::sendEvent(&box, &up);
    };
    for (const QChar character : text) {
        press(character.unicode(), character);
    }
    press(Qt::Key_Return, QStringLiteral("\r"));
}

void TourHands::Drag(QWidget& widget, const QPoint& from, const QPoint& to)
{
    SendMouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    SendMouse(widget, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

void TourHands::ScrollTo(QWidget& widget)
{
    for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* panel = qobject_cast<QScrollArea*>(parent)) {
            panel->ensureWidgetVisible(&widget);
        }
    }
}

QString TourHands::ChooseFile(const char* button, const char* form, const QString& path) const
{
    return WithModalWindow<QFileDialog>([&] { return Click(button, form); },
                                        [&path](QFileDialog& dialog) {
                                            auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
                                            name->setText(path);
                                            const bool saves = dialog.acceptMode() == QFileDialog::AcceptSave;
                                            dialog.findChild<QDialogButtonBox*>()
                                                ->button(saves ? QDialogButtonBox::Save : QDialogButtonBox::Open)
                                                ->click();
                                            return dialog.isVisible() ? QStringLiteral("%1 is not accepted").arg(path)
                                                                      : QString();
                                        });
}

QString TourHands::CheckCalled(const char* operation) const
{
    const auto& entries = App().Journal().Entries();
    for (int i = m_journalSize; i < int(entries.size()); ++i) {
        if (entries.at(i).operation == QLatin1String(operation)) {
            return {};
        }
    }
    return QStringLiteral("%1 was not called").arg(QLatin1String(operation));
}

QString TourHands::CheckNumber(const QString& what, double actual, double expected)
{
    // Values pass through single precision on their way.
    return float(actual) == float(expected) ? QString() : QStringLiteral("%1 is %2").arg(what).arg(actual);
}

const Object* TourHands::Selected() const
{
    const QVector<BF::CHandle*>& selected = CurrentScene().Selection();
    return selected.isEmpty() ? nullptr : CurrentScene().FindObject(selected.first());
}

const ClothState* TourHands::EditedCloth() const
{
    const Object* object = Selected();
    if (!object) {
        return nullptr;
    }
    for (const ClothAddress& address : Scene::SlotsOf(*object)) {
        const MaterialSlot* slot = CurrentScene().FindSlot(address);
        if (slot->cloth.active) {
            return &slot->cloth;
        }
    }
    return nullptr;
}

/// Waits for a modal window from within its own event loop.
void TourHands::WhenModal(const std::function<void(QWidget&)>& use)
{
    QTimer::singleShot(0, qApp, [use] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            Settle();
            use(*modal);
        }
    });
}

} // namespace Host
