#pragma once

#include "host/simulation/ClothPreview.h"

#include <QString>

/// The demo character and the shipped presets, for programs that measure the preview.
namespace DemoPreview {

/// A preset file: a cloth or hair preset has values of everything but the wind, a wind preset has nothing else.
struct Preset
{
    QString name;
    Host::ClothValues values;
};

/// The presets of a folder of the gallery: 0 cloth, 1 hair, 2 wind.
std::vector<Preset> Presets(int folder);

/// \p cloth with the wind of \p wind.
Host::ClothValues Combined(const Preset& cloth, const Preset& wind);

/// The demo character with soft cloth physics on \p materials, each under the weight image that hangs it from above.
/// Ends the program when the model cannot be read.
Host::Object Character(const QStringList& materials);

/// The image of a weight image that is linked or embedded.
QImage DecodeWeight(const Host::Texture& texture);

/// Gives all materials that simulate the same values.
void SetValues(Host::PreviewModel& model, const Host::ClothValues& values);

} // namespace DemoPreview
