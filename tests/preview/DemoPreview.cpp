#include "tests/preview/DemoPreview.h"

#include "host/images/ImageDecode.h"
#include "host/import/ModelImport.h"

#include <QDir>
#include <QSettings>

namespace DemoPreview {

namespace {

class PresetFile
{
public:
    explicit PresetFile(const QString& path)
        : m_file(path, QSettings::IniFormat)
    {
    }

    float Number(const char* key) const { return m_file.value(QLatin1String(key)).toFloat(); }
    bool Flag(const char* key) const { return m_file.value(QLatin1String(key)).toBool(); }
    bool Has(const char* group) const { return m_file.childGroups().contains(QLatin1String(group)); }
    float Number(const char* key, int index) const
    {
        return m_file.value(QLatin1String(key)).toStringList().value(index).toFloat();
    }

private:
    QSettings m_file;
};

void ReadProperty(const PresetFile& file, MV::SoftClothPropertyData& property)
{
    property.mass = qint64(file.Number("Property/Mass"));
    property.solverFrequency = qint64(file.Number("Property/Solver_Frequency"));
    property.friction = file.Number("Property/Friction");
    property.damping = file.Number("Property/Damping");
    property.drag = file.Number("Property/Drag");
    property.tetherLimit = file.Number("Property/Tether_Limit");
    property.tetherStiffness = 1.0F - (file.Number("Property/Tether_Stiffness") - 1.0F) * 0.01F;
    property.stiffness = 1.0F - file.Number("Property/Stiffness") * 0.01F;
    property.bending = 1.0F - file.Number("Property/Bending") * 0.01F;
    property.linearInertiaScale = file.Number("Property/Linear_Inertia_Scale") / 10.0F;
    property.angularInertiaScale = file.Number("Property/Angular_Inertia_Scale") / 10.0F;
    property.centrifugalInertiaScale = file.Number("Property/Centrifugal_Inertia_Scale") / 10.0F;
    property.stiffnessFrequency = file.Number("Property/Stiffness_Frequency");
}

void ReadCollision(const PresetFile& file, MV::SoftClothCollisionData& collision)
{
    collision.collideWithRigid = file.Flag("Collision/Soft_Vs_Rigid_Collision");
    collision.rigidMargin = file.Number("Collision/Soft_Vs_Rigid_Collision_Margin");
    collision.selfCollision = file.Flag("Collision/Self_Collision");
    collision.selfMargin = file.Number("Collision/Self_Collision_Margin");
}

void ReadWind(const PresetFile& file, MV::SoftClothWindData& wind)
{
    for (int axis = 0; axis < 3; ++axis) {
        wind.externalAcceleration[std::size_t(axis)] = file.Number("Wind_Setting/External_Acceleration", axis);
        wind.randomAcceleration[std::size_t(axis)] = file.Number("Wind_Setting/Random_Acceleration", axis);
    }
    wind.frequency = file.Number("Wind_Setting/Wind_Frequency");
    wind.randomFactor = {file.Number("Wind_Setting/Wind_Random_Factor", 0),
                         file.Number("Wind_Setting/Wind_Random_Factor", 1)};
}

} // namespace

std::vector<Preset> Presets(int folder)
{
    std::vector<Preset> presets;
    const QDir dir(QStringLiteral(SOFTCLOTH_PRESET_FOLDER "/%1").arg(folder));
    const QFileInfoList files = dir.entryInfoList({QStringLiteral("*.ini")}, QDir::Files, QDir::Name);
    for (const QFileInfo& info : files) {
        const PresetFile file(info.filePath());
        Preset preset{info.completeBaseName().section(QLatin1Char('_'), 1), {}};
        if (file.Has("Property")) {
            ReadProperty(file, preset.values.property);
        }
        if (file.Has("Collision")) {
            ReadCollision(file, preset.values.collision);
        }
        if (file.Has("Wind_Setting")) {
            ReadWind(file, preset.values.wind);
        }
        presets.push_back(preset);
    }
    if (presets.empty()) {
        qFatal("there are no presets in %s", qPrintable(dir.path()));
    }
    return presets;
}

Host::ClothValues Combined(const Preset& cloth, const Preset& wind)
{
    Host::ClothValues values = cloth.values;
    values.wind = wind.values.wind;
    return values;
}

Host::Object Character(const QStringList& materials)
{
    Host::ImportResult result = Host::ImportModel(QStringLiteral(SOFTCLOTH_DEMO_FOLDER "/demo-character.obj"));
    if (!result.object) {
        qFatal("%s", qPrintable(result.error));
    }
    Host::Object& character = *result.object;
    character.state.softCloth = true;
    Host::Id id = 1;
    for (Host::Material& material : character.materials) {
        material.id = id++; // as the slots name them
    }
    for (Host::Mesh& mesh : character.meshes) {
        mesh.id = id++;
        for (Host::MaterialSlot& slot : mesh.materialSlots) {
            if (materials.contains(character.materials[slot.material - 1].name)) {
                slot.cloth.active = true;
                slot.cloth.weight.image.filePath = QStringLiteral(SOFTCLOTH_DEMO_FOLDER "/weights-hanging.png");
            }
        }
    }
    return std::move(character);
}

QImage DecodeWeight(const Host::Texture& texture)
{
    return texture.filePath.isEmpty() ? Host::DecodeImage(texture.embedded).image
                                      : Host::DecodeImageFile(texture.filePath).image;
}

void SetValues(Host::PreviewModel& model, const Host::ClothValues& values)
{
    for (Host::PreviewMesh& mesh : model.meshes) {
        for (Host::PreviewSlot& slot : mesh.materialSlots) {
            slot.values = values;
        }
    }
}

} // namespace DemoPreview
