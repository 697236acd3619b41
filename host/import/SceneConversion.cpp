#include "host/import/SceneConversion.h"

#include "host/import/TextureImport.h"

#include <assimp/material.h>
#include <assimp/scene.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <tuple>
#include <unordered_map>

namespace Host {

namespace {

/// A node that has meshes, and where it puts them.
struct MeshNode
{
    const aiNode* node = nullptr;
    aiMatrix4x4 transform;
};

void CollectMeshNodes(const aiNode& node, const aiMatrix4x4& parent, std::vector<MeshNode>& meshNodes)
{
    const aiMatrix4x4 transform = parent * node.mTransformation;
    if (node.mNumMeshes > 0) {
        meshNodes.push_back({&node, transform});
    }
    for (unsigned i = 0; i < node.mNumChildren; ++i) {
        if (node.mChildren[i]) { // the reader of RAW files leaves gaps
            CollectMeshNodes(*node.mChildren[i], transform, meshNodes);
        }
    }
}

std::vector<MeshNode> MeshNodesOf(const aiScene& scene)
{
    std::vector<MeshNode> meshNodes;
    if (scene.mRootNode) {
        CollectMeshNodes(*scene.mRootNode, aiMatrix4x4(), meshNodes);
    }
    return meshNodes;
}

QMatrix4x4 ToMatrix(const aiMatrix4x4& m)
{
    const auto f = [](ai_real value) { return static_cast<float>(value); };
    return {f(m.a1), f(m.a2), f(m.a3), f(m.a4), f(m.b1), f(m.b2), f(m.b3), f(m.b4),
            f(m.c1), f(m.c2), f(m.c3), f(m.c4), f(m.d1), f(m.d2), f(m.d3), f(m.d4)};
}

/// Damaged files hold infinities, which nothing downstream could cope with.
float Finite(ai_real value)
{
    const auto number = static_cast<float>(value);
    return std::isfinite(number) ? number : 0.0F;
}

QVector3D FiniteVector(const QVector3D& vector)
{
    return {Finite(vector.x()), Finite(vector.y()), Finite(vector.z())};
}

QVector3D ToVector(const aiVector3D& vector)
{
    return {Finite(vector.x), Finite(vector.y), Finite(vector.z)};
}

/// \p vector with length 1, however short it is; QVector3D::normalized() gives up on short ones.
QVector3D Unit(const QVector3D& vector)
{
    const float length = vector.length();
    return length > 0.0F ? FiniteVector(vector / length) : QVector3D();
}

/// Normals that the part lacks stay null.
void AppendVertices(Mesh& mesh, const aiMesh& part, const QMatrix4x4& transform)
{
    const std::size_t base = mesh.positions.size();
    for (unsigned i = 0; i < part.mNumVertices; ++i) {
        mesh.positions.push_back(FiniteVector(transform.map(ToVector(part.mVertices[i]))));
    }
    mesh.normals.resize(mesh.positions.size());
    if (part.HasNormals()) {
        const QMatrix4x4 rotation(transform.normalMatrix());
        for (unsigned i = 0; i < part.mNumVertices; ++i) {
            mesh.normals[base + i] = Unit(rotation.mapVector(ToVector(part.mNormals[i])));
        }
    }
    if (part.HasTextureCoords(0)) {
        mesh.uvs.resize(base);
        for (unsigned i = 0; i < part.mNumVertices; ++i) {
            mesh.uvs.push_back(ToVector(part.mTextureCoords[0][i]).toVector2D());
        }
    }
}

/// Gives vertices without a normal a smooth one, also across the seams of the texture. Assimp would do so only for
/// triangles that share no vertices, which not all of its readers deliver.
void FillNormals(Mesh& mesh)
{
    const auto isMissing = [](const QVector3D& normal) { return normal.isNull(); };
    if (std::none_of(mesh.normals.begin(), mesh.normals.end(), isMissing)) {
        return;
    }
    const auto keyOf = [&](std::size_t vertex) {
        const QVector3D& position = mesh.positions[vertex];
        return std::make_tuple(position.x(), position.y(), position.z());
    };
    // A cross product is as long as its triangle is large, so large triangles count more.
    std::map<std::tuple<float, float, float>, QVector3D> sums;
    for (const MaterialSlot& slot : mesh.materialSlots) {
        for (std::size_t i = 0; i < slot.indices.size(); i += 3) {
            const QVector3D& corner = mesh.positions[slot.indices[i]];
            const QVector3D normal = QVector3D::crossProduct(mesh.positions[slot.indices[i + 1]] - corner,
                                                             mesh.positions[slot.indices[i + 2]] - corner);
            for (std::size_t k = i; k < i + 3; ++k) {
                sums[keyOf(slot.indices[k])] += normal;
            }
        }
    }
    for (std::size_t i = 0; i < mesh.normals.size(); ++i) {
        if (isMissing(mesh.normals[i])) {
            mesh.normals[i] = Unit(sums[keyOf(i)]);
        }
    }
}

/// True when the corners are three vertices of \p part in three places.
bool IsTriangle(const aiMesh& part, unsigned a, unsigned b, unsigned c)
{
    if (std::max({a, b, c}) >= part.mNumVertices) {
        return false;
    }
    const aiVector3D* places = part.mVertices;
    return places[a] != places[b] && places[b] != places[c] && places[c] != places[a];
}

/// Adds the triangles of \p part, whose vertices begin at \p base.
void AppendTriangles(std::vector<quint32>& indices, const aiMesh& part, std::size_t base, bool mirrored)
{
    for (unsigned i = 0; i < part.mNumFaces; ++i) {
        const aiFace& face = part.mFaces[i];
        if (face.mNumIndices != 3) {
            continue;
        }
        const unsigned a = face.mIndices[0];
        const unsigned b = face.mIndices[mirrored ? 2 : 1];
        const unsigned c = face.mIndices[mirrored ? 1 : 2];
        if (IsTriangle(part, a, b, c)) {
            for (const unsigned index : {a, b, c}) {
                indices.push_back(static_cast<quint32>(base + index));
            }
        }
    }
}

/// Positions of slots by the index of their material in the file.
using SlotPlaces = std::unordered_map<unsigned, std::size_t>;

/// The slot of the material with \p index in the file, named by its index plus one until the materials are chosen.
MaterialSlot& SlotFor(Mesh& mesh, SlotPlaces& places, unsigned index)
{
    const auto [place, isNew] = places.emplace(index, mesh.materialSlots.size());
    if (isNew) {
        mesh.materialSlots.push_back({Id{index} + 1, {}, {}});
    }
    return mesh.materialSlots[place->second];
}

QString NameOf(const MeshNode& meshNode, const aiScene& scene)
{
    const aiNode& node = *meshNode.node;
    const aiString& name = node.mName.length > 0 ? node.mName : scene.mMeshes[node.mMeshes[0]]->mName;
    return QString::fromUtf8(name.C_Str());
}

Mesh ToMesh(const MeshNode& meshNode, const aiScene& scene, const QMatrix4x4& placement)
{
    Mesh mesh;
    mesh.name = NameOf(meshNode, scene);
    const QMatrix4x4 transform = placement * ToMatrix(meshNode.transform);
    SlotPlaces places;
    for (unsigned i = 0; i < meshNode.node->mNumMeshes; ++i) {
        const aiMesh& part = *scene.mMeshes[meshNode.node->mMeshes[i]];
        const std::size_t base = mesh.positions.size();
        AppendVertices(mesh, part, transform);
        AppendTriangles(SlotFor(mesh, places, part.mMaterialIndex).indices, part, base, transform.determinant() < 0.0);
    }
    if (!mesh.uvs.empty()) {
        mesh.uvs.resize(mesh.positions.size());
    }
    auto& slots = mesh.materialSlots;
    slots.erase(
        std::remove_if(slots.begin(), slots.end(), [](const MaterialSlot& slot) { return slot.indices.empty(); }),
        slots.end());
    FillNormals(mesh);
    return mesh;
}

QColor DiffuseOf(const aiMaterial& material)
{
    aiColor4D color(0.8F, 0.8F, 0.8F, 1.0F);
    if (material.Get(AI_MATKEY_COLOR_DIFFUSE, color) != aiReturn_SUCCESS) {
        material.Get(AI_MATKEY_BASE_COLOR, color);
    }
    ai_real opacity = 1.0F;
    material.Get(AI_MATKEY_OPACITY, opacity);
    const auto part = [](ai_real value) { return qBound(0.0, static_cast<double>(Finite(value)), 1.0); };
    return QColor::fromRgbF(part(color.r), part(color.g), part(color.b), part(opacity));
}

Material ToMaterial(const aiMaterial& source, const aiScene& scene, const QDir& folder)
{
    Material material;
    aiString name;
    source.Get(AI_MATKEY_NAME, name);
    material.name = QString::fromUtf8(name.C_Str());
    material.diffuse = DiffuseOf(source);
    material.textures = ImportTextures(source, scene, folder);
    return material;
}

/// Takes over the materials that a slot uses, and makes the slots name them by their new position plus one.
void TakeMaterials(Object& object, const aiScene& scene, const QDir& folder)
{
    std::vector<Id> newNames(scene.mNumMaterials + std::size_t{1}, 0);
    const auto forEachSlot = [&object](const auto& action) {
        for (Mesh& mesh : object.meshes) {
            std::for_each(mesh.materialSlots.begin(), mesh.materialSlots.end(), action);
        }
    };
    forEachSlot([&](const MaterialSlot& slot) { newNames.at(slot.material) = 1; });
    for (unsigned i = 0; i < scene.mNumMaterials; ++i) {
        Id& newName = newNames[i + std::size_t{1}];
        if (newName != 0) {
            object.materials.push_back(ToMaterial(*scene.mMaterials[i], scene, folder));
            newName = object.materials.size();
        }
    }
    forEachSlot([&](MaterialSlot& slot) { slot.material = newNames[slot.material]; });
}

/// Gives what has no name one by its position.
template <class Thing>
void NameUnnamed(std::vector<Thing>& things, const QString& pattern)
{
    for (std::size_t i = 0; i < things.size(); ++i) {
        if (things[i].name.isEmpty()) {
            things[i].name = pattern.arg(i + 1);
        }
    }
}

} // namespace

bool HasBrokenFaces(const aiScene& scene)
{
    const auto isBroken = [](const aiMesh& mesh, const aiFace& face) {
        return face.mNumIndices == 0 ||
               *std::max_element(face.mIndices, face.mIndices + face.mNumIndices) >= mesh.mNumVertices;
    };
    return std::any_of(scene.mMeshes, scene.mMeshes + scene.mNumMeshes, [isBroken](const aiMesh* mesh) {
        return std::any_of(mesh->mFaces, mesh->mFaces + mesh->mNumFaces,
                           [=](const aiFace& face) { return isBroken(*mesh, face); });
    });
}

bool HasSurfaces(const aiScene& scene)
{
    constexpr unsigned surfaces = aiPrimitiveType_TRIANGLE | aiPrimitiveType_POLYGON;
    return std::any_of(scene.mMeshes, scene.mMeshes + scene.mNumMeshes,
                       [](const aiMesh* mesh) { return (mesh->mPrimitiveTypes & surfaces) != 0; });
}

SceneSize SizeOf(const aiScene& scene)
{
    SceneSize size;
    size.materials = scene.mNumMaterials;
    for (const MeshNode& meshNode : MeshNodesOf(scene)) {
        ++size.meshes;
        for (unsigned i = 0; i < meshNode.node->mNumMeshes; ++i) {
            const aiMesh& part = *scene.mMeshes[meshNode.node->mMeshes[i]];
            size.vertices += part.mNumVertices;
            size.triangles += part.mNumFaces;
        }
    }
    return size;
}

double LargestSide(const aiScene& scene)
{
    aiVector3D low(std::numeric_limits<ai_real>::max());
    aiVector3D high(std::numeric_limits<ai_real>::lowest());
    for (const MeshNode& meshNode : MeshNodesOf(scene)) {
        for (unsigned i = 0; i < meshNode.node->mNumMeshes; ++i) {
            const aiMesh& part = *scene.mMeshes[meshNode.node->mMeshes[i]];
            for (unsigned k = 0; k < part.mNumVertices; ++k) {
                const aiVector3D place = meshNode.transform * part.mVertices[k];
                for (unsigned axis = 0; axis < 3; ++axis) {
                    if (std::isfinite(place[axis])) {
                        low[axis] = std::min(low[axis], place[axis]);
                        high[axis] = std::max(high[axis], place[axis]);
                    }
                }
            }
        }
    }
    const aiVector3D sides = high - low;
    const double largest = std::max({sides.x, sides.y, sides.z});
    return std::isfinite(largest) ? std::max(largest, 0.0) : 0.0;
}

QMatrix4x4 Uprighting(const aiScene& scene)
{
    // A row of the rotation for each of our axes: right, up, front.
    constexpr std::array<std::pair<const char*, const char*>, 3> settings{
        {{"CoordAxis", "CoordAxisSign"}, {"UpAxis", "UpAxisSign"}, {"FrontAxis", "FrontAxisSign"}}};
    QMatrix4x4 rotation;
    rotation.fill(0.0F);
    rotation(3, 3) = 1.0F;
    for (int row = 0; row < 3; ++row) {
        int32_t axis = 0;
        int32_t sign = 1;
        const auto [axisName, signName] = settings[static_cast<std::size_t>(row)];
        if (!scene.mMetaData || !scene.mMetaData->Get(axisName, axis) || !scene.mMetaData->Get(signName, sign) ||
            axis < 0 || axis > 2) {
            return {};
        }
        rotation(row, axis) = sign < 0 ? -1.0F : 1.0F;
    }
    // Settings that name an axis twice, or that would turn the model inside out, are no settings.
    return rotation.determinant() > 0.5 ? rotation : QMatrix4x4();
}

std::optional<Object> ToObject(const aiScene& scene, const QMatrix4x4& placement, const QDir& folder,
                               const std::function<bool(double)>& goOn)
{
    Object object;
    const std::vector<MeshNode> meshNodes = MeshNodesOf(scene);
    for (std::size_t i = 0; i < meshNodes.size(); ++i) {
        if (!goOn(static_cast<double>(i) / static_cast<double>(meshNodes.size()))) {
            return std::nullopt;
        }
        Mesh mesh = ToMesh(meshNodes[i], scene, placement);
        if (!mesh.materialSlots.empty()) {
            object.meshes.push_back(std::move(mesh));
        }
    }
    TakeMaterials(object, scene, folder);
    NameUnnamed(object.meshes, QStringLiteral("Mesh %1"));
    NameUnnamed(object.materials, QStringLiteral("Material %1"));
    return object;
}

} // namespace Host
