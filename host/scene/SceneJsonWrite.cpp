#include "host/scene/SceneJson.h"

#include "host/scene/FileStates.h"
#include "host/scene/GeometryJson.h"
#include "host/scene/Handles.h"
#include "host/scene/Scene.h"
#include "host/scene/StateJson.h"

#include <QJsonArray>

namespace Host {

namespace {

/// Small numbers for the ids of this run, in the order in which they are met.
class LocalIds
{
public:
    double Of(Id id) { return static_cast<double>(m_numbers.try_emplace(id, m_numbers.size() + 1).first->second); }
    double Of(const BF::CHandle* handle) { return Of(ToId(handle)); }

private:
    std::map<Id, std::size_t> m_numbers;
};

template <class Things, class ToJson>
QJsonArray ListOf(const Things& things, ToJson toJson)
{
    QJsonArray list;
    for (const auto& thing : things) {
        list.append(toJson(thing));
    }
    return list;
}

QJsonArray ColorToJson(const QColor& color)
{
    const QRgba64 parts = color.rgba64();
    return {parts.red(), parts.green(), parts.blue(), parts.alpha()};
}

QJsonObject TextureToJson(MV::ETextureChannel channel, const Texture& texture, const QDir& folder)
{
    QJsonObject json{{QStringLiteral("channel"), static_cast<int>(channel)}};
    InsertLinkedFile(json, texture.filePath, folder);
    if (!texture.embedded.isEmpty()) {
        json.insert(QStringLiteral("embedded"), QString::fromLatin1(texture.embedded.toBase64()));
    }
    return json;
}

QJsonObject MaterialToJson(const Material& material, LocalIds& ids, StateWriter& states)
{
    return {
        {QStringLiteral("id"), ids.Of(material.id)},
        {QStringLiteral("name"), material.name},
        {QStringLiteral("diffuse"), ColorToJson(material.diffuse)},
        {QStringLiteral("textures"),
         ListOf(material.textures,
                [&](const auto& texture) { return TextureToJson(texture.first, texture.second, states.Folder()); })},
        {QStringLiteral("state"), states.Write(material.state)}};
}

QJsonObject SlotToJson(const MaterialSlot& slot, LocalIds& ids, StateWriter& states)
{
    return {{QStringLiteral("material"), ids.Of(slot.material)},
            {QStringLiteral("indices"), ArrayToJson(slot.indices)},
            {QStringLiteral("cloth"), states.Write(slot.cloth)}};
}

QJsonObject MeshToJson(const Mesh& mesh, LocalIds& ids, StateWriter& states)
{
    return {{QStringLiteral("id"), ids.Of(mesh.id)},
            {QStringLiteral("name"), mesh.name},
            {QStringLiteral("positions"), ArrayToJson(mesh.positions)},
            {QStringLiteral("normals"), ArrayToJson(mesh.normals)},
            {QStringLiteral("uvs"), ArrayToJson(mesh.uvs)},
            {QStringLiteral("slots"),
             ListOf(mesh.materialSlots, [&](const MaterialSlot& slot) { return SlotToJson(slot, ids, states); })}};
}

QJsonObject ObjectToJson(const Object& object, LocalIds& ids, StateWriter& states)
{
    return {{QStringLiteral("id"), ids.Of(object.handle)},
            {QStringLiteral("name"), object.name},
            {QStringLiteral("traits"), StateToJson(object.traits)},
            {QStringLiteral("state"), states.Write(object.state)},
            {QStringLiteral("materials"),
             ListOf(object.materials, [&](const Material& material) { return MaterialToJson(material, ids, states); })},
            {QStringLiteral("meshes"),
             ListOf(object.meshes, [&](const Mesh& mesh) { return MeshToJson(mesh, ids, states); })}};
}

/// What all kinds of changes have in common.
template <class Change>
QJsonObject StatesToJson(const Change& change, StateWriter& states)
{
    return {{QStringLiteral("before"), states.Write(change.before)},
            {QStringLiteral("after"), states.Write(change.after)}};
}

QJsonObject ClothChangeToJson(const SceneEdit::ClothChange& change, LocalIds& ids, StateWriter& states)
{
    QJsonObject json = StatesToJson(change, states);
    json.insert(QStringLiteral("object"), ids.Of(change.address.object));
    json.insert(QStringLiteral("mesh"), ids.Of(change.address.mesh));
    json.insert(QStringLiteral("material"), ids.Of(change.address.material));
    return json;
}

QJsonObject MaterialChangeToJson(const SceneEdit::MaterialChange& change, LocalIds& ids, StateWriter& states)
{
    QJsonObject json = StatesToJson(change, states);
    json.insert(QStringLiteral("material"), ids.Of(change.material));
    return json;
}

QJsonObject ObjectChangeToJson(const SceneEdit::ObjectChange& change, LocalIds& ids, StateWriter& states)
{
    QJsonObject json = StatesToJson(change, states);
    json.insert(QStringLiteral("object"), ids.Of(change.object));
    return json;
}

QJsonObject EditToJson(const SceneEdit& edit, LocalIds& ids, StateWriter& states)
{
    return {{QStringLiteral("text"), edit.text},
            {QStringLiteral("cloths"),
             ListOf(edit.cloths, [&](const auto& c) { return ClothChangeToJson(c, ids, states); })},
            {QStringLiteral("materials"),
             ListOf(edit.materials, [&](const auto& c) { return MaterialChangeToJson(c, ids, states); })},
            {QStringLiteral("objects"),
             ListOf(edit.objects, [&](const auto& c) { return ObjectChangeToJson(c, ids, states); })}};
}

} // namespace

QJsonObject SceneToJson(const Scene& scene, const QDir& folder)
{
    LocalIds ids;
    StateWriter states(folder);
    const QJsonArray objects =
        ListOf(scene.AllObjects(), [&](const auto& object) { return ObjectToJson(*object, ids, states); });
    const QJsonObject undo{{QStringLiteral("applied"), scene.UndoStack().index()},
                           {QStringLiteral("steps"), ListOf(scene.UndoSteps(), [&](const SceneEdit& edit) {
                                return EditToJson(edit, ids, states);
                            })}};
    return {{QStringLiteral("format"), QLatin1String(SceneFormat::name)},
            {QStringLiteral("version"), SceneFormat::version},
            {QStringLiteral("objects"), objects},
            {QStringLiteral("selection"),
             ListOf(scene.Selection(), [&](const BF::CHandle* object) { return ids.Of(object); })},
            {QStringLiteral("images"), states.Images()},
            {QStringLiteral("undo"), undo}};
}

} // namespace Host
