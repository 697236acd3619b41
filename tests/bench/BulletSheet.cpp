#include "tests/bench/BulletSheet.h"

#include <BulletCollision/BroadphaseCollision/btDbvtBroadphase.h>
#include <BulletDynamics/ConstraintSolver/btSequentialImpulseConstraintSolver.h>
#include <BulletSoftBody/btSoftBody.h>
#include <BulletSoftBody/btSoftBodyRigidBodyCollisionConfiguration.h>
#include <BulletSoftBody/btSoftRigidDynamicsWorld.h>

namespace Bench {

namespace {

btVector3 ToBullet(const Host::Vector& v)
{
    return {v.x(), v.y(), v.z()};
}

} // namespace

class BulletSheet::Private
{
public:
    Private()
        : dispatcher(&configuration)
        , world(&dispatcher, &broadphase, &constraints, &configuration)
    {
        world.setGravity({0.0F, -981.0F, 0.0F});
        world.getWorldInfo().m_gravity = {0.0F, -981.0F, 0.0F};
        world.getWorldInfo().air_density = 0.0F;
    }

    btSoftBodyRigidBodyCollisionConfiguration configuration;
    btCollisionDispatcher dispatcher;
    btDbvtBroadphase broadphase;
    btSequentialImpulseConstraintSolver constraints;
    btSoftRigidDynamicsWorld world;
    std::unique_ptr<btSoftBody> sheet;
};

BulletSheet::BulletSheet(const Host::ClothShape& shape, int iterations)
    : d(std::make_unique<Private>())
{
    btAlignedObjectArray<btVector3> places;
    btAlignedObjectArray<btScalar> masses;
    const std::vector<float> ourMasses = Host::VertexMasses(shape);
    for (std::size_t i = 0; i < shape.rest.size(); ++i) {
        places.push_back(ToBullet(shape.rest[i]));
        masses.push_back(shape.freedom[i] > 0.0F ? ourMasses[i] : 0.0F);
    }
    d->sheet = std::make_unique<btSoftBody>(&d->world.getWorldInfo(), places.size(), &places[0], &masses[0]);
    for (const Host::StretchLink& link : Host::StretchLinks(shape)) {
        d->sheet->appendLink(link.a, link.b);
    }
    // Bullet's own way to find these needs memory that grows with the square of the vertices.
    btSoftBody::Material* const bending = d->sheet->appendMaterial();
    bending->m_kLST = 0.02F;
    for (const Host::BendLink& link : Host::BendLinks(shape)) {
        d->sheet->appendLink(link.vertices[2], link.vertices[3], bending);
    }
    d->sheet->m_materials[0]->m_kLST = 1.0F;
    d->sheet->m_cfg.piterations = iterations;
    d->sheet->m_cfg.kDP = 0.0F;
    d->sheet->m_cfg.collisions = 0;
    d->world.addSoftBody(d->sheet.get());
}

BulletSheet::~BulletSheet()
{
    d->world.removeSoftBody(d->sheet.get());
}

void BulletSheet::Step(float duration)
{
    d->world.stepSimulation(duration, 0);
}

Host::Vectors BulletSheet::Positions() const
{
    Host::Vectors positions;
    for (int i = 0; i < d->sheet->m_nodes.size(); ++i) {
        const btVector3& place = d->sheet->m_nodes[i].m_x;
        positions.emplace_back(place.x(), place.y(), place.z(), 0.0F);
    }
    return positions;
}

} // namespace Bench
