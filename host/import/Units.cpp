#include "host/import/Units.h"

#include <QCoreApplication>
#include <QStringList>

#include <assimp/scene.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace Host {

const std::vector<LengthUnit>& LengthUnits()
{
    static const std::vector<LengthUnit> units{
        {QStringLiteral("mm"), QT_TRANSLATE_NOOP("Units", "Millimetre"), 0.1},
        {QStringLiteral("cm"), QT_TRANSLATE_NOOP("Units", "Centimetre"), 1.0},
        {QStringLiteral("in"), QT_TRANSLATE_NOOP("Units", "Inch"), 2.54},
        {QStringLiteral("ft"), QT_TRANSLATE_NOOP("Units", "Foot"), 30.48},
        {QStringLiteral("m"), QT_TRANSLATE_NOOP("Units", "Metre"), 100.0},
    };
    return units;
}

QString LengthUnit::Name() const
{
    return QCoreApplication::translate("Units", name);
}

std::optional<LengthUnit> UnitCalled(const QString& key)
{
    const std::vector<LengthUnit>& units = LengthUnits();
    const auto found =
        std::find_if(units.begin(), units.end(), [&key](const LengthUnit& unit) { return unit.key == key; });
    return found == units.end() ? std::nullopt : std::make_optional(*found);
}

LengthUnit GuessUnit(double size)
{
    constexpr double human = 170.0;
    const std::array candidates{*UnitCalled(QStringLiteral("cm")), *UnitCalled(QStringLiteral("mm")),
                                *UnitCalled(QStringLiteral("m"))};
    if (!std::isfinite(size) || size <= 0.0) {
        return candidates.front();
    }
    const auto distance = [size](const LengthUnit& unit) {
        return std::fabs(std::log(size * unit.centimetres / human));
    };
    return *std::min_element(
        candidates.begin(), candidates.end(),
        [&distance](const LengthUnit& a, const LengthUnit& b) { return distance(a) < distance(b); });
}

std::optional<double> UnitOfFile(const aiScene& scene, const QString& suffix)
{
    constexpr double metre = 100.0;
    // Assimp brings Collada files to metres by the unit that they name.
    static const QStringList metric{QStringLiteral("gltf"), QStringLiteral("glb"), QStringLiteral("dae"),
                                    QStringLiteral("zae")};
    if (metric.contains(suffix)) {
        return metre;
    }
    if (suffix != QLatin1String("fbx")) {
        return std::nullopt;
    }
    float factor = 1.0F; // centimetres, which is also what a file without the setting means
    if (scene.mMetaData) {
        double precise = 0.0;
        if (!scene.mMetaData->Get("UnitScaleFactor", factor) && scene.mMetaData->Get("UnitScaleFactor", precise)) {
            factor = static_cast<float>(precise);
        }
    }
    return std::isfinite(factor) && factor > 0.0F ? static_cast<double>(factor) : 1.0;
}

} // namespace Host
