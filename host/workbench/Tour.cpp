#include "host/workbench/Tour.h"

#include "host/workbench/MainWindow.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QElapsedTimer>
#include <QFile>
#include <QGroupBox>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScrollArea>
#include <QTextStream>

#include <cmath>
#include <functional>

namespace Host {

namespace {

/// One step: what it shows, and what it does; the answer is empty when it holds, otherwise it says what does not.
struct Step
{
    const char* name;
    std::function<QString()> run;
};

class Tour
{
public:
    Tour(MainWindow& window, const QString& folder)
        : m_window(window)
        , m_folder(folder)
    {
    }

    bool Run()
    {
        if (!QDir().mkpath(m_folder)) {
            Tell(QStringLiteral("%1 cannot be made").arg(m_folder));
            return false;
        }
        bool allHold = true;
        int number = 0;
        for (const Step& step : Steps()) {
            // Later steps build on the earlier ones.
            const QString problem = allHold ? step.run() : QStringLiteral("not reached");
            Settle();
            const QString file = QStringLiteral("%1/%2-%3.png")
                                     .arg(m_folder)
                                     .arg(++number, 2, 10, QLatin1Char('0'))
                                     .arg(QLatin1String(step.name));
            const bool saved = m_window.grab().save(file);
            const QString told = problem.isEmpty() && !saved ? QStringLiteral("no picture %1").arg(file) : problem;
            Tell(QStringLiteral("%1 %2").arg(told.isEmpty() ? QStringLiteral("ok    ") : QStringLiteral("FAILED"),
                                             QLatin1String(step.name)) +
                 (told.isEmpty() ? QString() : QStringLiteral(": ") + told));
            allHold = allHold && told.isEmpty();
        }
        return SaveJournal() && allHold;
    }

private:
    std::vector<Step> Steps();

    Scene& CurrentScene() { return m_window.Application().CurrentScene(); }

    static void Tell(const QString& text) { QTextStream(stderr) << text << Qt::endl; }

    /// Lets the window lay itself out and paint.
    static void Settle()
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 50) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
    }

    template <class Widget>
    Widget* Find(const char* name)
    {
        return m_window.findChild<Widget*>(QLatin1String(name));
    }

    /// Types \p text into a box in place of what it holds and presses Return.
    static void Type(QAbstractSpinBox& box, const QString& text)
    {
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

    /// Drags the left mouse button over \p widget.
    static void Drag(QWidget& widget, const QPoint& from, const QPoint& to)
    {
        const auto send = [&widget](QEvent::Type type, const QPoint& at, Qt::MouseButton button, Qt::MouseButton held) {
            QMouseEvent event(type, at, widget.mapToGlobal(at), button, held, Qt::NoModifier);
            QApplication::sendEvent(&widget, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    }

    /// Scrolls the Modify panel so that \p widget is seen.
    static void ScrollTo(QWidget& widget)
    {
        for (QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
            if (auto* panel = qobject_cast<QScrollArea*>(parent)) {
                panel->ensureWidgetVisible(&widget);
            }
        }
    }

    /// Empty when the panel's last call was \p operation.
    QString CheckLastCall(const char* operation)
    {
        const JournalEntry& last = m_window.Application().Journal().Entries().constLast();
        return last.operation == QLatin1String(operation) ? QString()
                                                          : QStringLiteral("the last call is %1").arg(last.ToString());
    }

    /// The cloth that the panel edits: the first one of the selected object that is active.
    const ClothState* EditedCloth()
    {
        if (CurrentScene().Selection().isEmpty()) {
            return nullptr;
        }
        const Object* object = CurrentScene().FindObject(CurrentScene().Selection().first());
        for (const ClothAddress& address : Scene::SlotsOf(*object)) {
            const MaterialSlot* slot = CurrentScene().FindSlot(address);
            if (slot->cloth.active) {
                return &slot->cloth;
            }
        }
        return nullptr;
    }

    QString ShowScene();
    QString SwitchSoftClothOn();
    QString EditMargin();
    QString UndoEdit();
    QString RedoEdit();
    QString EditProperty();
    QString EditWind();
    QString DragRandomFactor();
    QString FoldSection();
    QString DeselectObject();

    bool SaveJournal()
    {
        QFile file(m_folder + QLatin1String("/journal.txt"));
        const QByteArray text = m_window.Application().Journal().ToText().toUtf8();
        const bool saved = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
        if (!saved) {
            Tell(QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
        }
        return saved;
    }

    MainWindow& m_window;
    QString m_folder;
    float m_marginBefore = 0.0F;
};

constexpr double newMargin = 2.5;
constexpr const char* marginBox = "qtCollideWithRigidMarginDoubleEXSpinBox";

std::vector<Step> Tour::Steps()
{
    return {
        {"model-selected", [this] { return ShowScene(); }},
        {"soft-cloth-on", [this] { return SwitchSoftClothOn(); }},
        {"margin-edited", [this] { return EditMargin(); }},
        {"edit-undone", [this] { return UndoEdit(); }},
        {"edit-redone", [this] { return RedoEdit(); }},
        {"property-edited", [this] { return EditProperty(); }},
        {"wind-edited", [this] { return EditWind(); }},
        {"random-factor-dragged", [this] { return DragRandomFactor(); }},
        {"section-folded", [this] { return FoldSection(); }},
        {"nothing-selected", [this] { return DeselectObject(); }},
    };
}

QString Tour::ShowScene()
{
    const QWidget* section = Find<QWidget>("SoftClothCollision");
    if (CurrentScene().Selection().size() != 1) {
        return QStringLiteral("no object is selected");
    }
    if (!section || !section->isVisible()) {
        return QStringLiteral("the collision section is not shown");
    }
    return section->findChild<QGroupBox*>(QStringLiteral("qtSectionGroupBox"))->isEnabled()
               ? QStringLiteral("the collision section is enabled without soft cloth")
               : QString();
}

QString Tour::SwitchSoftClothOn()
{
    Find<QCheckBox>("softClothControl")->click();
    if (!EditedCloth()) {
        return QStringLiteral("no material became soft cloth");
    }
    m_marginBefore = EditedCloth()->collision.rigidMargin;
    return Find<QWidget>(marginBox)->isEnabled() ? QString() : QStringLiteral("the margin cannot be edited");
}

QString Tour::EditMargin()
{
    Type(*Find<QAbstractSpinBox>(marginBox), QLocale().toString(newMargin));
    if (EditedCloth()->collision.rigidMargin != float(newMargin)) {
        return QStringLiteral("the host has margin %1").arg(double(EditedCloth()->collision.rigidMargin));
    }
    return CheckLastCall("SetSoftClothCollision");
}

QString Tour::UndoEdit()
{
    Find<QAction>("undoAction")->trigger();
    if (EditedCloth()->collision.rigidMargin != m_marginBefore) {
        return QStringLiteral("the host has margin %1").arg(double(EditedCloth()->collision.rigidMargin));
    }
    return Find<QDoubleSpinBox>(marginBox)->value() == double(m_marginBefore)
               ? QString()
               : QStringLiteral("the box still shows %1").arg(Find<QDoubleSpinBox>(marginBox)->value());
}

QString Tour::RedoEdit()
{
    Find<QAction>("redoAction")->trigger();
    return EditedCloth()->collision.rigidMargin == float(newMargin) &&
                   std::abs(Find<QDoubleSpinBox>(marginBox)->value() - newMargin) < 0.0005
               ? QString()
               : QStringLiteral("the edit did not come back");
}

QString Tour::EditProperty()
{
    auto* box = Find<QAbstractSpinBox>("qtMassEXSpinBox");
    ScrollTo(*box);
    Type(*box, QStringLiteral("16"));
    return EditedCloth()->property.mass == 16
               ? CheckLastCall("SetSoftClothProperty")
               : QStringLiteral("the host has mass %1").arg(EditedCloth()->property.mass);
}

QString Tour::EditWind()
{
    auto* box = Find<QAbstractSpinBox>("qtExternalXEXSpinBox");
    ScrollTo(*Find<QWidget>("qtRandomFactorWidget"));
    Type(*box, QStringLiteral("-120"));
    const float wind = EditedCloth()->wind.externalAcceleration.front();
    return wind == -120.0F ? CheckLastCall("SetSoftClothWind")
                           : QStringLiteral("the host has acceleration %1").arg(double(wind));
}

QString Tour::DragRandomFactor()
{
    QWidget* slider = Find<QWidget>("qtRandomFactorWidget")->focusProxy();
    // Handles are 17 pixels wide and move over the rest of the slider, which counts from 0 to 10.
    const auto handle = [slider](int value) { return QPoint(8 + (slider->width() - 17) * value / 10, 16); };
    Drag(*slider, handle(int(EditedCloth()->wind.randomFactor.back())), handle(7));
    const float factor = EditedCloth()->wind.randomFactor.back();
    return factor == 7.0F ? CheckLastCall("SetSoftClothWind")
                          : QStringLiteral("the host has random factor %1").arg(double(factor));
}

QString Tour::FoldSection()
{
    QWidget* section = Find<QWidget>("SoftClothCollision");
    auto* button = section->findChild<QAbstractButton*>(QStringLiteral("qtExpandPushButton"));
    const auto* group = section->findChild<QGroupBox*>(QStringLiteral("qtSectionGroupBox"));
    button->click();
    const bool folded = !group->isVisible();
    button->click();
    const bool unfolded = group->isVisible();
    button->click();
    return folded && unfolded ? QString() : QStringLiteral("the section does not fold");
}

QString Tour::DeselectObject()
{
    m_window.Application().Select({});
    return Find<QWidget>("SoftClothCollision")->isVisible() ? QStringLiteral("the section is still shown") : QString();
}

} // namespace

bool RunTour(MainWindow& window, const QString& folder)
{
    return Tour(window, folder).Run();
}

} // namespace Host
