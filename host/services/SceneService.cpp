#include "host/services/SceneService.h"

#include "host/services/SceneServiceReads.h"
#include "host/services/UserDialogs.h"
#include "panel/HostCodes.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Host {

namespace {

using MV::presetDataFolder;
using MV::profileFolder;
using MV::softClothPhysics;

} // namespace

SceneService::SceneService(HostApplication& host)
    : ServiceBase(host, "Scene")
{
}

QWidget* SceneService::GetMainWindow()
{
    return RecordValue("GetMainWindow", {}, [&] { return App().MainWindow(); });
}

bool SceneService::IsPlaying()
{
    return RecordValue("IsPlaying", {}, [&] { return CurrentScene().playing; });
}

BF::Result SceneService::GetSelectedObjects(BF::CArrayList<BF::CHandle*>& objects, int flag)
{
    return Record("GetSelectedObjects", {Out(objects), In(flag)}, [&] {
        objects.Clear();
        for (BF::CHandle* handle : CurrentScene().Selection()) {
            objects.Add(handle);
        }
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetObjectType(BF::CHandle* object, quint32& type)
{
    return ReadObject("GetObjectType", {In(object), Out(type)}, object,
                      [&](const Object& found) { type = found.traits.type; });
}

BF::Result SceneService::GetObjectKind(BF::CHandle* object, int& kind)
{
    return ReadObject("GetObjectKind", {In(object), Out(kind)}, object,
                      [&](const Object& found) { kind = found.traits.kind; });
}

BF::CHandle* SceneService::GetSelectedObject(int index)
{
    return RecordValue("GetSelectedObject", {In(index)},
                       [&] { return CurrentScene().Selection().value(index, nullptr); });
}

BF::Result SceneService::GetMeshHandle(Id mesh, BF::CHandle*& handle)
{
    return Record("GetMeshHandle", {InId(mesh), Out(handle)}, [&] {
        if (!CurrentScene().FindMesh(mesh)) {
            return BF::Results::InvalidArgument;
        }
        handle = ToHandle(mesh);
        return BF::Results::Success;
    });
}

int SceneService::GetSelectedObjectCount()
{
    return RecordValue("GetSelectedObjectCount", {}, [&] { return CurrentScene().Selection().size(); });
}

BF::Result SceneService::GetObjectName(std::wstring& name, BF::CHandle* objectOrId)
{
    return Record("GetObjectName", {Out(name), In(objectOrId)}, [&] {
        const QString found = CurrentScene().NameOf(objectOrId);
        if (found.isNull()) {
            return BF::Results::InvalidArgument;
        }
        name = found.toStdWString();
        return BF::Results::Success;
    });
}

MV::EDialogMode SceneService::GetDialogMode()
{
    return RecordValue("GetDialogMode", {}, [&] { return CurrentScene().dialogMode; });
}

MV::EPickMode SceneService::GetCurrentPickMode()
{
    return RecordValue("GetCurrentPickMode", {}, [&] { return CurrentScene().pickMode; });
}

BF::Result SceneService::GetDataFolderPath(std::wstring& path, int kind)
{
    return Record("GetDataFolderPath", {Out(path), In(kind)}, [&] {
        if (kind != presetDataFolder || App().DataFolder().isEmpty()) {
            return BF::Results::InvalidArgument;
        }
        path = QString(QDir::toNativeSeparators(App().DataFolder()) + QDir::separator()).toStdWString();
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetPhysicsEngineType(int& engine)
{
    return Record("GetPhysicsEngineType", {Out(engine)}, [&] {
        engine = CurrentScene().physicsEngine;
        return BF::Results::Success;
    });
}

BF::Result SceneService::IsPhysicsActive(BF::CHandle* object, int kind, bool& active)
{
    return ReadObject("IsPhysicsActive", {In(object), In(kind), Out(active)}, object,
                      [&](const Object& found) { active = kind == softClothPhysics && found.state.softCloth; });
}

BF::Result SceneService::GetSoftClothConvertState(BF::CHandle* object, int& state)
{
    return ReadObject("GetSoftClothConvertState", {In(object), Out(state)}, object,
                      [&](const Object& found) { state = found.traits.convertState; });
}

BF::Result SceneService::GetSaveImageFileName(QString& path, int kind1, int kind2, int kind3,
                                              const QString& defaultName)
{
    return Record("GetSaveImageFileName", {Out(path), In(kind1), In(kind2), In(kind3), In(defaultName)}, [&] {
        const auto prepared = App().Answers().TakeFile();
        if (prepared || App().Answers().unattended) {
            path = prepared.value_or(QString());
        } else {
            path = AskForFile(App().MainWindow(), {HostApplication::tr("Save Image"),
                                                   HostApplication::tr("Images (*.png *.jpg *.jpeg *.bmp)"), true,
                                                   QStringLiteral("png"), defaultName});
        }
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetOpenImageFileName(QString& path, int kind1, int kind2, int kind3)
{
    return Record("GetOpenImageFileName", {Out(path), In(kind1), In(kind2), In(kind3)}, [&] {
        const auto prepared = App().Answers().TakeFile();
        if (prepared || App().Answers().unattended) {
            path = prepared.value_or(QString());
        } else {
            path = AskForFile(App().MainWindow(), {HostApplication::tr("Open Image"),
                                                   HostApplication::tr("Images (*.jpg *.jpeg *.bmp *.gif *.png *.tga)"),
                                                   false,
                                                   {},
                                                   {}});
        }
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetMeshList(BF::CHandle* object, BF::CArrayList<Id>& meshes)
{
    return ReadObject("GetMeshList", {In(object), OutIds(meshes)}, object, [&](const Object& found) {
        meshes.Clear();
        for (const Mesh& mesh : found.meshes) {
            meshes.Add(mesh.id);
        }
    });
}

BF::Result SceneService::GetMaterialList(Id mesh, BF::CArrayList<Id>& materials, int flag)
{
    return Record("GetMaterialList", {InId(mesh), OutIds(materials), In(flag)}, [&] {
        const Mesh* found = CurrentScene().FindMesh(mesh);
        if (!found) {
            return BF::Results::InvalidArgument;
        }
        materials.Clear();
        for (const MaterialSlot& slot : found->materialSlots) {
            materials.Add(slot.material);
        }
        return BF::Results::Success;
    });
}

BF::Result SceneService::GetDefaultFolder(QString& folder, int kind)
{
    return Record("GetDefaultFolder", {Out(folder), In(kind)}, [&] {
        if (kind != profileFolder) {
            return BF::Results::InvalidArgument;
        }
        const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        folder = QFileInfo(documents).isDir() ? documents : QDir::homePath();
        return BF::Results::Success;
    });
}

BF::Result SceneService::IsPanelBlockedForObject(BF::CHandle* object, bool& blocked)
{
    return ReadObject("IsPanelBlockedForObject", {In(object), Out(blocked)}, object,
                      [&](const Object& found) { blocked = found.traits.blocked; });
}

bool SceneService::IsPanelBlockedForObjectEx(BF::CHandle* object)
{
    return RecordValue("IsPanelBlockedForObjectEx", {In(object)}, [&] {
        const Object* found = CurrentScene().FindObject(object);
        return found && found->traits.blockedEx;
    });
}

Id SceneService::GetMaterialIdByIndex(BF::CHandle* object, std::size_t index)
{
    const BF::CHandle* material =
        RecordValue("GetMaterialIdByIndex", {In(object), In(quint64(index))}, [&]() -> const BF::CHandle* {
            const Object* found = CurrentScene().FindObject(object);
            return found && index < found->materials.size() ? ToHandle(found->materials[index].id) : nullptr;
        });
    return ToId(material);
}

} // namespace Host
