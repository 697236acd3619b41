#include "host/scene/FileStates.h"

#include "host/scene/SceneJson.h"
#include "host/scene/SceneText.h"
#include "host/scene/StateJson.h"

#include <QFileInfo>

namespace Host {

namespace {

/// The first version that knows weight images and ignored materials.
constexpr int weightImageVersion = 2;

constexpr int mostAdjust = 100;

QJsonArray IgnoredToJson(const QMap<QString, QStringList>& ignored)
{
    QJsonArray list;
    for (auto it = ignored.begin(); it != ignored.end(); ++it) {
        list.append(QJsonObject{{QStringLiteral("mesh"), it.key()},
                                {QStringLiteral("materials"), QJsonArray::fromStringList(it.value())}});
    }
    return list;
}

QMap<QString, QStringList> IgnoredFromJson(const JsonNode& node)
{
    QMap<QString, QStringList> ignored;
    for (const JsonNode& entry : node.Items()) {
        QStringList names;
        for (const JsonNode& name : entry["materials"].Items()) {
            names.append(name.ToText());
        }
        const QString mesh = entry["mesh"].ToText();
        if (ignored.contains(mesh)) {
            entry["mesh"].Refuse(SceneText::tr("is named a second time"));
        }
        ignored.insert(mesh, names);
    }
    return ignored;
}

} // namespace

void InsertLinkedFile(QJsonObject& json, const QString& path, const QDir& folder)
{
    if (path.isEmpty()) {
        return;
    }
    json.insert(QStringLiteral("file"), path);
    // From another drive there is no relative path.
    const QString relative = folder.relativeFilePath(path);
    if (QDir::isAbsolutePath(path) && QDir::isRelativePath(relative)) {
        json.insert(QStringLiteral("relative"), relative);
    }
}

QString LinkedFileFromJson(const JsonNode& node, const QDir& folder)
{
    if (!node.Has("file")) {
        return {};
    }
    const QString absolute = node["file"].ToText();
    if (node.Has("relative")) {
        const QString moved = QDir::cleanPath(folder.absoluteFilePath(node["relative"].ToText()));
        if (QFileInfo(moved).isFile()) {
            return moved;
        }
    }
    return absolute;
}

QJsonObject StateWriter::Write(const ClothState& state)
{
    QJsonObject json = StateToJson(state);
    json.insert(QStringLiteral("weight"), Write(state.weight));
    return json;
}

QJsonObject StateWriter::Write(const MaterialState& state)
{
    return StateToJson(state);
}

QJsonObject StateWriter::Write(const ObjectState& state)
{
    QJsonObject json = StateToJson(state);
    json.insert(QStringLiteral("ignoredMaterials"), IgnoredToJson(state.ignoredMaterials));
    return json;
}

QJsonObject StateWriter::Write(const WeightImage& weight)
{
    QJsonObject json{{QStringLiteral("brightness"), weight.brightness}, {QStringLiteral("contrast"), weight.contrast}};
    InsertLinkedFile(json, weight.image.filePath, m_folder);
    if (!weight.image.embedded.isEmpty()) {
        json.insert(QStringLiteral("image"), NumberOf(weight.image.embedded));
    }
    return json;
}

int StateWriter::NumberOf(const QByteArray& image)
{
    const auto place = m_numberByPlace.find(image.constData());
    if (place != m_numberByPlace.end() && m_images[static_cast<std::size_t>(place->second)].size() == image.size()) {
        return place->second;
    }
    const auto next = static_cast<int>(m_images.size());
    const int number = m_numberByContent.value(image, next);
    if (number == next) {
        m_images.push_back(image); // keeps the place taken
        m_numberByPlace.emplace(image.constData(), number);
        m_numberByContent.insert(image, number);
    }
    return number;
}

QJsonArray StateWriter::Images() const
{
    QJsonArray list;
    for (const QByteArray& image : m_images) {
        list.append(QString::fromLatin1(image.toBase64()));
    }
    return list;
}

StateReader::StateReader(const JsonNode& root, int version, const QDir& folder)
    : m_version(version)
    , m_folder(folder)
{
    if (version < weightImageVersion) {
        return;
    }
    for (const JsonNode& image : root["images"].Items()) {
        m_images.push_back(image.ToBytes());
        if (m_images.back().isEmpty()) {
            image.Refuse(SceneText::tr("is empty"));
        }
    }
}

WeightImage StateReader::ReadWeight(const JsonNode& node) const
{
    WeightImage weight;
    weight.brightness = static_cast<int>(node["brightness"].ToInteger(-mostAdjust, mostAdjust));
    weight.contrast = static_cast<int>(node["contrast"].ToInteger(-mostAdjust, mostAdjust));
    weight.image.filePath = LinkedFileFromJson(node, m_folder);
    if (node.Has("image")) {
        if (!weight.image.filePath.isEmpty()) {
            node.Refuse(SceneText::tr("is both linked and embedded"));
        }
        const qint64 last = static_cast<qint64>(m_images.size()) - 1;
        weight.image.embedded = m_images[static_cast<std::size_t>(node["image"].ToInteger(0, last))];
    }
    return weight;
}

template <>
ClothState StateReader::Read(const JsonNode& node) const
{
    auto state = StateFromJson<ClothState>(node, m_version < SceneFormat::version);
    if (m_version >= weightImageVersion) {
        state.weight = ReadWeight(node["weight"]);
    }
    return state;
}

template <>
MaterialState StateReader::Read(const JsonNode& node) const
{
    return StateFromJson<MaterialState>(node, m_version < SceneFormat::version);
}

template <>
ObjectState StateReader::Read(const JsonNode& node) const
{
    auto state = StateFromJson<ObjectState>(node, m_version < SceneFormat::version);
    if (m_version >= weightImageVersion) {
        state.ignoredMaterials = IgnoredFromJson(node["ignoredMaterials"]);
    }
    return state;
}

template <>
ObjectTraits StateReader::Read(const JsonNode& node) const
{
    return StateFromJson<ObjectTraits>(node, m_version < SceneFormat::version);
}

} // namespace Host
