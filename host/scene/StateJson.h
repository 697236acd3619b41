#pragma once

#include "host/scene/JsonNode.h"

#include <QJsonObject>

namespace Host {

/// \p record, which is a ClothState, MaterialState, ObjectState or ObjectTraits, member by member. Nothing is lost:
/// 64-bit numbers are written as text, and so are the bits ("0x7fc00000") of the floats that JSON has no number for,
/// which are NaNs, infinities and the negative zero.
template <class Record>
QJsonObject StateToJson(const Record& record);

/// What StateToJson() wrote. Throws SceneFormatError.
/// \param isOlder  it was written by a version that may not have known all members: those that are missing keep their
///                 defaults, and of bytes in reserve, which members have been taken from since, the last ones count
template <class Record>
Record StateFromJson(const JsonNode& node, bool isOlder);

} // namespace Host
