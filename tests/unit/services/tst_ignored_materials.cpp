#include "plugin/services/EditService.h"
#include "plugin/services/SceneService.h"
#include "tests/unit/services/ImageTestCase.h"

using Names = std::map<std::wstring, BF::CArrayList<std::wstring>>;

/// SetIgnoredMaterialNames: which materials are offered afterwards.
class TestIgnoredMaterials : public ImageTestCase
{
    Q_OBJECT

private Q_SLOTS:
    void namedMaterialsAreNotOffered_data();
    void namedMaterialsAreNotOffered();
    void ignoredMaterialIsNotActive();
    void softClothSwitchedOnLeavesThemOut();
    void newNamesReplaceTheOldOnes();
    void offeringAMaterialStopsIgnoringIt();
    void undoTakesBackExactly();
    void sameNamesAreNoStep();
    void changeIsTold();
    void unknownObjectIsInvalid();

private:
    BF::Result Ignore(const Names& names) const { return Edits().SetIgnoredMaterialNames(m_hero->handle, names); }
    /// The names of the materials that are offered.
    QStringList Offered() const
    {
        QStringList names;
        for (const Host::Material& material : m_hero->materials) {
            if (Queries().IsMaterialSoftClothEnabled(material.id)) {
                names.append(material.name);
            }
        }
        return names;
    }
};

Q_DECLARE_METATYPE(Names)

void TestIgnoredMaterials::namedMaterialsAreNotOffered_data()
{
    QTest::addColumn<Names>("names");
    QTest::addColumn<QStringList>("offered");
    const QString skin = QStringLiteral("Skin");
    const QString hair = QStringLiteral("Hair");
    const QString skirt = QStringLiteral("Skirt");
    QTest::newRow("none") << Names{} << QStringList{skin, hair, skirt};
    QTest::newRow("one") << Names{{L"Body", {L"Skin"}}} << QStringList{hair, skirt};
    QTest::newRow("two meshes") << Names{{L"Body", {L"Hair"}}, {L"Clothes", {L"Skirt"}}} << QStringList{skin};
    QTest::newRow("all") << Names{{L"Body", {L"Hair", L"Skin"}}, {L"Clothes", {L"Skirt"}}} << QStringList();
    QTest::newRow("on a mesh that has it not") << Names{{L"Clothes", {L"Skin"}}} << QStringList{skin, hair, skirt};
    QTest::newRow("unknown mesh") << Names{{L"Shoes", {L"Skin"}}} << QStringList{skin, hair, skirt};
    QTest::newRow("unknown material") << Names{{L"Body", {L"Fur"}}} << QStringList{skin, hair, skirt};
    QTest::newRow("another letter case") << Names{{L"body", {L"Skin"}}, {L"Body", {L"skin"}}}
                                         << QStringList{skin, hair, skirt};
    QTest::newRow("empty list") << Names{{L"Body", {}}} << QStringList{skin, hair, skirt};
    QTest::newRow("the same twice") << Names{{L"Body", {L"Skin", L"Skin"}}} << QStringList{hair, skirt};
}

void TestIgnoredMaterials::namedMaterialsAreNotOffered()
{
    QFETCH(Names, names);
    QFETCH(QStringList, offered);
    QCOMPARE(Ignore(names), BF::Results::Success);
    QCOMPARE(Offered(), offered);
}

void TestIgnoredMaterials::ignoredMaterialIsNotActive()
{
    m_host->SetSoftClothActive(m_hero->handle, true);
    bool active = false;
    Queries().IsSoftClothActive(m_address.object, m_address.mesh, m_address.material, active);
    QVERIFY(active);
    Ignore({{L"Body", {L"Skin"}}});
    Queries().IsSoftClothActive(m_address.object, m_address.mesh, m_address.material, active);
    QVERIFY(!active);
    Ignore({});
    Queries().IsSoftClothActive(m_address.object, m_address.mesh, m_address.material, active);
    QVERIFY(active);
}

void TestIgnoredMaterials::softClothSwitchedOnLeavesThemOut()
{
    Ignore({{L"Body", {L"Skin"}}});
    m_host->SetSoftClothActive(m_hero->handle, true);
    const auto slots = Host::Scene::SlotsOf(*m_hero);
    QVERIFY(!CurrentScene().FindSlot(slots.at(0))->cloth.active);
    QVERIFY(CurrentScene().FindSlot(slots.at(1))->cloth.active);
}

void TestIgnoredMaterials::newNamesReplaceTheOldOnes()
{
    Ignore({{L"Body", {L"Skin"}}});
    Ignore({{L"Clothes", {L"Skirt"}}});
    QCOMPARE(Offered(), (QStringList{QStringLiteral("Skin"), QStringLiteral("Hair")}));
}

void TestIgnoredMaterials::offeringAMaterialStopsIgnoringIt()
{
    const Names names{{L"Body", {L"Skin", L"Hair"}}};
    Ignore(names);
    const int steps = CurrentScene().UndoStack().count();
    QCOMPARE(Edits().SetMaterialSoftClothEnabled(m_address.material, true), BF::Results::Success);
    QCOMPARE(Offered(), (QStringList{QStringLiteral("Skin"), QStringLiteral("Skirt")}));
    QCOMPARE(CurrentScene().UndoStack().count(), steps + 1);
    m_host->Undo();
    QCOMPARE(Offered(), QStringList{QStringLiteral("Skirt")});
    QCOMPARE(Edits().SetMaterialSoftClothEnabled(m_address.material, false), BF::Results::Success);
    QCOMPARE(Offered(), QStringList{QStringLiteral("Skirt")});
}

void TestIgnoredMaterials::undoTakesBackExactly()
{
    Ignore({{L"Body", {L"Hair"}}});
    const Host::ObjectState before = m_hero->state;
    Ignore({{L"Body", {L"Skin"}}});
    const Host::ObjectState after = m_hero->state;
    QVERIFY(!(before == after));
    m_host->Undo();
    QVERIFY(m_hero->state == before);
    m_host->Redo();
    QVERIFY(m_hero->state == after);
}

void TestIgnoredMaterials::sameNamesAreNoStep()
{
    Ignore({{L"Body", {L"Hair"}}});
    QCOMPARE(Ignore({{L"Body", {L"Hair"}}}), BF::Results::Success);
    QCOMPARE(CurrentScene().UndoStack().count(), 1);
}

void TestIgnoredMaterials::changeIsTold()
{
    m_host->Journal().Clear();
    Ignore({{L"Body", {L"Hair"}}});
    QCOMPARE(m_host->Journal().ToText(),
             QStringLiteral("Edit.SetIgnoredMaterialNames(\"Hero\", {\"Body\": [\"Hair\"]}) -> 0\n"
                            "  Event.ObjectDataChanged([\"Hero\"], 8)\n"));
    m_host->Journal().Clear();
    Ignore({{L"Body", {L"Hair"}}});
    QCOMPARE(m_host->Journal().Entries().size(), 1);
}

void TestIgnoredMaterials::unknownObjectIsInvalid()
{
    QCOMPARE(Edits().SetIgnoredMaterialNames(nullptr, {}), BF::Results::InvalidArgument);
}

SOFTCLOTH_TEST(TestIgnoredMaterials)

#include "tst_ignored_materials.moc"
