#include "host/services/JournalText.h"

#include "host/scene/Handles.h"
#include "host/scene/RecordFields.h"
#include "host/scene/Scene.h"
#include "host/services/ImageHandles.h"

#include <QAction>
#include <QByteArray>
#include <QWidget>

#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>
#include <type_traits>

namespace Host {

namespace {

/// As short as it can be with no other number looking like it. All bits of what is not a number.
QString NumberText(float value)
{
    if (std::isnan(value)) {
        quint32 bits = 0;
        std::memcpy(&bits, &value, sizeof(bits));
        return QStringLiteral("nan 0x%1").arg(bits, 8, 16, QLatin1Char('0'));
    }
    std::array<char, 32> text{};
    const auto [end, error] = std::to_chars(text.begin(), text.end(), value);
    Q_ASSERT(error == std::errc());
    return QString::fromLatin1(text.data(), int(end - text.data()));
}

template <class Value>
QString ValueText(Value value)
{
    if constexpr (std::is_same_v<Value, float>) {
        return NumberText(value);
    } else if constexpr (std::is_same_v<Value, bool>) {
        return value ? QStringLiteral("true") : QStringLiteral("false");
    } else {
        return QString::number(value);
    }
}

template <std::size_t size>
QString ValueText(const std::array<float, size>& values)
{
    QStringList texts;
    for (const float value : values) {
        texts.append(NumberText(value));
    }
    return QLatin1Char('(') + texts.join(QLatin1String(", ")) + QLatin1Char(')');
}

/// Hexadecimal; a single 0 for bytes that are all zero.
template <std::size_t size>
QString ValueText(const std::array<unsigned char, size>& bytes)
{
    const QByteArray raw(reinterpret_cast<const char*>(bytes.data()), int(size));
    return raw.count('\0') == raw.size() ? QStringLiteral("0") : QString::fromLatin1(raw.toHex());
}

template <class Record>
QString RecordText(const Record& record)
{
    QStringList texts;
    ForEachField(record, [&](const auto& field) {
        texts.append(QLatin1String(field.name) + QLatin1Char('=') + ValueText(record.*field.member));
    });
    return QLatin1Char('{') + texts.join(QLatin1String(", ")) + QLatin1Char('}');
}

QString ObjectText(const QObject* object)
{
    if (!object) {
        return QStringLiteral("null");
    }
    return object->objectName().isEmpty() ? QString::fromLatin1(object->metaObject()->className())
                                          : object->objectName();
}

} // namespace

QString JournalText::operator()(bool value) const
{
    return ValueText(value);
}

QString JournalText::operator()(const QString& value) const
{
    return QLatin1Char('"') + value + QLatin1Char('"');
}

QString JournalText::operator()(const BF::CHandle* handleOrId) const
{
    if (!handleOrId) {
        return QStringLiteral("null");
    }
    const QString name = m_scene.NameOf(handleOrId);
    if (!name.isNull()) {
        return (*this)(name);
    }
    const QString image = m_images ? m_images->NameOf(handleOrId, m_scene) : QString();
    return image.isNull() ? QStringLiteral("unknown 0x%1").arg(ToId(handleOrId), 0, 16) : image;
}

QString JournalText::operator()(BF::Result value) const
{
    return value.IsFailure() ? QStringLiteral("0x%1").arg(quint32(value.Code()), 8, 16, QLatin1Char('0'))
                             : QString::number(value.Code());
}

QString JournalText::operator()(const QAction* value) const
{
    return ObjectText(value);
}

QString JournalText::operator()(const QWidget* value) const
{
    return ObjectText(value);
}

QString JournalText::operator()(const MV::SoftClothPropertyData& value) const
{
    return RecordText(value);
}

QString JournalText::operator()(const MV::SoftClothCollisionData& value) const
{
    return RecordText(value);
}

QString JournalText::operator()(const MV::SoftClothWindData& value) const
{
    return RecordText(value);
}

QString JournalText::operator()(const MV::WeightImageAdjust& value) const
{
    return RecordText(value);
}

QString JournalText::operator()(const MV::WeightImageState& value) const
{
    return RecordText(value);
}

QString JournalText::operator()(const std::map<std::wstring, BF::CArrayList<std::wstring>>& value) const
{
    QStringList texts;
    for (const auto& [name, list] : value) {
        texts.append((*this)(name) + QLatin1String(": ") + (*this)(list));
    }
    return QLatin1Char('{') + texts.join(QLatin1String(", ")) + QLatin1Char('}');
}

} // namespace Host
