#include "host/scene/StateJson.h"

#include "host/scene/SceneText.h"
#include "host/scene/StateFields.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace Host {

namespace {

template <class Value>
constexpr bool isRecord = std::is_class_v<Value>;

QJsonValue ToJson(bool value)
{
    return value;
}

void FromJson(const JsonNode& node, bool& value)
{
    value = node.ToBool();
}

QJsonValue ToJson(int value)
{
    return value;
}

void FromJson(const JsonNode& node, int& value)
{
    using Limits = std::numeric_limits<int>;
    value = static_cast<int>(node.ToInteger(Limits::min(), Limits::max()));
}

QJsonValue ToJson(quint32 value)
{
    return static_cast<double>(value);
}

void FromJson(const JsonNode& node, quint32& value)
{
    value = static_cast<quint32>(node.ToInteger(0, std::numeric_limits<quint32>::max()));
}

QJsonValue ToJson(qint64 value)
{
    return QString::number(value);
}

void FromJson(const JsonNode& node, qint64& value)
{
    bool ok = false;
    value = node.ToText().toLongLong(&ok);
    if (!ok) {
        node.Refuse(SceneText::tr("must be a whole number in quotation marks"));
    }
}

QJsonValue ToJson(float value)
{
    if (std::isfinite(value) && !(value == 0.0F && std::signbit(value))) {
        return static_cast<double>(value);
    }
    quint32 bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    return QStringLiteral("0x%1").arg(bits, 8, 16, QLatin1Char('0'));
}

void FromJson(const JsonNode& node, float& value)
{
    if (!node.IsText()) {
        const double number = node.ToNumber();
        if (std::fabs(number) > static_cast<double>(std::numeric_limits<float>::max())) {
            node.Refuse(SceneText::tr("is out of range"));
        }
        value = static_cast<float>(number);
        return;
    }
    const QString text = node.ToText();
    bool ok = false;
    const quint32 bits = text.toUInt(&ok, 16);
    if (!ok || !text.startsWith(QLatin1String("0x"))) {
        node.Refuse(SceneText::tr("must be a number"));
    }
    std::memcpy(&value, &bits, sizeof(bits));
}

template <std::size_t size>
QJsonValue ToJson(const std::array<float, size>& values)
{
    QJsonArray list;
    for (const float value : values) {
        list.append(ToJson(value));
    }
    return list;
}

template <std::size_t size>
void FromJson(const JsonNode& node, std::array<float, size>& values, bool /*isOlder*/)
{
    const std::vector<JsonNode> items = node.Items();
    if (items.size() != size) {
        node.Refuse(SceneText::tr("must be a list of %1 numbers").arg(size));
    }
    for (std::size_t i = 0; i < size; ++i) {
        FromJson(items[i], values[i]);
    }
}

template <std::size_t size>
QJsonValue ToJson(const std::array<unsigned char, size>& bytes)
{
    const QByteArray raw(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(size));
    return QString::fromLatin1(raw.toBase64());
}

template <std::size_t size>
void FromJson(const JsonNode& node, std::array<unsigned char, size>& bytes, bool isOlder)
{
    const QByteArray raw = node.ToBytes();
    const auto count = static_cast<std::size_t>(raw.size());
    if (count < size || (count > size && !isOlder)) {
        node.Refuse(SceneText::tr("must be %1 bytes").arg(size));
    }
    std::copy(raw.end() - static_cast<int>(size), raw.end(), bytes.begin());
}

template <class Record, std::enable_if_t<isRecord<Record>, int> = 0>
QJsonObject ToJson(const Record& record)
{
    QJsonObject json;
    ForEachField(record,
                 [&](const auto& field) { json.insert(QLatin1String(field.name), ToJson(record.*field.member)); });
    return json;
}

template <class Record, std::enable_if_t<isRecord<Record>, int> = 0>
void FromJson(const JsonNode& node, Record& record, bool isOlder)
{
    ForEachField(record, [&](const auto& field) {
        auto& value = record.*field.member;
        if (isOlder && !node.Has(field.name)) {
            return;
        }
        if constexpr (isRecord<std::decay_t<decltype(value)>>) {
            FromJson(node[field.name], value, isOlder);
        } else {
            FromJson(node[field.name], value);
        }
    });
}

} // namespace

template <class Record>
QJsonObject StateToJson(const Record& record)
{
    return ToJson(record);
}

template <class Record>
Record StateFromJson(const JsonNode& node, bool isOlder)
{
    Record record;
    FromJson(node, record, isOlder);
    return record;
}

template QJsonObject StateToJson(const ClothState&);
template QJsonObject StateToJson(const MaterialState&);
template QJsonObject StateToJson(const ObjectState&);
template QJsonObject StateToJson(const ObjectTraits&);
template ClothState StateFromJson(const JsonNode&, bool);
template MaterialState StateFromJson(const JsonNode&, bool);
template ObjectState StateFromJson(const JsonNode&, bool);
template ObjectTraits StateFromJson(const JsonNode&, bool);

} // namespace Host
