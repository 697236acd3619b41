#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <vector>

struct aiScene;

namespace Host {

/// A unit of length that models are made in. The unit of the scene is the centimetre.
struct LengthUnit
{
    QString key;              ///< As the command line names it: "mm", "cm", "in", "ft", "m".
    const char* name = "";    ///< In English, as the translations know it.
    double centimetres = 1.0; ///< How many a unit has.

    /// As the user reads it, in the language of the moment.
    QString Name() const;
};

/// The units that can be chosen, the smallest first.
const std::vector<LengthUnit>& LengthUnits();

/// The unit called \p key in LengthUnits(); none when there is no such unit.
std::optional<LengthUnit> UnitCalled(const QString& key);

/// The unit, of millimetre, centimetre and metre, in which something with the largest side of \p size would come
/// nearest to a human being. A centimetre where there is no size.
LengthUnit GuessUnit(double size);

/// Asked for the unit of a model whose file does not name one.
/// \param size  the largest side of the model in units of the file
/// \return the unit, or none to cancel the import
using UnitChoice = std::function<std::optional<LengthUnit>(double size)>;

/// How many centimetres a unit of the scene has that Assimp read from a file with \p suffix (lower case, without a
/// dot); none when files of this kind do not tell.
std::optional<double> UnitOfFile(const aiScene& scene, const QString& suffix);

} // namespace Host
