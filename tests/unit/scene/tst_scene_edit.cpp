#include "host/scene/Handles.h"
#include "host/scene/Scene.h"
#include "host/scene/StateFields.h"

#include "tests/support/TestCase.h"
#include "tests/unit/scene/SampleScene.h"

#include <QSignalSpy>

#include <array>
#include <cmath>
#include <limits>
#include <type_traits>

using Host::ClothAddress;
using Host::ClothState;
using Host::Object;
using Host::Scene;
using Host::SceneEdit;

class TestSceneEdit : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void pushAppliesAndTakesBeforeStatesFromTheScene();
    void deletedObjectIsBroughtBackByAnEdit();
    void changesOfUnknownThingsAreLeftOut();
    void editThatChangesNothingIsNoStep();
    void floatsAreComparedByTheirBits_data();
    void floatsAreComparedByTheirBits();
    void everyFieldCountsAsAChange();
    void undoAndRedoRestoreStatesBitForBit();
    void newEditDropsUndoneOnes();
    void stepIsShownUnderItsText();
    void eachMoveOnTheStackIsAnnouncedOnce();
    void touchedObjectsAreInSceneOrder();
    void deletedObjectLeavesTheSelection();
    void undoBringsADeletedObjectBack();
    void otherEditsLeaveTheSelectionAlone();
    void listenerMayPushTheNextEdit();
    void listenerMayUndo();
    void restoredStepsTouchNoState();
    void restoredStepsCanBeUndoneAndRedone();
    void savedPlaceOnTheStackIsClean();

private:
    void SetUp() override;
    void TearDown() override;
    SceneEdit ClothEdit(const ClothState& after) const;
    SceneEdit DeletionOf(const Object& object) const;

    std::unique_ptr<Scene> m_scene;
    Object* m_first = nullptr;
    Object* m_second = nullptr;
    ClothAddress m_address;
};

void TestSceneEdit::SetUp()
{
    m_scene = std::make_unique<Scene>();
    m_first = &m_scene->AddObject(Sample::Robe(QStringLiteral("First")));
    m_second = &m_scene->AddObject(Sample::Robe(QStringLiteral("Second")));
    m_address = Scene::SlotsOf(*m_first).front();
}

void TestSceneEdit::TearDown()
{
    m_scene.reset();
}

SceneEdit TestSceneEdit::ClothEdit(const ClothState& after) const
{
    SceneEdit edit;
    edit.cloths.push_back({m_address, {}, after});
    return edit;
}

SceneEdit TestSceneEdit::DeletionOf(const Object& object) const
{
    SceneEdit edit;
    edit.objects.push_back({object.handle, {}, {false, object.state.softCloth, object.state.rigidBody}});
    return edit;
}

void TestSceneEdit::pushAppliesAndTakesBeforeStatesFromTheScene()
{
    ClothState light;
    light.property.mass = 2;
    ClothState heavy;
    heavy.property.mass = 9;
    QVERIFY(m_scene->Push(ClothEdit(light)));
    SceneEdit edit = ClothEdit(heavy);
    edit.cloths[0].before.property.mass = 77; // not what the scene holds
    QVERIFY(m_scene->Push(edit));
    QCOMPARE(m_scene->FindSlot(m_address)->cloth.property.mass, 9);
    QCOMPARE(m_scene->UndoSteps().back().cloths[0].before.property.mass, 2);
    m_scene->UndoStack().undo();
    QCOMPARE(m_scene->FindSlot(m_address)->cloth.property.mass, 2);
}

void TestSceneEdit::deletedObjectIsBroughtBackByAnEdit()
{
    m_scene->Push(DeletionOf(*m_second));
    QVERIFY(!m_scene->FindObject(m_second->handle));
    SceneEdit edit;
    edit.objects = {{m_second->handle, {}, {true, true, false}}};
    QVERIFY(m_scene->Push(edit));
    QVERIFY(m_scene->FindObject(m_second->handle));
    QVERIFY(m_second->state.softCloth);
    m_scene->UndoStack().undo();
    QVERIFY(!m_scene->FindObject(m_second->handle));
}

void TestSceneEdit::changesOfUnknownThingsAreLeftOut()
{
    m_scene->Push(DeletionOf(*m_second));
    const ClothAddress deleted = Scene::SlotsOf(*m_second).front();
    const ClothAddress mixed{m_first->handle, m_second->meshes[0].id, m_second->materials[0].id};
    ClothState after;
    after.active = true;
    SceneEdit edit;
    edit.cloths = {{deleted, {}, after}, {mixed, {}, after}, {{}, {}, after}};
    edit.materials = {{m_second->materials[0].id, {}, {false}}, {Host::NewId(), {}, {false}}};
    edit.objects = {{m_second->handle, {}, {false, true, true}}, {nullptr, {}, {true, true, true}}};
    const int steps = m_scene->UndoStack().count();
    QVERIFY(!m_scene->Push(edit));
    QCOMPARE(m_scene->UndoStack().count(), steps);

    edit.cloths.push_back({m_address, {}, after});
    QVERIFY(m_scene->Push(edit));
    const SceneEdit step = m_scene->UndoSteps().back();
    QCOMPARE(step.cloths.size(), std::size_t{1});
    QVERIFY(step.materials.empty());
    QVERIFY(step.objects.empty());
    QVERIFY(!m_second->state.exists);
}

void TestSceneEdit::editThatChangesNothingIsNoStep()
{
    QSignalSpy applied(m_scene.get(), &Scene::EditApplied);
    SceneEdit edit = ClothEdit(ClothState());
    edit.materials.push_back({m_first->materials[0].id, {false}, {true}});
    edit.objects.push_back({m_first->handle, {false, true, true}, {true, false, false}});
    QVERIFY(!m_scene->Push(edit));
    QVERIFY(!m_scene->Push(SceneEdit()));
    QCOMPARE(m_scene->UndoStack().count(), 0);
    QVERIFY(applied.isEmpty());
}

void TestSceneEdit::floatsAreComparedByTheirBits_data()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QTest::addColumn<float>("before");
    QTest::addColumn<float>("after");
    QTest::addColumn<bool>("changes");
    QTest::newRow("same number") << 0.1F << 0.1F << false;
    QTest::newRow("next number") << 0.1F << std::nextafter(0.1F, 1.0F) << true;
    QTest::newRow("not a number stays") << nan << nan << false;
    QTest::newRow("number to not a number") << 0.1F << nan << true;
    QTest::newRow("zeros of either sign") << 0.0F << -0.0F << true;
}

void TestSceneEdit::floatsAreComparedByTheirBits()
{
    QFETCH(float, before);
    QFETCH(float, after);
    ClothState state;
    state.wind.randomFactor[1] = before;
    m_scene->Push(ClothEdit(state));
    state.wind.randomFactor[1] = after;
    QTEST(m_scene->Push(ClothEdit(state)), "changes");
}

namespace {

template <class Value, std::size_t size, class Visit>
void ForEachNumber(std::array<Value, size>& values, Visit visit)
{
    for (Value& value : values) {
        visit(value);
    }
}

template <class Value, class Visit>
void ForEachNumber(Value& value, Visit visit)
{
    if constexpr (std::is_arithmetic_v<Value>) {
        visit(value);
    } else {
        Host::ForEachField(value, [&](const auto& field) { ForEachNumber(value.*field.member, visit); });
    }
}

} // namespace

void TestSceneEdit::everyFieldCountsAsAChange()
{
    ClothState state;
    const auto steps = [&] { return m_scene->UndoStack().count(); };
    int expected = 0;
    ForEachNumber(state, [&](auto& number) {
        number = static_cast<std::decay_t<decltype(number)>>(number == 0);
        m_scene->Push(ClothEdit(state));
        ++expected;
        QCOMPARE(steps(), expected);
    });
    QVERIFY(expected > 50);
}

void TestSceneEdit::undoAndRedoRestoreStatesBitForBit()
{
    QRandomGenerator random(4711);
    std::vector<Sample::States> history{Sample::StatesOf(*m_scene)};
    for (int i = 0; i < 40; ++i) {
        QVERIFY(m_scene->Push(Sample::AnyEdit(*m_scene, random)));
        history.push_back(Sample::StatesOf(*m_scene));
    }
    for (int i = 0; i < 300; ++i) {
        const int index = random.bounded(static_cast<int>(history.size()));
        m_scene->UndoStack().setIndex(index);
        QVERIFY(Sample::StatesOf(*m_scene) == history[static_cast<std::size_t>(index)]);
    }
}

void TestSceneEdit::newEditDropsUndoneOnes()
{
    QRandomGenerator random(1);
    for (int i = 0; i < 3; ++i) {
        m_scene->Push(Sample::AnyEdit(*m_scene, random));
    }
    m_scene->UndoStack().setIndex(1);
    m_scene->Push(Sample::AnyEdit(*m_scene, random));
    QCOMPARE(m_scene->UndoSteps().size(), std::size_t{2});
    QVERIFY(!m_scene->UndoStack().canRedo());
}

void TestSceneEdit::stepIsShownUnderItsText()
{
    SceneEdit edit = DeletionOf(*m_first);
    edit.text = QStringLiteral("Delete Größe 東");
    m_scene->Push(edit);
    QCOMPARE(m_scene->UndoStack().undoText(), edit.text);
    QCOMPARE(m_scene->UndoSteps().back().text, edit.text);
}

void TestSceneEdit::eachMoveOnTheStackIsAnnouncedOnce()
{
    QRandomGenerator random(2);
    QSignalSpy applied(m_scene.get(), &Scene::EditApplied);
    const QVector<BF::CHandle*> both{m_first->handle, m_second->handle};
    const auto lastObjects = [&] { return applied.last().at(0).value<QVector<BF::CHandle*>>(); };
    m_scene->Push(Sample::AnyEdit(*m_scene, random));
    m_scene->Push(Sample::AnyEdit(*m_scene, random));
    QCOMPARE(applied.size(), 2);
    QCOMPARE(lastObjects(), both);
    m_scene->UndoStack().undo();
    QCOMPARE(applied.size(), 3);
    QCOMPARE(lastObjects(), both);
    m_scene->UndoStack().redo();
    QCOMPARE(applied.size(), 4);
    m_scene->UndoStack().setIndex(0);
    QCOMPARE(applied.size(), 5);
    QCOMPARE(lastObjects(), both);
    m_scene->UndoStack().clear();
    QCOMPARE(applied.size(), 5);
}

void TestSceneEdit::touchedObjectsAreInSceneOrder()
{
    ClothState after;
    after.active = true;
    SceneEdit edit;
    edit.cloths = {{Scene::SlotsOf(*m_second).front(), {}, after}, {Scene::SlotsOf(*m_second).back(), {}, after}};
    edit.materials = {{m_first->materials[1].id, {}, {false}}};
    edit.objects = {{nullptr, {}, {}}};
    QCOMPARE(m_scene->ObjectsOf(edit), (QVector<BF::CHandle*>{m_first->handle, m_second->handle}));
    m_scene->Push(DeletionOf(*m_second));
    QCOMPARE(m_scene->ObjectsOf(edit), (QVector<BF::CHandle*>{m_first->handle, m_second->handle}));
    QCOMPARE(m_scene->ObjectsOf(DeletionOf(*m_second)), QVector<BF::CHandle*>{m_second->handle});
}

void TestSceneEdit::deletedObjectLeavesTheSelection()
{
    m_scene->SetSelection({m_second->handle, m_first->handle});
    QSignalSpy objects(m_scene.get(), &Scene::ObjectsChanged);
    QSignalSpy selection(m_scene.get(), &Scene::SelectionChanged);
    QVector<BF::CHandle*> selectedWhenHeard{nullptr};
    connect(m_scene.get(), &Scene::ObjectsChanged, this, [&] { selectedWhenHeard = m_scene->Selection(); });
    m_scene->Push(DeletionOf(*m_second));
    QCOMPARE(m_scene->Selection(), QVector<BF::CHandle*>{m_first->handle});
    QCOMPARE(selectedWhenHeard, QVector<BF::CHandle*>{m_first->handle});
    QCOMPARE(objects.size(), 1);
    QCOMPARE(selection.size(), 1);
}

void TestSceneEdit::undoBringsADeletedObjectBack()
{
    m_scene->SetSelection({m_second->handle});
    ClothState after;
    after.active = true;
    SceneEdit edit = DeletionOf(*m_second);
    edit.cloths.push_back({Scene::SlotsOf(*m_second).front(), {}, after});
    m_scene->Push(edit);
    QSignalSpy objects(m_scene.get(), &Scene::ObjectsChanged);
    m_scene->UndoStack().undo();
    QCOMPARE(objects.size(), 1);
    QCOMPARE(m_scene->FindObject(m_second->handle), m_second);
    QVERIFY(!m_scene->FindSlot(edit.cloths[0].address)->cloth.active);
    QVERIFY(m_scene->Selection().isEmpty());
    m_scene->UndoStack().redo();
    QCOMPARE(objects.size(), 2);
    QVERIFY(!m_scene->FindObject(m_second->handle));
}

void TestSceneEdit::otherEditsLeaveTheSelectionAlone()
{
    QRandomGenerator random(3);
    m_scene->SetSelection({m_second->handle});
    QSignalSpy objects(m_scene.get(), &Scene::ObjectsChanged);
    QSignalSpy selection(m_scene.get(), &Scene::SelectionChanged);
    m_scene->Push(Sample::AnyEdit(*m_scene, random));
    m_scene->UndoStack().undo();
    QVERIFY(objects.isEmpty());
    QVERIFY(selection.isEmpty());
    QCOMPARE(m_scene->Selection(), QVector<BF::CHandle*>{m_second->handle});
}

void TestSceneEdit::listenerMayPushTheNextEdit()
{
    int left = 3;
    connect(m_scene.get(), &Scene::EditApplied, this, [&] {
        if (left-- > 0) {
            ClothState next = m_scene->FindSlot(m_address)->cloth;
            ++next.property.mass;
            m_scene->Push(ClothEdit(next));
        }
    });
    ClothState first;
    first.property.mass = 10;
    m_scene->Push(ClothEdit(first));
    QCOMPARE(m_scene->FindSlot(m_address)->cloth.property.mass, 13);
    QCOMPARE(m_scene->UndoStack().index(), 4);
    for (const qint64 mass : {12, 11, 10, 1}) {
        m_scene->UndoStack().undo();
        QCOMPARE(m_scene->FindSlot(m_address)->cloth.property.mass, mass);
    }
}

void TestSceneEdit::listenerMayUndo()
{
    bool undone = false;
    connect(m_scene.get(), &Scene::EditApplied, this, [&] {
        if (!undone) {
            undone = true;
            m_scene->UndoStack().undo();
        }
    });
    ClothState after;
    after.active = true;
    m_scene->Push(ClothEdit(after));
    QVERIFY(!m_scene->FindSlot(m_address)->cloth.active);
    QVERIFY(m_scene->UndoStack().canRedo());
}

void TestSceneEdit::restoredStepsTouchNoState()
{
    QRandomGenerator random(5);
    for (int i = 0; i < 4; ++i) {
        m_scene->Push(Sample::AnyEdit(*m_scene, random));
    }
    m_scene->Push(DeletionOf(*m_second));
    m_scene->UndoStack().setIndex(2);
    const Sample::States states = Sample::StatesOf(*m_scene);
    QSignalSpy applied(m_scene.get(), &Scene::EditApplied);
    QSignalSpy objects(m_scene.get(), &Scene::ObjectsChanged);
    const std::vector<SceneEdit> steps = m_scene->UndoSteps();
    m_scene->RestoreUndoSteps(steps, 3);
    QVERIFY(Sample::StatesOf(*m_scene) == states);
    QVERIFY(applied.isEmpty());
    QVERIFY(objects.isEmpty());
    QCOMPARE(m_scene->UndoStack().count(), 5);
    QCOMPARE(m_scene->UndoStack().index(), 3);
}

void TestSceneEdit::restoredStepsCanBeUndoneAndRedone()
{
    QRandomGenerator random(6);
    std::vector<Sample::States> history{Sample::StatesOf(*m_scene)};
    for (int i = 0; i < 4; ++i) {
        m_scene->Push(Sample::AnyEdit(*m_scene, random));
        history.push_back(Sample::StatesOf(*m_scene));
    }
    m_scene->UndoStack().setIndex(2);
    m_scene->RestoreUndoSteps(m_scene->UndoSteps(), 2);
    for (const int index : {0, 4, 1, 3}) {
        m_scene->UndoStack().setIndex(index);
        QVERIFY(Sample::StatesOf(*m_scene) == history[static_cast<std::size_t>(index)]);
    }
}

void TestSceneEdit::savedPlaceOnTheStackIsClean()
{
    QRandomGenerator random(7);
    for (int i = 0; i < 3; ++i) {
        m_scene->Push(Sample::AnyEdit(*m_scene, random));
    }
    QVERIFY(!m_scene->UndoStack().isClean());
    m_scene->RestoreUndoSteps(m_scene->UndoSteps(), 2);
    QVERIFY(m_scene->UndoStack().isClean());
    m_scene->UndoStack().redo();
    QVERIFY(!m_scene->UndoStack().isClean());
    m_scene->UndoStack().undo();
    QVERIFY(m_scene->UndoStack().isClean());
}

SOFTCLOTH_TEST_WITH(TestSceneEdit, QCoreApplication)

#include "tst_scene_edit.moc"
