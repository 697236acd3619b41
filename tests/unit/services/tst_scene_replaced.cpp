#include "host/services/HostApplication.h"
#include "host/services/WeightImages.h"
#include "plugin/services/EditService.h"
#include "plugin/services/FileService.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "tests/support/Files.h"
#include "tests/support/SampleModels.h"
#include "tests/support/TestCase.h"

#include <QTemporaryDir>

#include <functional>

namespace {

using Application = Host::HostApplication;
using Handle = BF::CHandle*;
using Change = std::function<void(Application&, Handle)>;

} // namespace

Q_DECLARE_METATYPE(Change)

/// Whoever hears of an event may open another scene: what goes on after the event must not touch the old one. Mostly
/// for the sanitizers.
class TestSceneReplaced : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void changeSurvivesAnotherSceneInsideItsEvents_data();
    void changeSurvivesAnotherSceneInsideItsEvents();
    void changeSurvivesADeletionInsideItsEvents_data() { changeSurvivesAnotherSceneInsideItsEvents_data(); }
    void changeSurvivesADeletionInsideItsEvents();

private:
    void SetUp() override
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_profile = Files::Write(m_folder->filePath(QStringLiteral("soft.ini")), "useGlobalGravity=false\n");
    }

    /// Runs \p change again and again in new hosts, and \p inside in its first event, its second one and so on.
    /// \param check  what is to be so afterwards
    void RunWithEvents(const Change& change, const Change& inside, const Change& check);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_profile;
};

namespace {

template <class... Signals>
void ConnectAll(MV::CEventSender& sender, const std::function<void()>& listener, Signals... eventSignals)
{
    (QObject::connect(&sender, eventSignals, &sender, [listener] { listener(); }), ...);
}

/// Also where the host tells the user of a problem: there is a message box then, and everything may happen behind it.
void ListenToAll(Application& host, const std::function<void()>& listener)
{
    using S = MV::CEventSender;
    QObject::connect(&host, &Application::ProblemTold, host.GetEventSender(), [listener] { listener(); });
    ConnectAll(*host.GetEventSender(), listener, &S::ObjectSelectionChanged, &S::AfterFileLoaded, &S::FileLoaded,
               &S::ObjectDeleted, &S::PhysicsEngineChanged, &S::LaunchedImageChanged, &S::DialogModeChanged,
               &S::ObjectDataChanged, &S::HierarchyChanged, &S::AboutToConvertPhysicsObjectType, &S::Played,
               &S::Stopped, &S::UndoRedoDone, &S::PickedModeChanged, &S::PhysicsSoftClothMultiMaterialsDetected,
               &S::ImageAsyncLoadStart, &S::ImageAsyncLoadAllDone);
}

} // namespace

void TestSceneReplaced::changeSurvivesAnotherSceneInsideItsEvents_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char* name, const Change& change) { QTest::newRow(name) << change; };
    row("add model", [](Application& host, Handle) { host.AddModel(SampleModels::Hero()); });
    row("delete", [](Application& host, Handle hero) { host.DeleteObjects({hero}); });
    row("select none", [](Application& host, Handle) { host.Select({}); });
    row("undo", [](Application& host, Handle) { host.Undo(); });
    row("take back", [](Application& host, Handle) { host.GetEditService()->UndoLastEdit(); });
    row("another scene",
        [](Application& host, Handle) { host.ReplaceScene(std::make_unique<Host::Scene>(), MV::EFileType::Scene); });
    row("engine", [](Application& host, Handle) { host.SetPhysicsEngine(2); });
    row("playing", [](Application& host, Handle) { host.SetPlaying(true); });
    row("dialog mode",
        [](Application& host, Handle) { host.GetUiService()->SetDialogMode(MV::EDialogMode::WeightMap); });
    row("pick mode", [](Application& host, Handle) { host.GetUiService()->ChangePickMode(MV::EPickMode::Material); });
    row("traits", [](Application& host, Handle hero) { host.SetTraits(hero, {5, 0, 3, false, false}); });
    row("convert state", [](Application& host, Handle hero) { host.SetConvertState(hero, 1); });
    row("soft cloth off", [](Application& host, Handle hero) { host.SetSoftClothActive(hero, false); });
    row("soft cloth on", [](Application& host, Handle hero) {
        host.CancelSoftCloth(hero);
        host.ConvertToSoftCloth(hero);
    });
    row("cancel", [](Application& host, Handle hero) { host.GetEditService()->CancelMultiMaterialSoftCloth(hero); });
    row("rigid body", [](Application& host, Handle hero) { host.GetEditService()->ConvertToRigidBody(hero); });
    row("ignored names", [](Application& host, Handle hero) {
        host.GetEditService()->SetIgnoredMaterialNames(hero, {{L"Body", {L"Skin"}}});
    });
    row("material out of the cloth", [](Application& host, Handle hero) {
        const Host::Object* found = host.CurrentScene().FindObject(hero);
        host.GetEditService()->SetMaterialSoftClothEnabled(found ? found->materials[0].id : 0, false);
    });
    row("material name", [](Application& host, Handle hero) {
        const Host::Object* found = host.CurrentScene().FindObject(hero);
        host.RenameMaterial(found ? found->materials[0].id : 0, QStringLiteral("New"));
    });
    row("profile",
        [this](Application& host, Handle) { host.GetFileService()->LoadSoftIniProfile(m_profile.toStdWString()); });
    const auto onSkin = [](Application& host, Handle hero, const auto& use) {
        if (const Host::Object* found = host.CurrentScene().FindObject(hero)) {
            use(found->meshes[0].id, found->materials[0].id);
        }
    };
    row("missing weight image", [onSkin](Application& host, Handle hero) {
        onSkin(host, hero, [&](Host::Id mesh, Host::Id material) {
            host.GetFileService()->LoadWeightImage(hero, mesh, material, L"/no/such/image.png", 2);
            host.GetEditService()->UndoLastEdit();
        });
    });
    row("missing weight image that is embedded", [onSkin](Application& host, Handle hero) {
        onSkin(host, hero, [&](Host::Id mesh, Host::Id material) {
            host.CurrentScene().FindSlot({hero, mesh, material})->cloth.weight.image.filePath =
                QStringLiteral("/no/such/image.png");
            host.GetEditService()->EmbedWeightImage(hero, mesh, material);
        });
    });
    row("reason in the box after an export", [onSkin](Application& host, Handle hero) {
        onSkin(host, hero, [&](Host::Id, Host::Id material) {
            host.CurrentScene().FindMaterial(material)->textures[MV::ETextureChannel::Diffuse].filePath =
                QStringLiteral("/no/such/image.png");
            BF::CArrayList<std::wstring> files;
            host.GetSceneService()->ExportUvTexture(hero, 0, MV::ETextureChannel::Diffuse, files);
            host.Answers().unattended = true;
            host.GetUiService()->ShowMessageBox({}, {}, nullptr, 1, 0x400, 0);
        });
    });
    row("painted layout that is gone", [onSkin](Application& host, Handle hero) {
        onSkin(host, hero, [&](Host::Id mesh, Host::Id material) {
            host.Weights().TakePainted({{hero, mesh, material}}, QStringLiteral("/no/such/image.png"));
        });
    });
    row("images", [](Application& host, Handle hero) {
        if (Host::Object* found = host.CurrentScene().FindObject(hero)) {
            found->materials[0].textures[MV::ETextureChannel::Diffuse].filePath = QStringLiteral("/no/such/image.png");
        }
        host.LoadImages(hero);
        QCoreApplication::processEvents();
    });
}

void TestSceneReplaced::RunWithEvents(const Change& change, const Change& inside, const Change& check)
{
    int heard = 0;
    for (int when = 1; heard >= when - 1; ++when) {
        Host::HostApplication host;
        host.Answers().unattended = true;
        const Handle hero = host.AddModel(SampleModels::Hero());
        host.SetSoftClothActive(hero, true);
        heard = 0;
        bool isInside = false;
        ListenToAll(host, [&] {
            if (!isInside && ++heard == when) {
                isInside = true; // what happens in here sends events, too
                inside(host, hero);
                isInside = false;
            }
        });
        change(host, hero);
        if (heard >= when) {
            check(host, hero);
        }
    }
    QVERIFY(heard > 0);
}

void TestSceneReplaced::changeSurvivesAnotherSceneInsideItsEvents()
{
    QFETCH(const Change, change);
    RunWithEvents(
        change,
        [](Application& host, Handle) {
            auto scene = std::make_unique<Host::Scene>();
            scene->AddObject(SampleModels::Hero());
            host.ReplaceScene(std::move(scene), MV::EFileType::Scene);
        },
        [](Application& host, Handle hero) {
            QVERIFY(!host.CurrentScene().FindObject(hero));
            QVERIFY(host.CurrentScene().Selection().isEmpty());
            QCOMPARE(host.CurrentScene().UndoStack().count(), 0);
        });
}

void TestSceneReplaced::changeSurvivesADeletionInsideItsEvents()
{
    QFETCH(const Change, change);
    RunWithEvents(
        change, [](Application& host, Handle hero) { host.DeleteObjects({hero}); },
        [](Application& host, Handle hero) { QVERIFY(!host.CurrentScene().Selection().contains(hero)); });
}

SOFTCLOTH_TEST(TestSceneReplaced)
#include "tst_scene_replaced.moc"
