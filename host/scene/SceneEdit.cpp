#include "host/scene/SceneEdit.h"

#include "host/scene/StateFields.h"

#include <algorithm>
#include <cstring>

namespace Host {

namespace {

template <class Value, std::enable_if_t<std::is_integral_v<Value>, int> = 0>
bool Same(Value a, Value b)
{
    return a == b;
}

/// By bits: a NaN equals itself, and the two zeros differ, so that undo gives back exactly what was there.
bool Same(float a, float b)
{
    return std::memcmp(&a, &b, sizeof(float)) == 0; // NOLINT(bugprone-suspicious-memory-comparison): see above
}

template <class Value, std::size_t size>
bool Same(const std::array<Value, size>& a, const std::array<Value, size>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), [](Value x, Value y) { return Same(x, y); });
}

template <class Record, std::enable_if_t<std::is_class_v<Record>, int> = 0>
bool Same(const Record& a, const Record& b)
{
    return std::apply([&](const auto&... field) { return (Same(a.*field.member, b.*field.member) && ...); },
                      FieldsOf(a));
}

template <class Change>
bool AllSame(const std::vector<Change>& changes)
{
    return std::all_of(changes.begin(), changes.end(),
                       [](const Change& change) { return change.before == change.after; });
}

} // namespace

bool operator==(const WeightImage& a, const WeightImage& b)
{
    const QByteArray& bytes = a.image.embedded;
    return a.image.filePath == b.image.filePath && a.brightness == b.brightness && a.contrast == b.contrast &&
           (bytes.isSharedWith(b.image.embedded) || bytes == b.image.embedded);
}

bool operator==(const ClothState& a, const ClothState& b)
{
    return Same(a, b) && a.weight == b.weight;
}

bool operator==(const MaterialState& a, const MaterialState& b)
{
    return Same(a, b);
}

bool operator==(const ObjectState& a, const ObjectState& b)
{
    return Same(a, b) && a.ignoredMaterials == b.ignoredMaterials;
}

bool operator==(const ObjectTraits& a, const ObjectTraits& b)
{
    return Same(a, b);
}

bool SceneEdit::ChangesNothing() const
{
    return AllSame(cloths) && AllSame(materials) && AllSame(objects);
}

} // namespace Host
