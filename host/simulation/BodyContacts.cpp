#include "host/simulation/BodyContacts.h"

#include "host/simulation/PanelMapping.h"

#include <algorithm>
#include <cmath>

namespace Host {

namespace {

constexpr float outlook = 4.0F;     ///< How far beyond the margin a particle looks for the nearest piece, cm.
constexpr float beside = 1.0F;      ///< How far beyond the margin it looks for all pieces, cm.
constexpr float overlapping = 4.0F; ///< The same where pieces overlap: as deep as one may be in another, cm.
constexpr float leastSweep = 0.25F; ///< Moves longer than this, or than the margin, may pass through something; cm.

/// How far along a plane a particle may go before it looks again: about as far as a limb's surface stays near it.
float SlideOf(float margin)
{
    return std::clamp(0.5F * margin, 0.1F, 0.5F);
}

} // namespace

void BodyContacts::Clear(std::size_t count)
{
    m_known.assign(count, {});
    m_pushed.clear();
}

bool BodyContacts::IsStillKnown(const Known& known, const Vector& place, const BodyCollider& body, float margin) const
{
    const float left = known.clear - margin - (body.TravelAt(known.place, margin + outlook) - known.bodyTravel);
    const Vector moved = place - known.place;
    if (left <= 0.0F || moved.squaredNorm() >= left * left) {
        return false;
    }
    const auto isNear = [&](const Contact& contact) {
        return (moved - body.PlaceOf(contact.at) + contact.place).squaredNorm() < contact.clear * contact.clear;
    };
    return std::all_of(known.contacts.begin(), known.contacts.begin() + known.count, isNear);
}

void BodyContacts::Look(Known& known, Vector& place, const Vector& previous, const BodyCollider& body,
                        float margin) const
{
    const float sweep = std::max(leastSweep, margin);
    BodyCollider::SurfacePoint entry;
    if ((place - previous).squaredNorm() > sweep * sweep && body.FindEntry(previous, place, entry)) {
        place = body.PlaceOf(entry) + (0.5F * margin) * body.NormalOf(entry);
    }
    const float reach = margin + outlook;
    float all = margin + beside;
    std::array<BodyCollider::Nearest, BodyCollider::mostPieces> found;
    std::size_t count = body.FindNearest(place, reach, all, found);
    if (count > 0 && found[0].distance < all && body.IsAtJoint(found[0].at)) {
        all = std::max(all, overlapping);
        count = body.FindNearest(place, reach, all, found);
    }
    known.place = place;
    known.bodyTravel = body.TravelAt(place, reach);
    known.clear = count == 0 ? reach : std::max(all, found[0].distance);
    if (count == found.size()) {
        known.clear = std::max(std::fabs(found.back().distance), margin + 2.0F * SlideOf(margin));
    }
    known.count = int(count);
    for (std::size_t i = 0; i < count; ++i) {
        known.contacts[i] = {found[i].at, found[i].normal, body.PlaceOf(found[i].at),
                             std::max(SlideOf(margin), 0.5F * (found[i].distance - margin))};
    }
}

void BodyContacts::Solve(ClothParticles& particles, const BodyCollider& body, const SolverValues& values, float dt)
{
    m_pushed.clear();
    if (body.IsEmpty()) {
        return;
    }
    for (std::size_t i = 0; i < m_known.size(); ++i) {
        if (particles.inverseMasses[i] <= 0.0F || !particles.places[i].allFinite()) {
            continue;
        }
        Known& known = m_known[i];
        if (!IsStillKnown(known, particles.places[i], body, values.bodyMargin)) {
            Look(known, particles.places[i], particles.previous[i], body, values.bodyMargin);
        }
        if (known.count > 0) {
            Resolve(i, known, particles, body, values);
        }
    }
    AddFriction(particles, values.friction, dt);
}

void BodyContacts::Resolve(std::size_t i, const Known& known, ClothParticles& particles, const BodyCollider& body,
                           const SolverValues& values)
{
    Vector& place = particles.places[i];
    for (int k = 0; k < known.count; ++k) {
        const Contact& contact = known.contacts[std::size_t(k)];
        const float missing = values.bodyMargin - contact.normal.dot(place - body.PlaceOf(contact.at));
        if (missing > 0.0F) {
            place += missing * contact.normal;
            m_pushed.push_back({i, contact.normal, body.VelocityOf(contact.at), missing});
        }
    }
}

/// Coulomb's law for places: along the surface a particle is held back by as much as it was pushed out, times the
/// coefficient.
void BodyContacts::AddFriction(ClothParticles& particles, float friction, float dt) const
{
    for (const Pushed& pushed : m_pushed) {
        Vector& place = particles.places[pushed.particle];
        const Vector slip = place - particles.previous[pushed.particle] - dt * pushed.bodyVelocity;
        const Vector along = slip - pushed.normal.dot(slip) * pushed.normal;
        const float length = along.norm();
        const float most = friction * pushed.distance;
        if (length > 0.0F) {
            place -= std::min(1.0F, most / length) * along;
        }
    }
}

void BodyContacts::CalmVelocities(ClothParticles& particles, float dt) const
{
    for (const Pushed& pushed : m_pushed) {
        Vector& velocity = particles.velocities[pushed.particle];
        const float after = pushed.normal.dot(velocity - pushed.bodyVelocity);
        const float without = after - pushed.distance / dt;
        velocity -= std::max(0.0F, after - std::max(0.0F, without)) * pushed.normal;
    }
}

} // namespace Host
