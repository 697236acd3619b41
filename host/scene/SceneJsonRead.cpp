#include "host/scene/SceneJson.h"

#include "host/scene/FileStates.h"
#include "host/scene/GeometryJson.h"
#include "host/scene/Handles.h"
#include "host/scene/Scene.h"
#include "host/scene/SceneSize.h"
#include "host/scene/SceneText.h"

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
        node.Refuse(SceneText::tr("must be a list of 4 numbers"));
    }
    const auto part = [&](std::size_t i) { return static_cast<quint16>(parts[i].ToInteger(0, 0xffff)); };
    return QColor::fromRgba64(part(0), part(1), part(2), part(3));
}

/// What a file has defined so far.
struct Defined
{
    std::set<Id> ids;
    SceneSize size;

    Id Take(const JsonNode& node)
    {
        const Id id = LocalId(node);
        if (!ids.insert(id).second) {
            node.Refuse(SceneText::tr("is %1, which is in use already").arg(id));
        }
        return id;
    }

    /// Counts what is to be read next, before any memory is taken for it.
    void Add(const SceneSize& more)
    {
        size += more;
        const QString reason = size.ReasonToRefuse();
        if (!reason.isNull()) {
            throw SceneFormatError(reason);
        }
    }
};

/// Where an object's materials are in its list, by their ids in the file.
using MaterialPositions = std::map<Id, std::size_t>;

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

Material MaterialFromJson(const JsonNode& node, const StateReader& states, Defined& defined)
{
    SceneSize one;
    one.materials = 1;
    defined.Add(one);
    Material material;
    material.id = defined.Take(node["id"]);
    material.name = node["name"].ToText();
    material.diffuse = ColorFromJson(node["diffuse"]);
    for (const JsonNode& texture : node["textures"].Items()) {
        if (!material.textures.insert(TextureFromJson(texture, states.Folder())).second) {
            texture["channel"].Refuse(SceneText::tr("has a texture already"));
        }
    }
    material.state = states.Read<MaterialState>(node["state"]);
    return material;
}

std::vector<quint32> IndicesFromJson(const JsonNode& node, std::size_t vertexCount, Defined& defined)
{
    SceneSize triangles;
    triangles.triangles = CountOfArray(node) / 3;
    defined.Add(triangles);
    std::vector<quint32> indices = ArrayFromJson<quint32>(node);
    if (indices.size() % 3 != 0) {
        node.Refuse(SceneText::tr("must hold three indices per triangle"));
    }
    if (std::any_of(indices.begin(), indices.end(), [vertexCount](quint32 index) { return index >= vertexCount; })) {
        node.Refuse(SceneText::tr("names a vertex that the mesh does not have"));
    }
    return indices;
}

/// Names its material as Scene::AddObject() wants it: by its position plus one.
MaterialSlot SlotFromJson(const JsonNode& node, std::size_t vertexCount, const MaterialPositions& materials,
                          const StateReader& states, Defined& defined)
{
    const JsonNode name = node["material"];
    const auto found = materials.find(LocalId(name));
    if (found == materials.end()) {
        name.Refuse(SceneText::tr("names a material that the object does not have"));
    }
    return {found->second + 1, IndicesFromJson(node["indices"], vertexCount, defined),
            states.Read<ClothState>(node["cloth"])};
}

template <class Item>
std::vector<Item> PerVertexFromJson(const JsonNode& node, std::size_t vertexCount)
{
    const std::size_t count = CountOfArray(node);
    if (count != 0 && count != vertexCount) {
        node.Refuse(SceneText::tr("must hold one item per vertex or none"));
    }
    return ArrayFromJson<Item>(node);
}

Mesh MeshFromJson(const JsonNode& node, const MaterialPositions& materials, const StateReader& states, Defined& defined)
{
    SceneSize one;
    one.meshes = 1;
    one.vertices = CountOfArray(node["positions"]);
    defined.Add(one);
    Mesh mesh;
    mesh.id = defined.Take(node["id"]);
    mesh.name = node["name"].ToText();
    mesh.positions = ArrayFromJson<QVector3D>(node["positions"]);
    mesh.normals = PerVertexFromJson<QVector3D>(node["normals"], mesh.positions.size());
    mesh.uvs = PerVertexFromJson<QVector2D>(node["uvs"], mesh.positions.size());
    std::set<Id> used;
    for (const JsonNode& slot : node["slots"].Items()) {
        mesh.materialSlots.push_back(SlotFromJson(slot, mesh.positions.size(), materials, states, defined));
        if (!used.insert(mesh.materialSlots.back().material).second) {
            slot["material"].Refuse(SceneText::tr("has a slot on this mesh already"));
        }
    }
    return mesh;
}

Object ObjectFromJson(const JsonNode& node, const StateReader& states, Defined& defined)
{
    Object object;
    object.handle = ToHandle(defined.Take(node["id"]));
    object.name = node["name"].ToText();
    object.traits = states.Read<ObjectTraits>(node["traits"]);
    object.state = states.Read<ObjectState>(node["state"]);
    MaterialPositions positions;
    for (const JsonNode& material : node["materials"].Items()) {
        object.materials.push_back(MaterialFromJson(material, states, defined));
        positions.emplace(object.materials.back().id, positions.size());
    }
    for (const JsonNode& mesh : node["meshes"].Items()) {
        object.meshes.push_back(MeshFromJson(mesh, positions, states, defined));
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
        Object object = ObjectFromJson(node, m_states, m_defined);
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

    QVector<BF::CHandle*> SelectionFromJson(const JsonNode& node) const
    {
        QVector<BF::CHandle*> selection;
        for (const JsonNode& item : node.Items()) {
            BF::CHandle* const object = ToHandle(FreshId(item));
            if (m_objects.count(object) == 0) {
                item.Refuse(SceneText::tr("is no object of the scene"));
            }
            selection.append(object);
        }
        return selection;
    }

private:
    template <class Things, class Thing>
    static Thing Known(const Things& things, Thing thing, const JsonNode& change)
    {
        if (things.count(thing) == 0) {
            change.Refuse(SceneText::tr("changes something that the scene does not have"));
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
    Defined m_defined;
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
        throw SceneFormatError(SceneText::tr("it is no scene of this application"));
    }
    const qint64 version = root["version"].ToInteger(1, std::numeric_limits<int>::max());
    if (version > SceneFormat::version) {
        throw SceneFormatError(SceneText::tr("it was written by a newer version of this application"));
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
    // Files of former versions tell of no selection.
    if (root.Has("selection")) {
        scene->SetSelection(reader.SelectionFromJson(root["selection"]));
    }
    return scene;
}

} // namespace Host
