#pragma once

#include <QMetaType>

namespace BF {

/// Something that the host owns: an object, a mesh, a thumbnail. Opaque; only the host looks inside.
class CHandle;

} // namespace BF

using BFHANDLE = BF::CHandle*;

Q_DECLARE_OPAQUE_POINTER(BF::CHandle*)
Q_DECLARE_METATYPE(BF::CHandle*)
