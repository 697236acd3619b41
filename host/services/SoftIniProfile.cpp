#include "host/services/SoftIniProfile.h"

#include "host/scene/StateFields.h"
#include "ui/IniFile.h"

#include <QFileInfo>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <vector>

namespace Host {

namespace {

void Convert(const QVariant& from, bool& to)
{
    to = from.toBool();
}

void Convert(const QVariant& from, qint64& to)
{
    to = from.toLongLong();
}

void Convert(const QVariant& from, float& to)
{
    to = from.toFloat();
}

/// A list that is too short leaves the rest at 0.
template <std::size_t size>
void Convert(const QVariant& from, std::array<float, size>& to)
{
    const QStringList texts = from.toStringList();
    for (std::size_t i = 0; i < size; ++i) {
        to[i] = texts.value(int(i)).trimmed().toFloat();
    }
}

/// Collects a change for each field of the record \p part of a cloth that \p group holds.
template <class Record>
void CollectFields(const MV::CIniGroup& group, Record ClothState::*part, std::vector<ClothChange>& changes)
{
    const auto collect = [&](const auto& field) {
        if (!group.Contains(QLatin1String(field.name))) {
            return;
        }
        using Value = std::decay_t<decltype(std::declval<Record>().*field.member)>;
        // What is left of the padding of a record is no setting.
        if constexpr (!std::is_same_v<Value, decltype(MV::SoftClothPropertyData::reserved)>) {
            Value value{};
            Convert(group.Value(QLatin1String(field.name)), value);
            changes.push_back([part, member = field.member, value](ClothState& cloth) { cloth.*part.*member = value; });
        }
    };
    ForEachField(Record(), collect);
}

} // namespace

std::optional<ClothChange> ReadSoftIni(const QString& path)
{
    if (!QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    const auto file = MV::CIniFile::Read(path);
    if (!file) {
        return std::nullopt;
    }
    std::vector<ClothChange> changes;
    const MV::CIniGroup& top = file->Group({});
    const QString gravity = QStringLiteral("useGlobalGravity");
    if (top.Contains(gravity)) {
        changes.push_back([use = top.Value(gravity).toBool()](ClothState& cloth) { cloth.useGlobalGravity = use; });
    }
    CollectFields(file->Group(QStringLiteral("property")), &ClothState::property, changes);
    CollectFields(file->Group(QStringLiteral("collision")), &ClothState::collision, changes);
    CollectFields(file->Group(QStringLiteral("wind")), &ClothState::wind, changes);
    if (changes.empty()) {
        return std::nullopt;
    }
    return [changes = std::move(changes)](ClothState& cloth) {
        for (const ClothChange& change : changes) {
            change(cloth);
        }
    };
}

} // namespace Host
