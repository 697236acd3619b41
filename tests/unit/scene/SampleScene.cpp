#include "tests/unit/scene/SampleScene.h"

#include <cstring>
#include <limits>

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
    cloth.active = AnyBool(random);
    cloth.useGlobalGravity = AnyBool(random);
    auto& property = cloth.property;
    property.mass = static_cast<qint64>(random.generate64());
    property.solverFrequency = static_cast<qint64>(random.generate64());
    for (float* value : {&property.tetherStiffness, &property.tetherLimit, &property.friction, &property.damping,
                         &property.drag, &property.stiffness, &property.stiffnessFrequency, &property.bending,
                         &property.linearInertiaScale, &property.angularInertiaScale, &property.centrifugalInertiaScale,
                         &property.collisionMassScale, &property.sleepLinearVelocity, &property.wakeCounterValue,
                         &cloth.collision.rigidMargin, &cloth.collision.selfMargin, &cloth.wind.frequency}) {
        *value = AnyFloat(random);
    }
    for (unsigned char& byte : property.reserved) {
        byte = static_cast<unsigned char>(random.bounded(256));
    }
    cloth.collision.collideWithRigid = AnyBool(random);
    cloth.collision.selfCollision = AnyBool(random);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        cloth.wind.externalAcceleration.at(axis) = AnyFloat(random);
        cloth.wind.randomAcceleration.at(axis) = AnyFloat(random);
    }
    cloth.wind.randomFactor = {AnyFloat(random), AnyFloat(random)};
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
