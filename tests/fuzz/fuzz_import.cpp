// Imported scenes, as degenerate as a reader may leave them, turned into objects.
#include "tests/fuzz/Fuzz.h"

#include "host/import/SceneConversion.h"
#include "host/scene/Scene.h"

#include <assimp/scene.h>

#include <QDir>
#include <QMatrix4x4>

namespace {

using Fuzz::Numbers;

aiMesh* NewMesh(Numbers& numbers, int materials)
{
    auto* mesh = new aiMesh;
    mesh->mPrimitiveTypes = unsigned(numbers.Below(16));
    mesh->mMaterialIndex = unsigned(numbers.Below(materials + 2));
    mesh->mNumVertices = unsigned(numbers.Below(12));
    const auto vectors = [&] {
        auto* list = new aiVector3D[mesh->mNumVertices];
        for (unsigned i = 0; i < mesh->mNumVertices; ++i) {
            list[i] = {numbers.Float(), numbers.Float(), numbers.Float()};
        }
        return list;
    };
    if (mesh->mNumVertices > 0) {
        mesh->mVertices = vectors();
        mesh->mNormals = numbers.Below(2) == 0 ? vectors() : nullptr;
        if (numbers.Below(2) == 0) {
            mesh->mTextureCoords[0] = vectors();
            mesh->mNumUVComponents[0] = 2;
        }
    }
    mesh->mNumFaces = unsigned(numbers.Below(8));
    mesh->mFaces = mesh->mNumFaces > 0 ? new aiFace[mesh->mNumFaces] : nullptr;
    for (unsigned i = 0; i < mesh->mNumFaces; ++i) {
        aiFace& face = mesh->mFaces[i];
        face.mNumIndices = unsigned(numbers.Below(5));
        face.mIndices = face.mNumIndices > 0 ? new unsigned[face.mNumIndices] : nullptr;
        for (unsigned corner = 0; corner < face.mNumIndices; ++corner) {
            face.mIndices[corner] = unsigned(numbers.Byte()) << (numbers.Below(4) == 3 ? 24 : 0);
        }
    }
    return mesh;
}

aiNode* NewNode(Numbers& numbers, unsigned meshes, int depth)
{
    auto* node = new aiNode(std::string(std::size_t(numbers.Below(4)), 'n'));
    float* matrix = &node->mTransformation.a1;
    for (int i = 0; i < 16 && numbers.Below(4) == 0; ++i) {
        matrix[i] = numbers.Float();
    }
    node->mNumMeshes = meshes > 0 ? unsigned(numbers.Below(3)) : 0;
    node->mMeshes = node->mNumMeshes > 0 ? new unsigned[node->mNumMeshes] : nullptr;
    for (unsigned i = 0; i < node->mNumMeshes; ++i) {
        node->mMeshes[i] = unsigned(numbers.Below(int(meshes)));
    }
    const int children = depth < 6 ? numbers.Below(4) : 0;
    node->mChildren = children > 0 ? new aiNode*[std::size_t(children)] : nullptr;
    for (int i = 0; i < children; ++i) {
        node->mChildren[i] = NewNode(numbers, meshes, depth + 1);
        node->mChildren[i]->mParent = node;
        node->mNumChildren = unsigned(i + 1);
    }
    return node;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::StartApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Numbers numbers(data, size);
    aiScene scene;
    const int materials = numbers.Below(3);
    scene.mMaterials = materials > 0 ? new aiMaterial*[std::size_t(materials)] : nullptr;
    for (int i = 0; i < materials; ++i) {
        scene.mMaterials[i] = new aiMaterial;
        scene.mNumMaterials = unsigned(i + 1);
    }
    const int meshes = numbers.Below(4);
    scene.mMeshes = meshes > 0 ? new aiMesh*[std::size_t(meshes)] : nullptr;
    for (int i = 0; i < meshes; ++i) {
        scene.mMeshes[i] = NewMesh(numbers, materials);
        scene.mNumMeshes = unsigned(i + 1);
    }
    scene.mRootNode = NewNode(numbers, scene.mNumMeshes, 0);
    if (Host::HasBrokenFaces(scene) || !Host::HasSurfaces(scene)) {
        return 0;
    }
    auto object = Host::ToObject(scene, QMatrix4x4(), QDir(Fuzz::Folder()), [](double) { return true; });
    if (!object) {
        return 0;
    }
    Host::Scene host;
    for (const Host::Mesh& mesh : host.AddObject(std::move(*object)).meshes) {
        for (const Host::MaterialSlot& slot : mesh.materialSlots) {
            for (const quint32 index : slot.indices) {
                if (index >= mesh.positions.size() || slot.indices.size() % 3 != 0) {
                    Fuzz::Fail(QStringLiteral("a triangle without a vertex"));
                }
            }
        }
        const bool isWhole = (mesh.uvs.empty() || mesh.uvs.size() == mesh.positions.size()) &&
                             (mesh.normals.empty() || mesh.normals.size() == mesh.positions.size());
        if (!isWhole) {
            Fuzz::Fail(QStringLiteral("a vertex without its normal or place in the image"));
        }
    }
    return 0;
}

QVector<QByteArray> FuzzSeeds()
{
    QVector<QByteArray> seeds{""};
    for (int start = 0; start < 8; ++start) {
        QByteArray seed;
        for (int i = 0; i < 200; ++i) {
            seed.append(char((start * 37 + i * (start + 3)) % 251));
        }
        seeds.append(seed);
    }
    return seeds;
}
