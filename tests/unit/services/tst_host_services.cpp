#include "host/scene/Handles.h"
#include "host/services/HostApplication.h"
#include "plugin/services/EditService.h"
#include "plugin/services/HotKeyService.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/SoftClothService.h"
#include "plugin/services/UiService.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include <functional>

using ServiceCall = std::function<BF::Result(MV::CSceneService&, MV::CEditService&, BF::CHandle*, std::size_t)>;
Q_DECLARE_METATYPE(ServiceCall)

/// The stand-in host's services over a scene: queries, edits, undo, answers given in advance.
class TestHostServices : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void unknownThingsAreInvalid_data();
    void unknownThingsAreInvalid();
    void listsFollowTheModel();
    void namesOfObjectsMeshesAndMaterials();
    void materialIndices();
    void folders();
    void collisionFieldIsWritten_data();
    void collisionFieldIsWritten();
    void unknownSelectorIsInvalid();
    void writeReachesAllMaterialsOnDemand();
    void everyWriteIsOneUndoStep();
    void writeOfTheSameValueIsNoStep();
    void softClothIsSwitched();
    void disabledMaterialIsNotActive();
    void undoLastEditTakesBackOrAnswersNothingDone();
    void modesAreStored();
    void messageBoxIsAnsweredInAdvance();
    void messageBoxWithoutAnswerIsCancelledWhenUnattended();
    void messageBoxIsRealOtherwise();
    void fileDialogsAreAnsweredInAdvance();
    void escapeActionIsRegisteredAndSwitched();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    MV::CSceneService& SceneOf() { return *m_host->GetSceneService(); }
    MV::CEditService& Edit() { return *m_host->GetEditService(); }
    Host::ClothState& Cloth(std::size_t index)
    {
        return m_host->CurrentScene().FindSlot(Host::Scene::SlotsOf(*m_hero).at(index))->cloth;
    }

    std::unique_ptr<Host::HostApplication> m_host;
    Host::Object* m_hero = nullptr;
    Host::ClothAddress m_first;
};

void TestHostServices::SetUp()
{
    m_host = std::make_unique<Host::HostApplication>();
    m_hero = &m_host->CurrentScene().AddObject(SampleModels::Hero());
    m_first = Host::Scene::SlotsOf(*m_hero).front();
}

void TestHostServices::TearDown()
{
    m_host.reset();
}

void TestHostServices::unknownThingsAreInvalid_data()
{
    QTest::addColumn<ServiceCall>("call");
    const auto row = [](const char* name, const ServiceCall& call) { QTest::newRow(name) << call; };
    using S = MV::CSceneService;
    using E = MV::CEditService;
    using H = BF::CHandle*;
    using I = std::size_t;
    row("GetObjectType", [](S& s, E&, H h, I) {
        quint32 v = 0;
        return s.GetObjectType(h, v);
    });
    row("GetObjectKind", [](S& s, E&, H h, I) {
        int v = 0;
        return s.GetObjectKind(h, v);
    });
    row("GetMeshHandle", [](S& s, E&, H, I id) {
        H v = nullptr;
        return s.GetMeshHandle(id, v);
    });
    row("GetObjectName", [](S& s, E&, H h, I) {
        std::wstring v;
        return s.GetObjectName(v, h);
    });
    row("GetMeshList", [](S& s, E&, H h, I) {
        BF::CArrayList<I> v;
        return s.GetMeshList(h, v);
    });
    row("GetMaterialList", [](S& s, E&, H, I id) {
        BF::CArrayList<I> v;
        return s.GetMaterialList(id, v, 0);
    });
    row("GetMaterialIndex", [](S& s, E&, H h, I id) {
        I v = 0;
        return s.GetMaterialIndex(h, id, v);
    });
    row("IsPhysicsActive", [](S& s, E&, H h, I) {
        bool v = false;
        return s.IsPhysicsActive(h, 3, v);
    });
    row("GetSoftClothConvertState", [](S& s, E&, H h, I) {
        int v = 0;
        return s.GetSoftClothConvertState(h, v);
    });
    row("IsPanelBlockedForObject", [](S& s, E&, H h, I) {
        bool v = false;
        return s.IsPanelBlockedForObject(h, v);
    });
    row("IsSoftClothActive", [](S& s, E&, H h, I id) {
        bool v = false;
        return s.IsSoftClothActive(h, id, id, v);
    });
    row("GetUseGlobalGravity", [](S& s, E&, H h, I id) {
        bool v = false;
        return s.GetUseGlobalGravity(h, id, id, v, false);
    });
    row("GetSoftClothProperty", [](S& s, E&, H h, I id) {
        MV::SoftClothPropertyData v;
        return s.GetSoftClothProperty(h, id, id, v);
    });
    row("GetSoftClothCollision", [](S& s, E&, H h, I id) {
        MV::SoftClothCollisionData v;
        return s.GetSoftClothCollision(h, id, id, v);
    });
    row("GetSoftClothWind", [](S& s, E&, H h, I id) {
        MV::SoftClothWindData v;
        return s.GetSoftClothWind(h, id, id, v);
    });
    row("ConvertToRigidBody", [](S&, E& e, H h, I) { return e.ConvertToRigidBody(h); });
    row("CancelMultiMaterialSoftCloth", [](S&, E& e, H h, I) { return e.CancelMultiMaterialSoftCloth(h); });
    row("SetPhysicsActive", [](S&, E& e, H h, I) { return e.SetPhysicsActive(h, 3, true, true, true); });
    row("SetUseGlobalGravity", [](S&, E& e, H h, I id) { return e.SetUseGlobalGravity(h, id, id, true, true); });
    row("SetSoftClothProperty", [](S&, E& e, H h, I id) {
        return e.SetSoftClothProperty(h, id, id, MV::ESoftClothPropertyType::All, {}, true);
    });
    row("SetSoftClothCollision", [](S&, E& e, H h, I id) {
        return e.SetSoftClothCollision(h, id, id, MV::ESoftClothCollisionType::All, {}, true);
    });
    row("SetSoftClothWind",
        [](S&, E& e, H h, I id) { return e.SetSoftClothWind(h, id, id, MV::ESoftClothWindType::All, {}, true); });
    row("SetMaterialSoftClothEnabled", [](S&, E& e, H, I id) { return e.SetMaterialSoftClothEnabled(id, true); });
}

void TestHostServices::unknownThingsAreInvalid()
{
    QFETCH(const ServiceCall, call);
    const Host::Id unknown = Host::NewId();
    QCOMPARE(call(SceneOf(), Edit(), nullptr, 0), BF::Results::InvalidArgument);
    QCOMPARE(call(SceneOf(), Edit(), Host::ToHandle(unknown), unknown), BF::Results::InvalidArgument);
    QVERIFY(!m_host->CurrentScene().UndoStack().canUndo());
}

void TestHostServices::listsFollowTheModel()
{
    BF::CArrayList<std::size_t> meshes;
    QCOMPARE(SceneOf().GetMeshList(m_hero->handle, meshes), BF::Results::Success);
    QCOMPARE(meshes.Size(), std::size_t(2));
    BF::CArrayList<std::size_t> materials;
    QCOMPARE(SceneOf().GetMaterialList(meshes[0], materials, 0), BF::Results::Success);
    QCOMPARE(materials.Size(), std::size_t(2));
    QCOMPARE(SceneOf().GetMaterialList(meshes[1], materials, 0), BF::Results::Success);
    QCOMPARE(materials.Size(), std::size_t(1));
}

void TestHostServices::namesOfObjectsMeshesAndMaterials()
{
    std::wstring name;
    QCOMPARE(SceneOf().GetObjectName(name, m_hero->handle), BF::Results::Success);
    QCOMPARE(QString::fromStdWString(name), QStringLiteral("Hero"));
    QCOMPARE(SceneOf().GetObjectName(name, Host::ToHandle(m_first.mesh)), BF::Results::Success);
    QCOMPARE(QString::fromStdWString(name), QStringLiteral("Body"));
    QCOMPARE(SceneOf().GetObjectName(name, Host::ToHandle(m_first.material)), BF::Results::Success);
    QCOMPARE(QString::fromStdWString(name), QStringLiteral("Skin"));
}

void TestHostServices::materialIndices()
{
    const std::size_t hair = m_hero->materials.at(1).id;
    std::size_t index = 99;
    QCOMPARE(SceneOf().GetMaterialIndex(m_hero->handle, hair, index), BF::Results::Success);
    QCOMPARE(index, std::size_t(1));
    QCOMPARE(SceneOf().GetMaterialIdByIndex(m_hero->handle, 1), hair);
    QCOMPARE(SceneOf().GetMaterialIdByIndex(m_hero->handle, 3), std::size_t(0));
    QCOMPARE(SceneOf().GetMaterialIdByIndex(nullptr, 0), std::size_t(0));
}

void TestHostServices::folders()
{
    std::wstring path;
    QCOMPARE(SceneOf().GetDataFolderPath(path, 3), BF::Results::InvalidArgument);
    m_host->SetDataFolder(QStringLiteral("data/folder"));
    QCOMPARE(SceneOf().GetDataFolderPath(path, 3), BF::Results::Success);
    QVERIFY(QString::fromStdWString(path).endsWith(QStringLiteral("folder") + QDir::separator()));
    QCOMPARE(SceneOf().GetDataFolderPath(path, 4), BF::Results::InvalidArgument);
    QString folder;
    QTemporaryDir home; // in which there is no folder for documents
    const QByteArray formerHome = qgetenv("HOME");
    qputenv("HOME", QFile::encodeName(home.path()));
    QCOMPARE(SceneOf().GetDefaultFolder(folder, 72), BF::Results::Success);
    qputenv("HOME", formerHome);
    QVERIFY2(QFileInfo(folder).isDir(), qPrintable(folder));
    QCOMPARE(SceneOf().GetDefaultFolder(folder, 1), BF::Results::InvalidArgument);
}

void TestHostServices::collisionFieldIsWritten_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("rigid");
    QTest::addColumn<bool>("self");
    QTest::addColumn<float>("rigidMargin");
    QTest::addColumn<float>("selfMargin");
    QTest::newRow("rigid") << 0 << false << false << 1.0F << 2.0F;
    QTest::newRow("self") << 1 << true << true << 1.0F << 2.0F;
    QTest::newRow("rigid margin") << 2 << true << false << 8.0F << 2.0F;
    QTest::newRow("self margin") << 3 << true << false << 1.0F << 9.0F;
    QTest::newRow("all") << 4 << false << true << 8.0F << 9.0F;
}

void TestHostServices::collisionFieldIsWritten()
{
    QFETCH(const int, type);
    QFETCH(const bool, rigid);
    QFETCH(const bool, self);
    QFETCH(const float, rigidMargin);
    QFETCH(const float, selfMargin);
    Cloth(0).collision = {true, false, 1, 2};
    const MV::SoftClothCollisionData sent{false, true, 8, 9};
    QCOMPARE(Edit().SetSoftClothCollision(m_first.object, m_first.mesh, m_first.material,
                                          MV::ESoftClothCollisionType(type), sent, false),
             BF::Results::Success);
    const MV::SoftClothCollisionData& stored = Cloth(0).collision;
    QCOMPARE(stored.collideWithRigid, rigid);
    QCOMPARE(stored.selfCollision, self);
    QCOMPARE(stored.rigidMargin, rigidMargin);
    QCOMPARE(stored.selfMargin, selfMargin);
}

void TestHostServices::unknownSelectorIsInvalid()
{
    QCOMPARE(Edit().SetSoftClothCollision(m_first.object, m_first.mesh, m_first.material,
                                          MV::ESoftClothCollisionType(5), {}, true),
             BF::Results::InvalidArgument);
    QCOMPARE(Edit().SetSoftClothProperty(m_first.object, m_first.mesh, m_first.material, MV::ESoftClothPropertyType(8),
                                         {}, false),
             BF::Results::InvalidArgument);
    QVERIFY(!m_host->CurrentScene().UndoStack().canUndo());
}

void TestHostServices::writeReachesAllMaterialsOnDemand()
{
    const MV::SoftClothCollisionData sent{true, false, 6, 0};
    const auto write = [&](bool all) {
        Edit().SetSoftClothCollision(m_first.object, m_first.mesh, m_first.material,
                                     MV::ESoftClothCollisionType::RigidMargin, sent, all);
    };
    write(false);
    QCOMPARE(Cloth(0).collision.rigidMargin, 6.0F);
    QCOMPARE(Cloth(2).collision.rigidMargin, 0.0F);
    write(true);
    QCOMPARE(Cloth(1).collision.rigidMargin, 6.0F);
    QCOMPARE(Cloth(2).collision.rigidMargin, 6.0F);
}

void TestHostServices::everyWriteIsOneUndoStep()
{
    Edit().SetSoftClothCollision(m_first.object, m_first.mesh, m_first.material, MV::ESoftClothCollisionType::All,
                                 {false, true, 3, 4}, true);
    Edit().SetUseGlobalGravity(m_first.object, m_first.mesh, m_first.material, false, true);
    QCOMPARE(m_host->CurrentScene().UndoStack().count(), 2);
    m_host->Undo();
    QVERIFY(Cloth(2).useGlobalGravity);
    QCOMPARE(Cloth(2).collision.selfMargin, 4.0F);
    m_host->Undo();
    for (const std::size_t slot : {0, 1, 2}) {
        QCOMPARE(Cloth(slot).collision.selfMargin, 0.0F);
    }
    m_host->Redo();
    QCOMPARE(Cloth(1).collision.rigidMargin, 3.0F);
}

void TestHostServices::writeOfTheSameValueIsNoStep()
{
    Edit().SetSoftClothCollision(m_first.object, m_first.mesh, m_first.material, MV::ESoftClothCollisionType::All,
                                 Cloth(0).collision, false);
    QCOMPARE(m_host->CurrentScene().UndoStack().count(), 0);
}

void TestHostServices::softClothIsSwitched()
{
    bool active = true;
    SceneOf().IsPhysicsActive(m_hero->handle, 3, active);
    QVERIFY(!active);
    QCOMPARE(Edit().SetPhysicsActive(m_hero->handle, 2, true, true, true), BF::Results::InvalidArgument);
    QCOMPARE(
        m_host->GetSoftClothService()->ApplySingleMaterialSoftCloth(m_first.object, m_first.mesh, m_first.material),
        BF::Results::Success);
    QCOMPARE(Edit().SetPhysicsActive(m_hero->handle, 3, true, true, true), BF::Results::Success);
    SceneOf().IsPhysicsActive(m_hero->handle, 3, active);
    QVERIFY(active);
    SceneOf().IsSoftClothActive(m_first.object, m_first.mesh, m_first.material, active);
    QVERIFY(active);
    QVERIFY(!Cloth(2).active);
    QCOMPARE(Edit().ConvertToRigidBody(m_hero->handle), BF::Results::Success);
    SceneOf().IsPhysicsActive(m_hero->handle, 3, active);
    QVERIFY(!active);
}

void TestHostServices::disabledMaterialIsNotActive()
{
    m_host->SetSoftClothActive(m_hero->handle, true);
    QVERIFY(SceneOf().IsMaterialSoftClothEnabled(m_first.material));
    QCOMPARE(Edit().SetMaterialSoftClothEnabled(m_first.material, false), BF::Results::Success);
    QVERIFY(!SceneOf().IsMaterialSoftClothEnabled(m_first.material));
    bool active = true;
    SceneOf().IsSoftClothActive(m_first.object, m_first.mesh, m_first.material, active);
    QVERIFY(!active);
    QVERIFY(!SceneOf().IsMaterialSoftClothEnabled(0));
}

void TestHostServices::undoLastEditTakesBackOrAnswersNothingDone()
{
    QCOMPARE(Edit().UndoLastEdit(), BF::Results::NothingDone);
    Edit().SetUseGlobalGravity(m_first.object, m_first.mesh, m_first.material, false, false);
    QVERIFY(!Cloth(0).useGlobalGravity);
    QCOMPARE(Edit().UndoLastEdit(), BF::Results::Success);
    QVERIFY(Cloth(0).useGlobalGravity);
}

void TestHostServices::modesAreStored()
{
    MV::CUiService& ui = *m_host->GetUiService();
    QCOMPARE(ui.SetDialogMode(MV::EDialogMode::WeightMap), BF::Results::Success);
    QCOMPARE(SceneOf().GetDialogMode(), MV::EDialogMode::WeightMap);
    ui.ChangePickMode(MV::EPickMode::Material);
    QCOMPARE(SceneOf().GetCurrentPickMode(), MV::EPickMode::Material);
    ui.CancelPickMode();
    QCOMPARE(SceneOf().GetCurrentPickMode(), MV::EPickMode::None);
}

void TestHostServices::messageBoxIsAnsweredInAdvance()
{
    m_host->Answers().AddButton(0x400000);
    m_host->Answers().AddButton(0x400);
    MV::CUiService& ui = *m_host->GetUiService();
    QCOMPARE(ui.ShowMessageBox(QStringLiteral("?"), {}, nullptr, 2, 0x400400, 0x400), 0x400000);
    QCOMPARE(ui.ShowMessageBox(QStringLiteral("?"), {}, nullptr, 2, 0x400400, 0x400), 0x400);
    QVERIFY(m_host->Answers().IsEmpty());
}

void TestHostServices::messageBoxWithoutAnswerIsCancelledWhenUnattended()
{
    m_host->Answers().unattended = true;
    MV::CUiService& ui = *m_host->GetUiService();
    QCOMPARE(ui.ShowMessageBox({}, {}, nullptr, 2, 0x400400, 0x400), 0x400000);
    QCOMPARE(ui.ShowMessageBox({}, {}, nullptr, 2, 0x400, 0), 0x400);
}

void TestHostServices::messageBoxIsRealOtherwise()
{
    QString shown;
    QTimer::singleShot(0, this, [&shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        shown = box->text();
        box->button(QMessageBox::Ok)->click();
    });
    QCOMPARE(m_host->GetUiService()->ShowMessageBox(QStringLiteral("Really?"), QStringLiteral("Title"), nullptr, 2,
                                                    0x400400, 0x400),
             0x400);
    QCOMPARE(shown, QStringLiteral("Really?"));
}

void TestHostServices::fileDialogsAreAnsweredInAdvance()
{
    m_host->Answers().AddFile(QStringLiteral("in.png"));
    m_host->Answers().AddFile(QStringLiteral("out.png"));
    QString path;
    QCOMPARE(SceneOf().GetOpenImageFileName(path, 4, 71, 4), BF::Results::Success);
    QCOMPARE(path, QStringLiteral("in.png"));
    SceneOf().GetSaveImageFileName(path, 4, 71, 4, {});
    QCOMPARE(path, QStringLiteral("out.png"));
    m_host->Answers().unattended = true;
    SceneOf().GetOpenImageFileName(path, 4, 71, 4);
    QCOMPARE(path, QString());
}

void TestHostServices::escapeActionIsRegisteredAndSwitched()
{
    MV::CHotKeyService& hotKeys = *m_host->GetHotKeyService();
    QWidget owner;
    QAction action;
    QCOMPARE(hotKeys.RegisterEscapeAction(1, &action, &owner), BF::Results::InvalidArgument);
    const quint64 registration = hotKeys.RegisterSectionHotKeys({L"Modify"}, L"Owner");
    QVERIFY(registration != 0);
    QVERIFY(hotKeys.RegisterSectionHotKeys({}, L"Owner") != registration);
    QCOMPARE(hotKeys.RegisterEscapeAction(registration, &action, &owner), BF::Results::Success);
    QVERIFY(owner.actions().contains(&action));
    QCOMPARE(action.shortcut(), QKeySequence(Qt::Key_Escape));
    QCOMPARE(hotKeys.DisableHotKeyAction(&action), BF::Results::Success);
    QVERIFY(!action.isEnabled());
    QCOMPARE(hotKeys.EnableHotKeyAction(&action), BF::Results::Success);
    QVERIFY(action.isEnabled());
    QCOMPARE(hotKeys.EnableHotKeyAction(nullptr), BF::Results::InvalidArgument);
}

SOFTCLOTH_TEST(TestHostServices)
#include "tst_host_services.moc"
