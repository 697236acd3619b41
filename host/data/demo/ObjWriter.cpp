#include "host/data/demo/ObjWriter.h"

#include <initializer_list>

namespace Demo {

namespace {

constexpr int decimals = 6;

void AppendLine(QByteArray& text, const char* keyword, std::initializer_list<float> numbers)
{
    text += keyword;
    for (const float number : numbers) {
        text += ' ' + QByteArray::number(static_cast<double>(number), 'f', decimals);
    }
    text += '\n';
}

void AppendPart(QByteArray& text, const Part& part, std::size_t base)
{
    for (const Vertex& vertex : part.vertices) {
        AppendLine(text, "v", {vertex.position.x(), vertex.position.y(), vertex.position.z()});
    }
    for (const Vertex& vertex : part.vertices) {
        AppendLine(text, "vt", {vertex.uv.x(), vertex.uv.y()});
    }
    for (const Vertex& vertex : part.vertices) {
        AppendLine(text, "vn", {vertex.normal.x(), vertex.normal.y(), vertex.normal.z()});
    }
    text += "usemtl " + part.material + '\n';
    for (const auto& triangle : part.triangles) {
        text += 'f';
        for (const std::size_t index : triangle) {
            const QByteArray number = QByteArray::number(static_cast<qulonglong>(base + index));
            text += ' ' + number + '/' + number + '/' + number;
        }
        text += '\n';
    }
}

} // namespace

QByteArray ToObj(const std::vector<Mesh>& meshes, const QByteArray& materialFile)
{
    QByteArray text = "mtllib " + materialFile + '\n';
    std::size_t base = 1; // the format counts from 1, through all meshes
    for (const Mesh& mesh : meshes) {
        text += "o " + mesh.name + '\n';
        for (const Part& part : mesh.parts) {
            AppendPart(text, part, base);
            base += part.vertices.size();
        }
    }
    return text;
}

QByteArray ToMtl(const std::vector<MaterialLook>& materials)
{
    QByteArray text;
    for (const MaterialLook& material : materials) {
        text += "newmtl " + material.name + "\nKa 0 0 0\nKd 1 1 1\nKs 0 0 0\nillum 1\n";
        if (!material.diffuseTexture.isEmpty()) {
            text += "map_Kd " + material.diffuseTexture + '\n';
        }
        if (!material.opacityTexture.isEmpty()) {
            text += "map_d " + material.opacityTexture + '\n';
        }
        text += '\n';
    }
    return text;
}

} // namespace Demo
