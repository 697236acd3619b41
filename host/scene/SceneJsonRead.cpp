#include "host/scene/SceneJson.h"

#include "host/scene/FileStates.h"
#include "host/scene/GeometryJson.h"
#include "host/scene/Handles.h"
#include "host/scene/Scene.h"

#include <algorithm>
#include <set>
#include <utility>

namespace Host {

namespace {

/// An id in a file; other numbers would not survive as JSON numbers.
Id LocalId(const JsonNode& node)
{
    return static_cast<Id>(node.ToInteger(1, std::numeric_limits<int>::max()));
}

QColor ColorFromJson(const JsonNode& node)
{
    const std::vector<JsonNode> parts = node.Items();
    if (parts.size() != 4) {
        node.Refuse(QStringLiteral("must be a list of 4 numbers"));
    }
    const auto part = [&](std::size_t i) { return static_cast<quint16>(parts[i].ToInteger(0, 0xffff)); };
    return QColor::fromRgba64(part(0), part(1), part(2), part(3));
}

/// The ids that a file has defined so far.
using TakenIds = std::set<Id>;

Id DefineId(const JsonNode& node, TakenIds& taken)
{
    const Id id = LocalId(node);
    if (!taken.insert(id).second) {
        node.Refuse(QStringLiteral("is %1, which is in use already").arg(id));
    }
    return id;
}

std::pair<MV::ETextureChannel, Texture> TextureFromJson(const JsonNode& node, const QDir& folder)
{
    constexpr auto first = static_cast<int>(MV::ETextureChannel::Weight);
    constexpr auto last = static_cast<int>(MV::ETextureChannel::DiffuseAndOpacity);
    Texture texture;
    texture.filePath = LinkedFileFromJson(node, folder);
    if (node.Has("embedded")) {
        texture.embedded = node["embedded"].ToBytes();
    }
    return {static_cast<MV::ETextureChannel>(node["channel"].ToInteger(first, last)), texture};
}

// Objects are read with the ids of the file; the scene replaces them.

Material MaterialFromJson(const JsonNode& node, const StateReader& states, TakenIds& taken)
{
    Material material;
    material.id = DefineId(node["id"], taken);
    material.name = node["name"].ToText();
    material.diffuse = ColorFromJson(node["diffuse"]);
    for (const JsonNode& texture : node["textures"].Items()) {
        if (!material.textures.insert(TextureFromJson(texture, states.Folder())).second) {
            texture["channel"].Refuse(QStringLiteral("has a texture already"));
        }
    }
    material.state = states.Read<MaterialState>(node["state"]);
    return material;
}

std::vector<quint32> IndicesFromJson(const JsonNode& node, std::size_t vertexCount)
{
    std::vector<quint32> indices = ArrayFromJson<quint32>(node);
    if (indices.size() % 3 != 0) {
        node.Refuse(QStringLiteral("must hold three indices per triangle"));
    }
    if (std::any_of(indices.begin(), indices.end(), [vertexCount](quint32 index) { return index >= vertexCount; })) {
        node.Refuse(QStringLiteral("names a vertex that the mesh does not have"));
    }
    return indices;
}

/// Names its material as Scene::AddObject() wants it: by the position in \p materials plus one.
MaterialSlot SlotFromJson(const JsonNode& node, std::size_t vertexCount, const std::vector<Material>& materials,
                          const StateReader& states)
{
    const JsonNode name = node["material"];
    const auto found = std::find_if(materials.begin(), materials.end(),
                                    [id = LocalId(name)](const Material& material) { return material.id == id; });
    if (found == materials.end()) {
        name.Refuse(QStringLiteral("names a material that the object does not have"));
    }
    return {static_cast<Id>(found - materials.begin()) + 1, IndicesFromJson(node["indices"], vertexCount),
            states.Read<ClothState>(node["cloth"])};
}

template <class Item>
std::vector<Item> PerVertexFromJson(const JsonNode& node, std::size_t vertexCount)
{
    std::vector<Item> items = ArrayFromJson<Item>(node);
    if (!items.empty() && items.size() != vertexCount) {
        node.Refuse(QStringLiteral("must hold one item per vertex or none"));
    }
    return items;
}

Mesh MeshFromJson(const JsonNode& node, const std::vector<Material>& materials, const StateReader& states,
                  TakenIds& taken)
{
    Mesh mesh;
    mesh.id = DefineId(node["id"], taken);
    mesh.name = node["name"].ToText();
    mesh.positions = ArrayFromJson<QVector3D>(node["positions"]);
    mesh.normals = PerVertexFromJson<QVector3D>(node["normals"], mesh.positions.size());
    mesh.uvs = PerVertexFromJson<QVector2D>(node["uvs"], mesh.positions.size());
    std::set<Id> used;
    for (const JsonNode& slot : node["slots"].Items()) {
        mesh.materialSlots.push_back(SlotFromJson(slot, mesh.positions.size(), materials, states));
        if (!used.insert(mesh.materialSlots.back().material).second) {
            slot["material"].Refuse(QStringLiteral("has a slot on this mesh already"));
        }
    }
    return mesh;
}

Object ObjectFromJson(const JsonNode& node, const StateReader& states, TakenIds& taken)
{
    Object object;
    object.handle = ToHandle(DefineId(node["id"], taken));
    object.name = node["name"].ToText();
    object.traits = states.Read<ObjectTraits>(node["traits"]);
    object.state = states.Read<ObjectState>(node["state"]);
    for (const JsonNode& material : node["materials"].Items()) {
        object.materials.push_back(MaterialFromJson(material, states, taken));
    }
    for (const JsonNode& mesh : node["meshes"].Items()) {
        object.meshes.push_back(MeshFromJson(mesh, object.materials, states, taken));
    }
    return object;
}

/// The ids of an object and of its parts, always in the same order.
std::vector<Id> IdsOf(const Object& object)
{
    std::vector<Id> ids{ToId(object.handle)};
    for (const Material& material : object.materials) {
        ids.push_back(material.id);
    }
    for (const Mesh& mesh : object.meshes) {
        ids.push_back(mesh.id);
    }
    return ids;
}

/// Adds objects to a scene and translates the ids of the file, also in undo steps.
class Reader
{
public:
    Reader(Scene& scene, const StateReader& states)
        : m_scene(scene)
        , m_states(states)
    {
    }

    void AddObject(const JsonNode& node)
    {
        Object object = ObjectFromJson(node, m_states, m_taken);
        const std::vector<Id> local = IdsOf(object);
        const Object& added = m_scene.AddObject(std::move(object));
        const std::vector<Id> fresh = IdsOf(added);
        for (std::size_t i = 0; i < local.size(); ++i) {
            m_ids.emplace(local[i], fresh[i]);
        }
        m_objects.insert(added.handle);
        for (const Material& material : added.materials) {
            m_materials.insert(material.id);
        }
        for (const ClothAddress& address : Scene::SlotsOf(added)) {
            m_slots.insert({address.object, address.mesh, address.material});
        }
    }

    SceneEdit EditFromJson(const JsonNode& node) const
    {
        SceneEdit edit;
        edit.text = node["text"].ToText();
        for (const JsonNode& change : node["cloths"].Items()) {
            edit.cloths.push_back(ClothChangeFromJson(change));
        }
        for (const JsonNode& change : node["materials"].Items()) {
            const Id material = Known(m_materials, FreshId(change["material"]), change);
            edit.materials.push_back({material, Before<MaterialState>(change), After<MaterialState>(change)});
        }
        for (const JsonNode& change : node["objects"].Items()) {
            BF::CHandle* const object = Known(m_objects, ToHandle(FreshId(change["object"])), change);
            edit.objects.push_back({object, Before<ObjectState>(change), After<ObjectState>(change)});
        }
        return edit;
    }

private:
    template <class Things, class Thing>
    static Thing Known(const Things& things, Thing thing, const JsonNode& change)
    {
        if (things.count(thing) == 0) {
            change.Refuse(QStringLiteral("changes something that the scene does not have"));
        }
        return thing;
    }

    template <class State>
    State Before(const JsonNode& change) const
    {
        return m_states.Read<State>(change["before"]);
    }

    template <class State>
    State After(const JsonNode& change) const
    {
        return m_states.Read<State>(change["after"]);
    }

    /// 0 for an id that the file does not define.
    Id FreshId(const JsonNode& node) const
    {
        const auto found = m_ids.find(LocalId(node));
        return found == m_ids.end() ? 0 : found->second;
    }

    SceneEdit::ClothChange ClothChangeFromJson(const JsonNode& node) const
    {
        const ClothAddress address{ToHandle(FreshId(node["object"])), FreshId(node["mesh"]), FreshId(node["material"])};
        Known(m_slots, std::make_tuple(address.object, address.mesh, address.material), node);
        return {address, Before<ClothState>(node), After<ClothState>(node)};
    }

    Scene& m_scene;
    const StateReader& m_states;
    TakenIds m_taken;
    std::map<Id, Id> m_ids; ///< From those of the file to those of the scene.
    std::set<BF::CHandle*> m_objects;
    std::set<Id> m_materials;
    std::set<std::tuple<BF::CHandle*, Id, Id>> m_slots;
};

/// The version of the format in which the document was written.
int RequireFormat(const JsonNode& root)
{
    if (!root.Has("format") || !root["format"].IsText() ||
        root["format"].ToText() != QLatin1String(SceneFormat::name)) {
        throw SceneFormatError(QStringLiteral("it is no scene of this application"));
    }
    const qint64 version = root["version"].ToInteger(1, std::numeric_limits<int>::max());
    if (version > SceneFormat::version) {
        throw SceneFormatError(QStringLiteral("it was written by a newer version of this application"));
    }
    return static_cast<int>(version);
}

} // namespace

std::unique_ptr<Scene> SceneFromJson(const QJsonObject& document, const QDir& folder)
{
    const JsonNode root(document, {});
    const StateReader states(root, RequireFormat(root), folder);
    auto scene = std::make_unique<Scene>();
    Reader reader(*scene, states);
    for (const JsonNode& object : root["objects"].Items()) {
        reader.AddObject(object);
    }
    std::vector<SceneEdit> steps;
    const JsonNode undo = root["undo"];
    for (const JsonNode& step : undo["steps"].Items()) {
        steps.push_back(reader.EditFromJson(step));
    }
    scene->RestoreUndoSteps(steps, static_cast<int>(undo["applied"].ToInteger(0, static_cast<qint64>(steps.size()))));
    return scene;
}

} // namespace Host
