#include "host/scene/SceneJson.h"
#include "host/services/HostApplication.h"
#include "plugin/services/EditService.h"

#include "tests/support/TestCase.h"
#include "tests/unit/simulation/PreviewSamples.h"

#include <QApplication>
#include <QJsonDocument>

#include <memory>

using Host::ClothPreview;

/// Edits of the panel, through the host's services, while the preview plays.
class TestPreviewEdits : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void editOfOneMaterialReachesItAlone();
    void editOfAllMaterialsReachesAll();
    void ignoredMaterialStopsSimulating();
    void undoReachesThePreview();
    void playingLeavesSceneAndJournalAlone();

protected:
    void SetUp() override;
    void TearDown() override { m_host.reset(); }

private:
    Host::PreviewModel Model() const
    {
        return Host::MakePreviewModel(*m_object, [](const Host::Texture&) { return QImage(); });
    }
    /// What the two materials have as their values.
    const Host::ClothValues& ValuesOf(const Host::PreviewModel& model, std::size_t slot) const
    {
        return model.meshes[0].materialSlots[slot].values;
    }
    BF::Result SetDamping(float damping, bool all) const
    {
        MV::SoftClothPropertyData data;
        data.damping = damping;
        return m_host->GetEditService()->SetSoftClothProperty(m_left.object, m_left.mesh, m_left.material,
                                                              MV::ESoftClothPropertyType::Damping, data, all);
    }

    std::unique_ptr<Host::HostApplication> m_host;
    Host::Object* m_object = nullptr;
    Host::ClothAddress m_left;
};

void TestPreviewEdits::SetUp()
{
    m_host = std::make_unique<Host::HostApplication>();
    m_host->Answers().unattended = true;
    m_object = &m_host->CurrentScene().AddObject(PreviewSamples::TwoSquares());
    for (Host::MaterialSlot& slot : m_object->meshes[0].materialSlots) {
        slot.cloth.active = true;
    }
    m_left = Host::Scene::SlotsOf(*m_object).front();
}

void TestPreviewEdits::editOfOneMaterialReachesItAlone()
{
    const float before = ValuesOf(Model(), 1).property.damping;
    QCOMPARE(SetDamping(0.9F, false), BF::Results::Success);
    QCOMPARE(ValuesOf(Model(), 0).property.damping, 0.9F);
    QCOMPARE(ValuesOf(Model(), 1).property.damping, before);
}

void TestPreviewEdits::editOfAllMaterialsReachesAll()
{
    QCOMPARE(SetDamping(0.9F, true), BF::Results::Success);
    QCOMPARE(ValuesOf(Model(), 0).property.damping, 0.9F);
    QCOMPARE(ValuesOf(Model(), 1).property.damping, 0.9F);
    MV::SoftClothWindData wind;
    wind.externalAcceleration = {0.0F, 0.0F, 500.0F};
    m_host->GetEditService()->SetSoftClothWind(m_left.object, m_left.mesh, m_left.material, MV::ESoftClothWindType::All,
                                               wind, true);
    m_host->GetEditService()->SetUseGlobalGravity(m_left.object, m_left.mesh, m_left.material, false, true);
    ClothPreview preview(Model());
    PreviewSamples::Run(preview, 0.5);
    for (const QVector3D& place : PreviewSamples::Positions(preview)) {
        QVERIFY(place.z() > 10.0F); // both are blown away
        QVERIFY(place.y() > -25.0F);
    }
}

void TestPreviewEdits::ignoredMaterialStopsSimulating()
{
    ClothPreview preview(Model());
    PreviewSamples::Run(preview, 0.3);
    m_host->GetEditService()->SetIgnoredMaterialNames(m_object->handle, {{L"Sheet", {L"Right"}}});
    preview.SetModel(Model());
    PreviewSamples::Run(preview, 0.1);
    const auto positions = PreviewSamples::Positions(preview);
    QVERIFY(positions[0].y() < m_object->meshes[0].positions[0].y());
    QVERIFY(positions[161] == m_object->meshes[0].positions[161]);
    QVERIFY(preview.Time() > 0.39);
}

void TestPreviewEdits::undoReachesThePreview()
{
    const float before = ValuesOf(Model(), 0).property.damping;
    SetDamping(0.9F, true);
    m_host->Undo();
    QCOMPARE(ValuesOf(Model(), 0).property.damping, before);
    QVERIFY(Host::SameStructure(Model(), Model()));
}

void TestPreviewEdits::playingLeavesSceneAndJournalAlone()
{
    SetDamping(0.9F, true);
    m_host->Journal().Clear();
    const QByteArray scene = QJsonDocument(Host::SceneToJson(m_host->CurrentScene(), QDir())).toJson();
    ClothPreview preview(Model());
    preview.SetMotion({Host::MotionKind::Walk, 0, true});
    PreviewSamples::Run(preview, 0.5);
    preview.SetModel(Model());
    PreviewSamples::Run(preview, 0.5);
    QVERIFY(m_host->Journal().Entries().isEmpty());
    QCOMPARE(QJsonDocument(Host::SceneToJson(m_host->CurrentScene(), QDir())).toJson(), scene);
}

SOFTCLOTH_TEST_WITH(TestPreviewEdits, QApplication)

#include "tst_preview_edits.moc"
