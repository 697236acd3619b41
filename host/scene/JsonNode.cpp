#include "host/scene/JsonNode.h"

#include "host/scene/SceneText.h"

#include <QJsonArray>
#include <QJsonObject>

#include <cmath>
#include <utility>

namespace Host {

SceneFormatError::SceneFormatError(QString reason)
    : m_reason(std::move(reason))
{
}

JsonNode::JsonNode(QJsonValue value, QString place)
    : m_value(std::move(value))
    , m_place(std::move(place))
{
}

bool JsonNode::Has(const char* name) const
{
    return m_value.toObject().contains(QLatin1String(name));
}

JsonNode JsonNode::operator[](const char* name) const
{
    Require(QJsonValue::Object, QT_TRANSLATE_NOOP("SceneText", "must be a group of values"));
    const QString place = m_place.isEmpty() ? QString() : m_place + QLatin1Char('.');
    const JsonNode member(m_value.toObject().value(QLatin1String(name)), place + QLatin1String(name));
    if (member.m_value.isUndefined()) {
        member.Refuse(SceneText::tr("is missing"));
    }
    return member;
}

std::vector<JsonNode> JsonNode::Items() const
{
    Require(QJsonValue::Array, QT_TRANSLATE_NOOP("SceneText", "must be a list"));
    std::vector<JsonNode> items;
    const QJsonArray array = m_value.toArray();
    items.reserve(std::size_t(array.size()));
    for (int i = 0; i < array.size(); ++i) {
        items.emplace_back(array.at(i), QStringLiteral("%1[%2]").arg(m_place).arg(i));
    }
    return items;
}

bool JsonNode::ToBool() const
{
    Require(QJsonValue::Bool, QT_TRANSLATE_NOOP("SceneText", "must be true or false"));
    return m_value.toBool();
}

QString JsonNode::ToText() const
{
    Require(QJsonValue::String, QT_TRANSLATE_NOOP("SceneText", "must be text"));
    return m_value.toString();
}

double JsonNode::ToNumber() const
{
    Require(QJsonValue::Double, QT_TRANSLATE_NOOP("SceneText", "must be a number"));
    return m_value.toDouble();
}

qint64 JsonNode::ToInteger(qint64 minimum, qint64 maximum) const
{
    const double number = ToNumber();
    if (std::floor(number) != number || number < static_cast<double>(minimum) ||
        number > static_cast<double>(maximum)) {
        Refuse(SceneText::tr("must be a whole number from %1 to %2").arg(minimum).arg(maximum));
    }
    return static_cast<qint64>(number);
}

QByteArray JsonNode::ToBytes() const
{
    const auto bytes = QByteArray::fromBase64Encoding(ToText().toUtf8(), QByteArray::AbortOnBase64DecodingErrors);
    if (!bytes) {
        Refuse(SceneText::tr("is not valid base64"));
    }
    return bytes.decoded;
}

void JsonNode::Refuse(const QString& complaint) const
{
    const QString subject = m_place.isEmpty() ? SceneText::tr("the document") : m_place;
    throw SceneFormatError(subject + QLatin1Char(' ') + complaint);
}

void JsonNode::Require(QJsonValue::Type type, const char* complaint) const
{
    if (m_value.type() != type) {
        Refuse(SceneText::tr(complaint));
    }
}

} // namespace Host
