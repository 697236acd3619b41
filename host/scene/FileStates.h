#pragma once

#include "host/scene/Entities.h"
#include "host/scene/JsonNode.h"

#include <QByteArray>
#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

#include <unordered_map>
#include <vector>

namespace Host {

// States as scene files have them: the members that StateJson writes, and with them what needs the rest of the file.

/// Adds \p path to \p json, also as it is seen from \p folder, so that it is found when both move.
void InsertLinkedFile(QJsonObject& json, const QString& path, const QDir& folder);
/// The path that InsertLinkedFile() wrote, of a file that is there if possible; empty for none.
QString LinkedFileFromJson(const JsonNode& node, const QDir& folder);

/// Writes states for a file in one folder. Embedded weight images are put aside, each once.
class StateWriter
{
public:
    explicit StateWriter(const QDir& folder)
        : m_folder(folder)
    {
    }

    const QDir& Folder() const { return m_folder; }

    QJsonObject Write(const ClothState& state);
    QJsonObject Write(const MaterialState& state);
    QJsonObject Write(const ObjectState& state);

    /// The images that the states written so far name by number.
    QJsonArray Images() const;

private:
    int NumberOf(const QByteArray& image);
    QJsonObject Write(const WeightImage& weight);

    QDir m_folder;
    std::vector<QByteArray> m_images;
    std::unordered_map<const char*, int> m_numberByPlace; ///< By where the bytes are: most images are shared.
    QHash<QByteArray, int> m_numberByContent;
};

/// Reads states from a file of format version \p version in one folder. Throws SceneFormatError.
class StateReader
{
public:
    /// \param root  the document, whose images the states name by number
    StateReader(const JsonNode& root, int version, const QDir& folder);

    const QDir& Folder() const { return m_folder; }

    template <class State>
    State Read(const JsonNode& node) const;

private:
    WeightImage ReadWeight(const JsonNode& node) const;

    int m_version;
    QDir m_folder;
    std::vector<QByteArray> m_images;
};

} // namespace Host
