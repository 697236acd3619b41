#pragma once

#include <QBuffer>
#include <QString>

class QIODevice;

namespace MV::Internal {

/// What a form may have at most. Whatever has more is refused before anything is built of it.
namespace FormLimits {
inline constexpr qint64 size = qint64{16} << 20; ///< In bytes.
inline constexpr int depth = 100;                ///< Elements in each other.
inline constexpr int elements = 100000;
inline constexpr int cells = 1000; ///< Rows and columns of a grid, and cells that an item takes there in one direction.
} // namespace FormLimits

/// Reads a form into \p form, opened for reading, if it is within FormLimits and declares no entities.
/// \param error  otherwise: what is wrong with it, with the line
/// \return whether it may be built
bool TakeForm(QIODevice& device, QBuffer& form, QString& error);

} // namespace MV::Internal
