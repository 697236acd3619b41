#include "host/services/SoftIniProfile.h"

#include "host/scene/StateFields.h"
#include "ui/IniFile.h"

#include <QFileInfo>
#include <QSettings>
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

/// Collects a change for each field of the record \p part of a cloth that \p file holds in its current group.
template <class Record>
void CollectFields(const QSettings& file, Record ClothState::*part, std::vector<ClothChange>& changes)
{
    const auto collect = [&](const auto& field) {
        if (!file.contains(QLatin1String(field.name))) {
            return;
        }
        using Value = std::decay_t<decltype(std::declval<Record>().*field.member)>;
        // What is left of the padding of a record is no setting.
        if constexpr (!std::is_same_v<Value, decltype(MV::SoftClothPropertyData::reserved)>) {
            Value value{};
            Convert(file.value(QLatin1String(field.name)), value);
            changes.push_back([part, member = field.member, value](ClothState& cloth) { cloth.*part.*member = value; });
        }
    };
    std::apply([&](const auto&... fields) { (collect(fields), ...); }, FieldsOf(Record()));
}

template <class Record>
void CollectGroup(QSettings& file, const char* group, Record ClothState::*part, std::vector<ClothChange>& changes)
{
    file.beginGroup(QLatin1String(group));
    CollectFields(file, part, changes);
    file.endGroup();
}

} // namespace

std::optional<ClothChange> ReadSoftIni(const QString& path)
{
    if (!QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    MV::CIniReader reader(path);
    if (!reader.IsRead()) {
        return std::nullopt;
    }
    QSettings& file = reader.Settings();
    std::vector<ClothChange> changes;
    const QString gravity = QStringLiteral("useGlobalGravity");
    if (file.contains(gravity)) {
        changes.push_back([use = file.value(gravity).toBool()](ClothState& cloth) { cloth.useGlobalGravity = use; });
    }
    CollectGroup(file, "property", &ClothState::property, changes);
    CollectGroup(file, "collision", &ClothState::collision, changes);
    CollectGroup(file, "wind", &ClothState::wind, changes);
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
