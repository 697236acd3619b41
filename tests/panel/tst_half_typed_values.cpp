#include "tests/support/Children.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"
#include "tests/support/Typing.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QWheelEvent>

#include <algorithm>

using MV::ECompatibleApp;

/// What is typed or stepped in a box of the panel and not committed when the panel goes on to something else, is
/// hidden, disabled or refreshed: it is written to nobody.
class TestHalfTypedValues : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void editIsDropped_data();
    void editIsDropped();
    void editIsCommittedOnce_data();
    void editIsCommittedOnce();
    void steppedMarginIsNotWrittenByARefresh();
    void wheelRunIsNotWrittenToAnotherObject();
    void randomFactorIsNotWrittenToAnotherObject_data();
    void randomFactorIsNotWrittenToAnotherObject();
    void sliderDragIsNotWrittenToAnotherObject_data();
    void sliderDragIsNotWrittenToAnotherObject();
    void objectChosenInsideALiveWriteIsNotWritten();
};

namespace {

using Cloth = Host::ClothState;

/// A box for a number, with a text that stands for another value than those of the cloths here.
struct Box
{
    const char* form;
    const char* name;
    const char* text;
    double (*held)(const Cloth& cloth); ///< What the box is to show.
};

int Percent(float value)
{
    return qRound(value * 100.0F);
}

constexpr const char* dialogForm = "SoftClothMaterialDlg";

const Box boxes[] = {
    {"SoftClothProperty", "qtMassEXSpinBox", "9", [](const Cloth& c) { return double(c.property.mass); }},
    {"SoftClothProperty", "qtSolverFrequencyEXSpinBox", "9",
     [](const Cloth& c) { return double(c.property.solverFrequency); }},
    {"SoftClothProperty", "qtFricionDoubleEXSpinBox", "0.75",
     [](const Cloth& c) { return double(c.property.friction); }},
    {"SoftClothProperty", "qtDampingDoubleEXSpinBox", "0.75",
     [](const Cloth& c) { return double(c.property.damping); }},
    {"SoftClothProperty", "qtDragDoubleEXSpinBox", "0.75", [](const Cloth& c) { return double(c.property.drag); }},
    {"SoftClothProperty", "qtTetherLimitDoubleEXSpinBox", "9",
     [](const Cloth& c) { return double(c.property.tetherLimit); }},
    {"SoftClothProperty", "qtTetherStiffnessCombospinbox", "9",
     [](const Cloth& c) { return 1.0 + Percent(1 - c.property.tetherStiffness); }},
    {"SoftClothProperty", "qtStiffnessCombospinbox", "9",
     [](const Cloth& c) { return double(Percent(1 - c.property.stiffness)); }},
    {"SoftClothProperty", "qtBendingCombospinbox", "9",
     [](const Cloth& c) { return double(Percent(1 - c.property.bending)); }},
    {"SoftClothProperty", "qtInertiaScaleCombospinbox", "9",
     [](const Cloth& c) { return double(int(c.property.linearInertiaScale * 10.0F)); }},
    {"SoftClothCollision", "qtCollideWithRigidMarginDoubleEXSpinBox", "9",
     [](const Cloth& c) { return double(c.collision.rigidMargin); }},
    {"SoftClothCollision", "qtSelfCollisionMarginDoubleEXSpinBox", "9",
     [](const Cloth& c) { return double(c.collision.selfMargin); }},
    {"SoftClothWindSetting", "qtExternalXEXSpinBox", "9",
     [](const Cloth& c) { return double(c.wind.externalAcceleration[0]); }},
    {"SoftClothWindSetting", "qtExternalYEXSpinBox", "9",
     [](const Cloth& c) { return double(c.wind.externalAcceleration[1]); }},
    {"SoftClothWindSetting", "qtExternalZEXSpinBox", "9",
     [](const Cloth& c) { return double(c.wind.externalAcceleration[2]); }},
    {"SoftClothWindSetting", "qtRandomXEXSpinBox", "9",
     [](const Cloth& c) { return double(c.wind.randomAcceleration[0]); }},
    {"SoftClothWindSetting", "qtRandomYEXSpinBox", "9",
     [](const Cloth& c) { return double(c.wind.randomAcceleration[1]); }},
    {"SoftClothWindSetting", "qtRandomZEXSpinBox", "9",
     [](const Cloth& c) { return double(c.wind.randomAcceleration[2]); }},
    {"SoftClothWindSetting", "qtFrequencyCombodoublespinbox", "9",
     [](const Cloth& c) { return double(c.wind.frequency); }},
    {dialogForm, "qtBrightnessCombospinbox", "55", [](const Cloth& c) { return double(c.weight.brightness); }},
    {dialogForm, "qtContrastCombospinbox", "55", [](const Cloth& c) { return double(c.weight.contrast); }},
};

/// Values that every box can show, others for each number.
Cloth ClothOf(int number)
{
    Cloth cloth;
    cloth.property.mass = 10 + quint32(number);
    cloth.property.solverFrequency = 20 + quint32(number);
    cloth.property.friction = cloth.property.damping = cloth.property.drag = 0.25F * float(number);
    cloth.property.tetherLimit = 1.5F + float(number);
    cloth.property.tetherStiffness = 0.5F + 0.0625F * float(number);
    cloth.property.stiffness = cloth.property.bending = cloth.property.tetherStiffness;
    cloth.property.linearInertiaScale = 0.5F + 0.25F * float(number);
    cloth.collision = {true, true, 0.5F + float(number), 1.5F + float(number)};
    cloth.wind.externalAcceleration = {20.0F + float(number), 30.0F + float(number), 40.0F + float(number)};
    cloth.wind.randomAcceleration = {50.0F + float(number), 60.0F + float(number), 70.0F + float(number)};
    cloth.wind.frequency = 2.5F + float(number);
    cloth.wind.randomFactor = {float(number), 5.0F + float(number)};
    cloth.weight.image.embedded = SampleImages::Encoded(QStringLiteral("png"), SampleImages::Filled({8, 8}, Qt::white));
    cloth.weight.brightness = 10 + number;
    cloth.weight.contrast = 20 + number;
    return cloth;
}

/// A hero with three materials and a flag with one, both cloth with values of their own, and an ordinary stone. The
/// hero's first material is shown, the material dialog is open.
struct TwoCloths : PanelFixture
{
    explicit TwoCloths(ECompatibleApp app)
        : PanelFixture(app)
    {
        stone = App().AddModel(
            SampleModels::Make(QStringLiteral("Stone"), {{QStringLiteral("Rock"), {QStringLiteral("Granite")}}}));
        flag = AddCloth(SampleModels::Flag()).handle;
        hero = AddCloth(SampleModels::Hero()).handle;
        GiveValues();
        ShowHero();
    }

    void GiveValues()
    {
        int number = 0;
        for (BF::CHandle* object : {hero, flag}) {
            for (const Host::ClothAddress& address : Host::Scene::SlotsOf(*CurrentScene().FindObject(object))) {
                ::Cloth& cloth = CurrentScene().FindSlot(address)->cloth;
                const bool isActive = cloth.active;
                cloth = ClothOf(++number);
                cloth.active = isActive;
            }
        }
    }
    void ShowHero()
    {
        if (!CurrentScene().FindObject(hero)) {
            App().Undo();
        }
        App().SetPhysicsEngine(1);
        App().SetPlaying(false);
        App().Select({flag});
        App().Select({hero});
        App().SetDialogMode(MV::EDialogMode::WeightMap);
        App().Journal().Clear();
    }
    void Refresh()
    {
        App().Send("LaunchedImageChanged", &MV::CEventSender::LaunchedImageChanged, BF::CArrayList<BF::CHandle*>{hero});
    }
    ::Cloth& ClothAt(BF::CHandle* object, std::size_t slot = 0)
    {
        return Cloth(*CurrentScene().FindObject(object), slot);
    }

    /// The box, in an active window and with the focus.
    QAbstractSpinBox* Reach(const Box& box)
    {
        QAbstractSpinBox* spinBox = SpinBoxOf(Child<QWidget>(Section(box.form), box.name));
        // Between two windows that are open, asking the window system is not enough here.
        QApplication::setActiveWindow(spinBox->window());
        spinBox->setFocus(Qt::TabFocusReason);
        return spinBox->hasFocus() ? spinBox : nullptr;
    }
    /// The edits that the host was asked for since the last time.
    QStringList Writes()
    {
        return TakeCalls(App().Journal(),
                         [](const Host::JournalEntry& entry) { return entry.service == QLatin1String("Edit"); });
    }

    BF::CHandle* hero = nullptr;
    BF::CHandle* flag = nullptr;
    BF::CHandle* stone = nullptr;
};

/// What makes the panel forget an edit, and the material that it shows after that.
struct Turn
{
    const char* name;
    void (*run)(TwoCloths& panel);
    /// Null where no values are shown then.
    Cloth& (*shown)(TwoCloths& panel);
};

Cloth& First(TwoCloths& panel)
{
    return panel.ClothAt(panel.hero);
}

void Refresh(TwoCloths& panel)
{
    panel.Refresh();
}

const Turn turns[] = {
    {"another object", [](TwoCloths& panel) { panel.App().Select({panel.flag}); },
     [](TwoCloths& panel) -> Cloth& { return panel.ClothAt(panel.flag); }},
    {"no object", [](TwoCloths& panel) { panel.App().Select({}); }, nullptr},
    {"two objects",
     [](TwoCloths& panel) {
         panel.App().Select({panel.flag, panel.hero});
     },
     nullptr},
    {"an object without soft cloth", [](TwoCloths& panel) { panel.App().Select({panel.stone}); }, nullptr},
    {"the same object again", [](TwoCloths& panel) { panel.App().SelectAgain(); }, First},
    {"another material", [](TwoCloths& panel) { panel.App().PickMaterial(panel.hero, 1); },
     [](TwoCloths& panel) -> Cloth& { return panel.ClothAt(panel.hero, 1); }},
    {"hidden", [](TwoCloths& panel) { panel.App().SetPhysicsEngine(2); }, nullptr},
    {"disabled",
     [](TwoCloths& panel) {
         panel.App().SetPlaying(true);
         // The dialog goes on while the scene plays; without an image there is nothing to adjust.
         First(panel).weight.image = {};
         panel.Refresh();
     },
     First},
    {"deleted", [](TwoCloths& panel) { panel.App().DeleteObjects({panel.hero}); }, nullptr},
    {"refreshed", Refresh, First},
};

enum class How
{
    Typed,
    KeyHeld,
};

} // namespace

void TestHalfTypedValues::editIsDropped_data()
{
    QTest::addColumn<int>("turn");
    QTest::addColumn<int>("how");
    QTest::addColumn<ECompatibleApp>("app");
    for (std::size_t turn = 0; turn < std::size(turns); ++turn) {
        for (const How how : {How::Typed, How::KeyHeld}) {
            for (const ECompatibleApp app : {ECompatibleApp::FamilyA, ECompatibleApp::FamilyB}) {
                QTest::addRow("%s, then %s, family %s", how == How::Typed ? "typed" : "key held", turns[turn].name,
                              app == ECompatibleApp::FamilyA ? "A" : "B")
                    << int(turn) << int(how) << app;
            }
        }
    }
}

void TestHalfTypedValues::editIsDropped()
{
    QFETCH(const int, turn);
    QFETCH(const int, how);
    QFETCH(const ECompatibleApp, app);
    TwoCloths panel(app);
    for (const Box& box : boxes) {
        panel.GiveValues();
        panel.ShowHero();
        QAbstractSpinBox* spinBox = panel.Reach(box);
        QVERIFY2(spinBox, box.name);
        const QString before = spinBox->text();
        if (how == int(How::Typed)) {
            TypeInto(spinBox, QLatin1String(box.text));
        } else {
            QTest::keyPress(spinBox, Qt::Key_Up);
        }
        QVERIFY2(spinBox->text() != before, box.name);
        // Each step of brightness and contrast is written at once.
        panel.App().Journal().Clear();

        turns[turn].run(panel);
        QVERIFY2(panel.Writes().isEmpty(), box.name);
        if (turns[turn].shown) {
            QCOMPARE(spinBox->property("value").toDouble(), box.held(turns[turn].shown(panel)));
            QVERIFY2(!spinBox->findChild<QLineEdit*>()->isModified(), box.name);
        }
        QTest::keyRelease(spinBox, Qt::Key_Up);
        spinBox->clearFocus();
        // Where the steps are written at once, a refresh does not end them.
        const bool goesOn = box.form == dialogForm && how == int(How::KeyHeld) && turns[turn].run == Refresh;
        QCOMPARE(panel.Writes().size(), goesOn ? 1 : 0);
        if (turns[turn].shown == First) {
            First(panel).weight.image = ClothOf(1).weight.image;
        }
        panel.ShowHero();
        QCOMPARE(spinBox->property("value").toDouble(), box.held(First(panel)));
    }
}

void TestHalfTypedValues::editIsCommittedOnce_data()
{
    QTest::addColumn<int>("box");
    QTest::addColumn<QString>("end");
    for (std::size_t box = 0; box < std::size(boxes); ++box) {
        for (const char* end : {"Return", "Tab", "click"}) {
            QTest::addRow("%s, %s", boxes[box].name, end) << int(box) << QString::fromLatin1(end);
        }
    }
}

void TestHalfTypedValues::editIsCommittedOnce()
{
    QFETCH(const int, box);
    QFETCH(const QString, end);
    const Box& edited = boxes[box];
    TwoCloths panel(ECompatibleApp::FamilyA);
    QAbstractSpinBox* spinBox = panel.Reach(edited);
    QVERIFY(spinBox);
    TypeInto(spinBox, QLatin1String(edited.text));
    QVERIFY(panel.Writes().isEmpty());
    if (end == QLatin1String("Return")) {
        QTest::keyClick(spinBox, Qt::Key_Return);
    } else if (end == QLatin1String("Tab")) {
        QTest::keyClick(spinBox, Qt::Key_Tab);
    } else {
        // Another box of the same window, of a section that is in sight.
        const auto* other = std::find_if(std::begin(boxes), std::end(boxes), [&edited](const Box& candidate) {
            const bool isInDialog = candidate.form == dialogForm;
            return &candidate != &edited && isInDialog == (edited.form == dialogForm) &&
                   qstrcmp(candidate.form, "SoftClothProperty") != 0;
        });
        QAbstractSpinBox* clicked = SpinBoxOf(Child<QWidget>(panel.Section(other->form), other->name));
        QTRY_VERIFY(clicked->height() > 0);
        QTest::mouseClick(clicked, Qt::LeftButton);
        QVERIFY(clicked->hasFocus());
    }
    const QStringList writes = panel.Writes();
    // Brightness and contrast are written as a step and as the end.
    QCOMPARE(writes.size(), edited.form == dialogForm ? 2 : 1);
    QVERIFY2(edited.form != dialogForm || writes.last().contains(QLatin1String("true, true")),
             qPrintable(writes.last()));
    QCOMPARE(edited.held(First(panel)), QLocale::c().toDouble(QLatin1String(edited.text)));

    panel.App().Select({panel.flag});
    QVERIFY(panel.Writes().isEmpty());
    QCOMPARE(spinBox->property("value").toDouble(), edited.held(panel.ClothAt(panel.flag)));
}

/// A refresh disables the box, and the host has come to the very value that it was stepped to.
void TestHalfTypedValues::steppedMarginIsNotWrittenByARefresh()
{
    TwoCloths panel(ECompatibleApp::FamilyA);
    First(panel).collision.rigidMargin = 0.5F;
    panel.Refresh();
    QAbstractSpinBox* margin = panel.Reach(boxes[10]);
    QVERIFY(margin);
    QTest::keyPress(margin, Qt::Key_Up);
    QCOMPARE(margin->property("value").toDouble(), 0.6);
    First(panel).collision = {false, true, 0.6F, 1};
    panel.App().Journal().Clear();
    panel.Refresh();
    QVERIFY(!margin->isEnabled());
    QVERIFY(panel.Writes().isEmpty());
    QTest::keyRelease(margin, Qt::Key_Up);
    QVERIFY(panel.Writes().isEmpty());
    QCOMPARE(margin->property("value").toDouble(), 0.6);
    // The focus has gone to the next box, and the keyboard repeats the key there.
    QWidget* next = QApplication::focusWidget();
    QVERIFY(next && next != margin);
    QTest::simulateEvent(next, true, Qt::Key_Up, Qt::NoModifier, QString(), true);
    QTest::simulateEvent(next, false, Qt::Key_Up, Qt::NoModifier, QString(), false);
    QVERIFY(panel.Writes().isEmpty());
}

/// The end of a run of wheel steps comes a while after the last of them.
void TestHalfTypedValues::wheelRunIsNotWrittenToAnotherObject()
{
    TwoCloths panel(ECompatibleApp::FamilyA);
    QAbstractSpinBox* mass = panel.Reach(boxes[0]);
    QVERIFY(mass);
    const QPointF position(mass->rect().center());
    QWheelEvent wheel(position, mass->mapToGlobal(position.toPoint()), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(mass, &wheel);
    QCOMPARE(mass->property("value").toDouble(), boxes[0].held(First(panel)) + 1);
    panel.App().Select({panel.flag});
    constexpr int longerThanAPauseOfTheWheel = 500;
    QTest::qWait(longerThanAPauseOfTheWheel);
    QVERIFY(panel.Writes().isEmpty());
    QCOMPARE(mass->property("value").toDouble(), boxes[0].held(panel.ClothAt(panel.flag)));
}

void TestHalfTypedValues::randomFactorIsNotWrittenToAnotherObject_data()
{
    QTest::addColumn<bool>("isDrag");
    QTest::addColumn<int>("turn");
    for (std::size_t turn = 0; turn < std::size(turns); ++turn) {
        QTest::addRow("dragged, then %s", turns[turn].name) << true << int(turn);
        QTest::addRow("key held, then %s", turns[turn].name) << false << int(turn);
    }
}

void TestHalfTypedValues::randomFactorIsNotWrittenToAnotherObject()
{
    QFETCH(const bool, isDrag);
    QFETCH(const int, turn);
    TwoCloths panel(ECompatibleApp::FamilyA);
    QWidget* form = panel.Section("SoftClothWindSetting");
    auto* slider = Child<QWidget>(form, "qtRandomFactorWidget")->findChild<QWidget*>();
    const auto texts = [form] {
        return Child<QLabel>(form, "label_12")->text() + QLatin1Char(' ') + Child<QLabel>(form, "label_13")->text();
    };
    const auto held = [](const Cloth& cloth) {
        return QStringLiteral("from %1 to %2").arg(cloth.wind.randomFactor[0]).arg(cloth.wind.randomFactor[1]);
    };
    QTRY_VERIFY(slider->width() > 100);
    QCOMPARE(texts(), held(First(panel)));
    // A value's place on the track, whose ends are half a handle away from the edges.
    const auto place = [slider](int value) { return QPoint(8 + (slider->width() - 16) * value / 10, 15); };
    const auto move = [slider, place](int value) {
        QMouseEvent event(QEvent::MouseMove, place(value), slider->mapToGlobal(place(value)), Qt::LeftButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(slider, &event);
    };
    QApplication::setActiveWindow(slider->window());
    if (isDrag) {
        QTest::mousePress(slider, Qt::LeftButton, {}, place(6));
        move(10);
    } else {
        slider->setFocus();
        QTest::keyPress(slider, Qt::Key_Right);
    }
    QVERIFY(texts() != held(First(panel)));
    turns[turn].run(panel);
    const QString after = texts();
    if (turns[turn].shown) {
        QCOMPARE(after, held(turns[turn].shown(panel)));
    }
    if (isDrag) {
        move(8);
        QTest::mouseRelease(slider, Qt::LeftButton, {}, place(8));
    } else {
        QTest::simulateEvent(slider, true, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QTest::keyRelease(slider, Qt::Key_Right);
    }
    QCOMPARE(texts(), after);
    QCOMPARE(panel.Writes(), QStringList());
}

void TestHalfTypedValues::sliderDragIsNotWrittenToAnotherObject_data()
{
    QTest::addColumn<int>("box");
    for (std::size_t box = 0; box < std::size(boxes); ++box) {
        if (QByteArray(boxes[box].name).toLower().contains("combo")) {
            QTest::newRow(boxes[box].name) << int(box);
        }
    }
}

void TestHalfTypedValues::sliderDragIsNotWrittenToAnotherObject()
{
    QFETCH(const int, box);
    const Box& dragged = boxes[box];
    TwoCloths panel(ECompatibleApp::FamilyA);
    QAbstractSpinBox* spinBox = panel.Reach(dragged);
    QVERIFY(spinBox);
    auto* slider = spinBox->parentWidget()->findChild<QSlider*>();
    QTRY_VERIFY(slider->width() > 20);
    const QString before = spinBox->text();
    const QPoint end(slider->width() - 1, slider->height() / 2);
    QTest::mousePress(slider, Qt::LeftButton, {}, end);
    QVERIFY(spinBox->text() != before);
    panel.App().Journal().Clear();
    panel.App().Select({panel.flag});
    QMouseEvent move(QEvent::MouseMove, QPointF(1, 5), slider->mapToGlobal(QPoint(1, 5)), Qt::LeftButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(slider, &move);
    QTest::mouseRelease(slider, Qt::LeftButton, {}, QPoint(1, 5));
    QCOMPARE(spinBox->property("value").toDouble(), dragged.held(panel.ClothAt(panel.flag)));
    QCOMPARE(panel.Writes(), QStringList());
}

void TestHalfTypedValues::objectChosenInsideALiveWriteIsNotWritten()
{
    TwoCloths panel(ECompatibleApp::FamilyA);
    const Box& contrast = boxes[std::size(boxes) - 1];
    QAbstractSpinBox* spinBox = panel.Reach(contrast);
    QVERIFY(spinBox);
    During(panel.App(), "SetWeightImageAdjust", [&panel] { panel.App().Select({panel.flag}); });
    QTest::keyPress(spinBox, Qt::Key_Up);
    QTest::simulateEvent(spinBox, true, Qt::Key_Up, Qt::NoModifier, QString(), true);
    QTest::keyRelease(spinBox, Qt::Key_Up);
    // The one to the object that was shown.
    QCOMPARE(panel.Writes().size(), 1);
    QCOMPARE(spinBox->property("value").toDouble(), contrast.held(panel.ClothAt(panel.flag)));
    QCOMPARE(panel.ClothAt(panel.flag).weight.contrast, ClothOf(4).weight.contrast);
}

SOFTCLOTH_TEST(TestHalfTypedValues)
#include "tst_half_typed_values.moc"
