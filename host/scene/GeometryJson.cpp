#include "host/scene/GeometryJson.h"

#include "host/scene/SceneText.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <limits>

namespace Host {

namespace {

using Word = quint32;

/// How qCompress() begins its result: with the size of the original.
using SizeHeader = quint32_be;

/// No compressed data can be blown up more than this; a larger claim would only eat memory.
constexpr qint64 maxCompression = 1100;
constexpr qint64 maxBytes = std::numeric_limits<int>::max() / 2;

template <class Item>
constexpr qint64 itemSize = sizeof(Item);

QByteArray CheckSum(const QByteArray& packed)
{
    return QCryptographicHash::hash(packed, QCryptographicHash::Sha1);
}

qint64 ClaimedSize(const QByteArray& packed)
{
    if (packed.size() < static_cast<int>(sizeof(SizeHeader))) {
        return 0;
    }
    return qFromBigEndian<quint32>(packed.constData());
}

QByteArray Unpack(const JsonNode& node, qint64 size)
{
    const QByteArray packed = node["data"].ToBytes();
    // Checked first, because qUncompress() complains about damaged data in public.
    if (CheckSum(packed) != node["sha1"].ToBytes()) {
        node.Refuse(SceneText::tr("is damaged: its check sum does not fit"));
    }
    if (ClaimedSize(packed) != size || size > packed.size() * maxCompression) {
        node.Refuse(SceneText::tr("does not hold as many items as it says"));
    }
    const QByteArray words = size > 0 ? qUncompress(packed) : QByteArray();
    if (words.size() != size) {
        node.Refuse(SceneText::tr("cannot be unpacked"));
    }
    return words;
}

} // namespace

template <class Item>
QJsonObject ArrayToJson(const std::vector<Item>& items)
{
    static_assert(std::is_trivially_copyable_v<Item> && sizeof(Item) % sizeof(Word) == 0);
    const auto size = static_cast<int>(items.size() * sizeof(Item));
    QByteArray words(size, Qt::Uninitialized);
    if (size > 0) {
        qToLittleEndian<Word>(items.data(), size / static_cast<int>(sizeof(Word)), words.data());
    }
    const QByteArray packed = qCompress(words);
    return {{QStringLiteral("count"), static_cast<double>(items.size())},
            {QStringLiteral("data"), QString::fromLatin1(packed.toBase64())},
            {QStringLiteral("sha1"), QString::fromLatin1(CheckSum(packed).toBase64())}};
}

std::size_t CountOfArray(const JsonNode& node)
{
    return static_cast<std::size_t>(node["count"].ToInteger(0, maxBytes));
}

template <class Item>
std::vector<Item> ArrayFromJson(const JsonNode& node)
{
    const qint64 count = node["count"].ToInteger(0, maxBytes / itemSize<Item>);
    const QByteArray words = Unpack(node, count * itemSize<Item>);
    std::vector<Item> items(static_cast<std::size_t>(count));
    if (count > 0) {
        qFromLittleEndian<Word>(words.constData(), words.size() / static_cast<int>(sizeof(Word)), items.data());
    }
    return items;
}

template QJsonObject ArrayToJson(const std::vector<QVector2D>&);
template QJsonObject ArrayToJson(const std::vector<QVector3D>&);
template QJsonObject ArrayToJson(const std::vector<quint32>&);
template std::vector<QVector2D> ArrayFromJson(const JsonNode&);
template std::vector<QVector3D> ArrayFromJson(const JsonNode&);
template std::vector<quint32> ArrayFromJson(const JsonNode&);

} // namespace Host
