#pragma once

#include <QJsonValue>
#include <QString>

#include <exception>
#include <vector>

namespace Host {

/// Thrown while a scene file is read: it is not what it should be.
class SceneFormatError : public std::exception
{
public:
    /// \param reason a sentence that says where in the file and what, without the full stop
    explicit SceneFormatError(QString reason);

    const QString& Reason() const { return m_reason; }
    const char* what() const noexcept override { return "scene format error"; }

private:
    QString m_reason;
};

/// A value of a JSON document that knows its place there. Everything that asks it for something that it is not throws
/// a SceneFormatError naming the place.
class JsonNode
{
public:
    JsonNode(QJsonValue value, QString place);

    bool Has(const char* name) const;
    JsonNode operator[](const char* name) const;
    std::vector<JsonNode> Items() const;

    bool ToBool() const;
    QString ToText() const;
    double ToNumber() const;
    /// A whole number written as a JSON number, which is exact up to 2^53.
    qint64 ToInteger(qint64 minimum, qint64 maximum) const;
    /// The bytes of a base64 text.
    QByteArray ToBytes() const;

    bool IsText() const { return m_value.isString(); }

    /// Throws "\a place \p complaint".
    [[noreturn]] void Refuse(const QString& complaint) const;

private:
    void Require(QJsonValue::Type type, const char* complaint) const;

    QJsonValue m_value;
    QString m_place;
};

} // namespace Host
