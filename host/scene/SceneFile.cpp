#include "host/scene/SceneFile.h"

#include "host/scene/JsonLimits.h"
#include "host/scene/JsonNode.h"
#include "host/scene/Limits.h"
#include "host/scene/SaveFile.h"
#include "host/scene/Scene.h"
#include "host/scene/SceneJson.h"
#include "host/scene/SceneText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <new>

namespace Host {

namespace {

SceneFileResult Refused(const QString& sentence, const QString& path, const QString& reason = {})
{
    const QString shown = QDir::toNativeSeparators(path);
    return {false, reason.isNull() ? sentence.arg(shown) : sentence.arg(shown, reason)};
}

SceneFileResult NotSaved(const QString& path, const QString& reason)
{
    return Refused(SceneText::tr("The scene could not be saved as \"%1\": %2."), path, reason);
}

SceneFileResult NotLoaded(const QString& path, const QString& reason)
{
    return Refused(SceneText::tr("The scene file \"%1\" could not be loaded: %2."), path, reason);
}

template <class Item>
qint64 BytesOf(const std::vector<Item>& items)
{
    return static_cast<qint64>(items.size() * sizeof(Item));
}

/// The size of everything in \p scene that may be large.
qint64 BytesOf(const Scene& scene)
{
    qint64 size = 0;
    for (const auto& object : scene.AllObjects()) {
        for (const Mesh& mesh : object->meshes) {
            size += BytesOf(mesh.positions) + BytesOf(mesh.normals) + BytesOf(mesh.uvs);
            for (const MaterialSlot& slot : mesh.materialSlots) {
                size += BytesOf(slot.indices) + slot.cloth.weight.image.embedded.size();
            }
        }
        for (const Material& material : object->materials) {
            for (const auto& texture : material.textures) {
                size += texture.second.embedded.size();
            }
        }
    }
    return size;
}

SceneFileResult Save(const Scene& scene, const QString& path)
{
    const QFileInfo info(path);
    if (path.isEmpty()) {
        return NotSaved(path, SceneText::tr("it has no name"));
    }
    if (info.exists() && !info.isFile()) {
        return NotSaved(path, SceneText::tr("it is not a file"));
    }
    const QString tooLarge = SceneText::tr("it is too large");
    const QString tooMuch = scene.Size().ReasonToRefuse();
    if (!tooMuch.isNull()) {
        return NotSaved(path, tooMuch);
    }
    if (BytesOf(scene) > Limits::sceneFileSize) {
        return NotSaved(path, tooLarge);
    }
    const QByteArray text = QJsonDocument(SceneToJson(scene, info.absoluteDir())).toJson(QJsonDocument::Compact);
    if (text.size() > Limits::sceneFileSize) {
        return NotSaved(path, tooLarge);
    }
    const QString unreadable = ReasonToRefuseJson(text); // what could not be loaded again is not saved either
    if (!unreadable.isNull()) {
        return NotSaved(path, unreadable);
    }
    const QString problem = SaveFile(path, text);
    return problem.isNull() ? SceneFileResult{true, {}} : NotSaved(path, problem);
}

SceneFileResult Load(const QString& path, std::unique_ptr<Scene>& scene)
{
    const QFileInfo info(path);
    if (!info.exists()) {
        return Refused(SceneText::tr("There is no scene file \"%1\"."), path);
    }
    if (!info.isFile()) {
        return Refused(SceneText::tr("\"%1\" is not a file."), path);
    }
    if (info.size() == 0) {
        return Refused(SceneText::tr("The scene file \"%1\" is empty."), path);
    }
    if (info.size() > Limits::sceneFileSize) {
        return NotLoaded(path, SceneText::tr("it is too large"));
    }
    QFile file(path);
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (file.error() != QFileDevice::NoError) {
        return NotLoaded(path, file.errorString());
    }
    const QString unreadable = ReasonToRefuseJson(text);
    if (!unreadable.isNull()) {
        return NotLoaded(path, unreadable);
    }
    QJsonParseError parsing{};
    const QJsonDocument document = QJsonDocument::fromJson(text, &parsing);
    if (parsing.error != QJsonParseError::NoError) {
        return NotLoaded(path, SceneText::tr("it is damaged or no scene file at all (%1 at byte %2)")
                                   .arg(parsing.errorString())
                                   .arg(parsing.offset));
    }
    scene = SceneFromJson(document.object(), info.absoluteDir());
    return {true, {}};
}

} // namespace

SceneFileResult SaveScene(const Scene& scene, const QString& path)
{
    try {
        return Save(scene, path);
    } catch (const std::bad_alloc&) {
        return NotSaved(path, SceneText::tr("there is not enough memory"));
    }
}

SceneFileResult LoadScene(const QString& path, std::unique_ptr<Scene>& scene)
{
    scene.reset();
    try {
        return Load(path, scene);
    } catch (const SceneFormatError& error) {
        return NotLoaded(path, error.Reason());
    } catch (const std::bad_alloc&) {
        return NotLoaded(path, SceneText::tr("there is not enough memory"));
    }
}

} // namespace Host
