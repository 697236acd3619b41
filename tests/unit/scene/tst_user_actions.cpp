#include "host/scene/Scene.h"

#include "tests/support/TestCase.h"
#include "tests/unit/scene/SampleScene.h"

using Host::ClothAddress;
using Host::ClothState;
using Host::Object;
using Host::Scene;
using Host::SceneEdit;

/// What the user does at once is taken back at once.
class TestUserActions : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void editsOfOneActionAreOneStep();
    void editsOfDifferentActionsAreDifferentSteps();
    void editsBeforeTheFirstActionAreDifferentSteps();
    void actionThatChangesNothingInTheEndIsNoStep();
    void editThatCanBeTakenBackStaysAStepOfItsOwn();
    void comingAndGoingStaysAStepOfItsOwn();
    void actionAfterSavingIsAStepOfItsOwn();

private:
    void SetUp() override;
    void TearDown() override;
    SceneEdit MassEdit(const Object& object, int mass, const char* text = "Mass") const;
    int Mass(const Object& object) const;

    std::unique_ptr<Scene> m_scene;
    Object* m_first = nullptr;
    Object* m_second = nullptr;
};

void TestUserActions::SetUp()
{
    m_scene = std::make_unique<Scene>();
    m_first = &m_scene->AddObject(Sample::Robe(QStringLiteral("First")));
    m_second = &m_scene->AddObject(Sample::Robe(QStringLiteral("Second")));
}

void TestUserActions::TearDown()
{
    m_scene.reset();
}

SceneEdit TestUserActions::MassEdit(const Object& object, int mass, const char* text) const
{
    const ClothAddress address = Scene::SlotsOf(object).front();
    ClothState cloth = m_scene->FindSlot(address)->cloth;
    cloth.property.mass = mass;
    SceneEdit edit;
    edit.text = QLatin1String(text);
    edit.cloths.push_back({address, {}, cloth});
    return edit;
}

int TestUserActions::Mass(const Object& object) const
{
    return m_scene->FindSlot(Scene::SlotsOf(object).front())->cloth.property.mass;
}

void TestUserActions::editsOfOneActionAreOneStep()
{
    const int before = Mass(*m_first);
    m_scene->BeginUserAction();
    m_scene->Push(MassEdit(*m_first, 22));
    QCOMPARE(m_scene->UndoStack().undoText(), QStringLiteral("Mass"));
    m_scene->Push(MassEdit(*m_second, 33, "Another"));
    m_scene->Push(MassEdit(*m_first, 44));
    QCOMPARE(m_scene->UndoStack().count(), 1);
    QCOMPARE(m_scene->UndoStack().undoText(), QStringLiteral("Several values"));
    m_scene->UndoStack().undo();
    QCOMPARE(Mass(*m_first), before);
    QCOMPARE(Mass(*m_second), before);
    m_scene->UndoStack().redo();
    QCOMPARE(Mass(*m_first), 44);
    QCOMPARE(Mass(*m_second), 33);
}

void TestUserActions::editsOfDifferentActionsAreDifferentSteps()
{
    m_scene->BeginUserAction();
    m_scene->Push(MassEdit(*m_first, 22));
    m_scene->BeginUserAction();
    m_scene->Push(MassEdit(*m_first, 33));
    QCOMPARE(m_scene->UndoStack().count(), 2);
}

void TestUserActions::editsBeforeTheFirstActionAreDifferentSteps()
{
    m_scene->Push(MassEdit(*m_first, 22));
    m_scene->Push(MassEdit(*m_first, 33));
    QCOMPARE(m_scene->UndoStack().count(), 2);
}

void TestUserActions::actionThatChangesNothingInTheEndIsNoStep()
{
    const int before = Mass(*m_first);
    m_scene->BeginUserAction();
    m_scene->Push(MassEdit(*m_first, 22));
    m_scene->Push(MassEdit(*m_first, before));
    QCOMPARE(m_scene->UndoStack().count(), 0);
}

void TestUserActions::editThatCanBeTakenBackStaysAStepOfItsOwn()
{
    m_scene->BeginUserAction();
    m_scene->Push(MassEdit(*m_first, 22));
    SceneEdit question = MassEdit(*m_first, 33);
    question.isStepAnyway = true;
    m_scene->Push(question);
    QCOMPARE(m_scene->UndoStack().count(), 2);
    m_scene->UndoStack().undo();
    SceneEdit refusal = MassEdit(*m_first, 44);
    refusal.refused = true;
    m_scene->Push(refusal);
    QCOMPARE(m_scene->UndoStack().count(), 2);
    m_scene->UndoStack().undo();
    QCOMPARE(Mass(*m_first), 22);
}

void TestUserActions::comingAndGoingStaysAStepOfItsOwn()
{
    const auto deletionOf = [](const Object& object) {
        SceneEdit edit;
        edit.objects.push_back({object.handle, {}, {false, object.state.softCloth, object.state.rigidBody}});
        return edit;
    };
    m_scene->BeginUserAction();
    m_scene->Push(MassEdit(*m_first, 22));
    m_scene->Push(deletionOf(*m_second));
    m_scene->Push(deletionOf(*m_first));
    QCOMPARE(m_scene->UndoStack().count(), 3);
}

void TestUserActions::actionAfterSavingIsAStepOfItsOwn()
{
    m_scene->BeginUserAction();
    m_scene->Push(MassEdit(*m_first, 22));
    m_scene->UndoStack().setClean();
    m_scene->Push(MassEdit(*m_first, 33));
    QCOMPARE(m_scene->UndoStack().count(), 2);
    m_scene->UndoStack().undo();
    QVERIFY(m_scene->UndoStack().isClean());
}

SOFTCLOTH_TEST_WITH(TestUserActions, QCoreApplication)

#include "tst_user_actions.moc"
