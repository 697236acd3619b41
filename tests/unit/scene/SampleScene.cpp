#include "tests/unit/scene/SampleScene.h"

#include "host/scene/StateFields.h"

#include <array>
#include <cstring>
#include <limits>
#include <type_traits>

namespace Sample {

namespace {

float AnyFloat(QRandomGenerator& random)
{
    static constexpr float special[] = {0.0F,
                                        -0.0F,
                                        1e-45F,
                                        0.1F,
                                        3.0e38F,
                                        std::numeric_limits<float>::infinity(),
                                        -std::numeric_limits<float>::infinity()};
    if (random.bounded(4) == 0) {
        return special[random.bounded(static_cast<int>(std::size(special)))];
    }
    const quint32 bits = random.generate();
    float value = 0.0F;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}

bool AnyBool(QRandomGenerator& random)
{
    return random.bounded(2) == 1;
}

void SetAny(bool& value, QRandomGenerator& random)
{
    value = AnyBool(random);
}

void SetAny(float& value, QRandomGenerator& random)
{
    value = AnyFloat(random);
}

void SetAny(qint64& value, QRandomGenerator& random)
{
    value = static_cast<qint64>(random.generate64());
}

void SetAny(unsigned char& value, QRandomGenerator& random)
{
    value = static_cast<unsigned char>(random.bounded(256));
}

template <class Value, std::size_t size>
void SetAny(std::array<Value, size>& values, QRandomGenerator& random)
{
    for (Value& value : values) {
        SetAny(value, random);
    }
}

template <class Record, std::enable_if_t<std::is_class_v<Record>, int> = 0>
void SetAny(Record& record, QRandomGenerator& random)
{
    Host::ForEachField(record, [&](const auto& field) { SetAny(record.*field.member, random); });
}

} // namespace

Host::Object Robe(const QString& name)
{
    Host::Object object;
    object.name = name;
    for (const QString& material : {QStringLiteral("Silk"), QStringLiteral("Lace"), QStringLiteral("Leather")}) {
        object.materials.push_back({0, material, QColor(10, 20, 30, 40), {}, {}});
    }
    Host::Mesh robe;
    robe.name = QStringLiteral("Robe");
    robe.positions = {{0.0F, 0.0F, 0.0F}, {1.0F, 0.0F, 0.1F}, {1.0F, 1.0F, -0.0F}, {0.0F, 1.0F, 1e-45F}};
    robe.normals = {4, QVector3D(0.0F, 0.0F, 1.0F)};
    robe.uvs = {{0.0F, 0.0F}, {1.0F, 0.0F}, {1.0F, 1.0F}, {0.0F, 1.0F}};
    robe.materialSlots = {{1, {0, 1, 2}, {}}, {2, {0, 2, 3}, {}}};
    Host::Mesh belt = robe;
    belt.name = QStringLiteral("Belt");
    belt.normals.clear();
    belt.uvs.clear();
    belt.materialSlots = {{2, {3, 2, 1}, {}}, {3, {3, 1, 0}, {}}};
    object.meshes = {robe, belt};
    return object;
}

Host::ClothState AnyCloth(QRandomGenerator& random)
{
    Host::ClothState cloth;
    SetAny(cloth, random);
    return cloth;
}

Host::SceneEdit AnyEdit(const Host::Scene& scene, QRandomGenerator& random)
{
    Host::SceneEdit edit;
    edit.text = QStringLiteral("Edit %1").arg(random.generate());
    for (const Host::Object* object : scene.Objects()) {
        for (const Host::ClothAddress& address : Host::Scene::SlotsOf(*object)) {
            edit.cloths.push_back({address, {}, AnyCloth(random)});
        }
        for (const Host::Material& material : object->materials) {
            edit.materials.push_back({material.id, {}, {!material.state.softClothEnabled}});
        }
        edit.objects.push_back({object->handle, {}, {true, !object->state.softCloth, !object->state.rigidBody}});
    }
    return edit;
}

void FillScene(Host::Scene& scene)
{
    QRandomGenerator random(12);
    scene.AddObject(Robe(QStringLiteral("First")));
    scene.AddObject(Robe(QStringLiteral("Second")));
    for (int i = 0; i < 3; ++i) {
        scene.Push(AnyEdit(scene, random));
    }
    scene.UndoStack().undo();
}

bool States::operator==(const States& other) const
{
    return cloths == other.cloths && materials == other.materials && objects == other.objects;
}

States StatesOf(const Host::Scene& scene)
{
    States states;
    for (const auto& object : scene.AllObjects()) {
        for (const Host::Mesh& mesh : object->meshes) {
            for (const Host::MaterialSlot& slot : mesh.materialSlots) {
                states.cloths.push_back(slot.cloth);
            }
        }
        for (const Host::Material& material : object->materials) {
            states.materials.push_back(material.state);
        }
        states.objects.push_back(object->state);
    }
    return states;
}

} // namespace Sample
