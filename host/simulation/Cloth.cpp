#include "host/simulation/Cloth.h"

#include "host/simulation/BodyCollider.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Host {

namespace {

constexpr float farthest = 1e7F;             // cm, a hundred kilometres
constexpr float fastest = 1e6F;              // cm/s
constexpr float airInterval = 0.9F / 120.0F; ///< s; the push of the air is found again every 1/120 s.
constexpr float roundsPerSecond = 240.0F;

float ShareWithin(float rate, float time)
{
    return -std::expm1(-rate * time);
}

/// Lengths between \p places are not known better than this.
float NoiseOf(const Vectors& places)
{
    Vector largest = Vector::Zero();
    for (const Vector& place : places) {
        largest = largest.cwiseMax(place.cwiseAbs());
    }
    return 2.0F * std::numeric_limits<float>::epsilon() * largest.maxCoeff();
}

/// A link's compliance for one substep; infinite for one that does not hold at all.
float StepCompliance(float compliance, float modulus, float dt)
{
    return compliance / (modulus * dt * dt);
}

} // namespace

Cloth::Cloth(ClothShape shape)
    : m_shape(std::move(shape))
    , m_masses(VertexMasses(m_shape))
    , m_stretch(StretchLinks(m_shape))
    , m_stretchDone(m_stretch.size(), 0.0F)
    , m_bend(BendLinks(m_shape))
    , m_sails(Interleaved(m_shape.triangles))
    , m_predicted(m_shape.rest.size(), Vector::Zero())
    , m_accelerations(m_shape.rest.size(), Vector::Zero())
    , m_selfCollision(m_shape)
{
    FindHeld();
    Reset(m_shape.rest);
}

void Cloth::SetFreedom(std::vector<float> freedom)
{
    m_shape.freedom = std::move(freedom);
    FindHeld();
}

void Cloth::FindHeld()
{
    const std::size_t count = m_shape.rest.size();
    m_tethers = Tethers(m_shape);
    m_held.clear();
    m_tied.clear();
    m_particles.inverseMasses.resize(count);
    for (std::size_t i = 0; i < count; ++i) {
        const float freedom = m_shape.freedom[i];
        m_particles.inverseMasses[i] = freedom > 0.0F ? 1.0F / m_masses[i] : 0.0F;
        if (!(freedom > 0.0F)) {
            m_held.push_back(int(i));
        } else if (std::isfinite(freedom)) {
            m_tied.push_back(int(i));
        }
    }
}

void Cloth::Reset(const Vectors& places)
{
    m_particles.places = places;
    m_particles.previous = places;
    m_particles.velocities.assign(places.size(), Vector::Zero());
    m_followEnd = places;
    m_followStart = places;
    m_followed = places;
    m_substepsOwed = 0.0;
    m_air.clear();
    m_sinceAir = 0.0F;
    m_selfCollision.Clear();
    m_bodyContacts.Clear(places.size());
}

void Cloth::GoOnFrom(const Cloth& other)
{
    m_particles.places = other.m_particles.places;
    m_particles.previous = other.m_particles.previous;
    m_particles.velocities = other.m_particles.velocities;
    m_followStart = other.m_followStart;
    m_followEnd = other.m_followEnd;
    m_substepsOwed = other.m_substepsOwed;
}

void Cloth::Step(const ClothFrame& frame, const Vectors& followed, BodyCollider* body)
{
    m_followStart.swap(m_followEnd);
    m_followEnd = followed;
    // As many substeps as fit, and frames that end on time: with 250 a second most have 4 and every sixth has 5.
    m_substepsOwed += double(m_values.frequency) * frame.duration;
    const int substeps = std::max(1, int(m_substepsOwed + 1e-6));
    m_substepsOwed = std::max(0.0, m_substepsOwed - substeps);
    const auto dt = float(frame.duration / substeps);

    m_lastSubstep = dt;
    m_noise = NoiseOf(m_particles.places);

    const bool collides = body && m_values.collidesWithBody;
    if (m_values.collidesWithItself) {
        m_selfCollision.FindPairs(m_particles, m_values.selfMargin);
    } else {
        m_selfCollision.Clear();
    }
    for (int i = 0; i < substeps; ++i) {
        Predict(frame, dt);
        MoveHeld(float(i + 1) / float(substeps));
        SolveLinks(dt);
        SolveTethers(dt);
        SolveFreedom();
        if (m_values.collidesWithItself) {
            m_selfCollision.Solve(m_particles);
        }
        if (collides) {
            body->MoveTo(float(i + 1) / float(substeps));
            m_bodyContacts.Solve(m_particles, *body, m_values, dt);
        }
        UpdateVelocities(dt);
        if (collides) {
            m_bodyContacts.CalmVelocities(m_particles, dt);
        }
    }
}

void Cloth::Predict(const ClothFrame& frame, float dt)
{
    const Vector constant = frame.acceleration - m_values.linearInertia * frame.linearAcceleration;
    const Vector spin = frame.angularVelocity;
    const Vector spinUp = m_values.angularInertia * frame.angularAcceleration;
    const bool turns = !spin.isZero() || !spinUp.isZero();
    for (std::size_t i = 0; i < m_accelerations.size(); ++i) {
        Vector acceleration = constant;
        if (turns) {
            const Vector& place = m_particles.places[i];
            const Vector& velocity = m_particles.velocities[i];
            acceleration -= Cross(spinUp, place);
            acceleration -=
                m_values.centrifugalInertia * (Cross(spin, Cross(spin, place)) + 2.0F * Cross(spin, velocity));
        }
        m_accelerations[i] = acceleration;
    }
    if (m_values.dragRate > 0.0F) {
        m_sinceAir += dt;
        if (m_sinceAir > airInterval || m_air.empty()) {
            FindAir(frame, std::max(dt, airInterval));
            m_sinceAir = 0.0F;
        }
        for (std::size_t i = 0; i < m_accelerations.size(); ++i) {
            m_accelerations[i] += m_air[i];
        }
    }
    m_particles.previous.swap(m_particles.places);
    for (std::size_t i = 0; i < m_accelerations.size(); ++i) {
        m_predicted[i] = m_particles.previous[i] + dt * (m_particles.velocities[i] + (0.5F * dt) * m_accelerations[i]);
    }
    m_particles.places = m_predicted;
}

/// Each triangle is pushed along its normal, the faster the air comes at it. The push is what is left to do after
/// \p dt of slowing down, and so never turns the triangle's motion round.
void Cloth::FindAir(const ClothFrame& frame, float dt)
{
    m_air.assign(m_accelerations.size(), Vector::Zero());
    const float rate = ShareWithin(m_values.dragRate, dt) / dt;
    const bool turns = !frame.angularVelocity.isZero();
    for (const auto& triangle : m_sails) {
        const auto [a, b, c] = triangle;
        const Vector& corner = m_particles.places[std::size_t(a)];
        const Vector normal =
            Cross(m_particles.places[std::size_t(b)] - corner, m_particles.places[std::size_t(c)] - corner);
        const float square = normal.squaredNorm();
        if (square <= 1e-12F) {
            continue;
        }
        Vector velocity = (m_particles.velocities[std::size_t(a)] + m_particles.velocities[std::size_t(b)] +
                           m_particles.velocities[std::size_t(c)]) *
                          (1.0F / 3.0F);
        if (turns) {
            velocity += Cross(frame.angularVelocity, corner);
        }
        // A third of the force of the triangle's area on each corner; half the normal's length is the area.
        const float push = (frame.airVelocity - velocity).dot(normal) * rate / (6.0F * std::sqrt(square));
        for (const int vertex : triangle) {
            m_air[std::size_t(vertex)] += (push * m_particles.inverseMasses[std::size_t(vertex)]) * normal;
        }
    }
}

void Cloth::MoveHeld(float share)
{
    for (const int i : m_held) {
        const auto k = std::size_t(i);
        // Exactly where the model is at the end of the frame.
        m_followed[k] =
            share < 1.0F ? Vector(m_followStart[k] + share * (m_followEnd[k] - m_followStart[k])) : m_followEnd[k];
        m_particles.places[k] = m_followed[k];
    }
    for (const int i : m_tied) {
        const auto k = std::size_t(i);
        m_followed[k] = m_followStart[k] + share * (m_followEnd[k] - m_followStart[k]);
    }
}

/// There and back: what goes through the links in one direction only can gain energy where they are not satisfied at
/// once, and what goes through them like this cannot. Few substeps take more rounds.
void Cloth::SolveLinks(float dt)
{
    std::fill(m_stretchDone.begin(), m_stretchDone.end(), 0.0F);
    const auto rounds = std::max(1, int(std::lround(roundsPerSecond * dt)));
    for (int i = 0; i < rounds; ++i) {
        SolveStretch(dt, false);
        if (i == 0) {
            SolveBend(dt);
        }
        SolveStretch(dt, true);
    }
}

/// Extended position-based dynamics: a correction counts what the sweeps before it in the same substep have done.
void Cloth::SolveStretch(float dt, bool backwards)
{
    if (m_values.stretchModulus <= 0.0F) {
        return;
    }
    const float unit = StepCompliance(1.0F, m_values.stretchModulus, dt);
    Vector* const places = m_particles.places.data();
    const float* const weights = m_particles.inverseMasses.data();
    const float noise = m_noise;
    const auto solve = [=](const StretchLink& link, float& done) {
        Vector& a = places[link.a];
        Vector& b = places[link.b];
        const Vector between = b - a;
        const float length = std::sqrt(between.squaredNorm());
        const float compliance = unit * link.compliance;
        const float sum = weights[link.a] + weights[link.b] + compliance;
        if (sum * length > 1e-12F) {
            const float error = length - link.length - compliance * done;
            if (std::fabs(error) < noise) {
                return;
            }
            const float step = error / sum;
            done += step;
            const Vector correction = (step / length) * between;
            a += weights[link.a] * correction;
            b -= weights[link.b] * correction;
        }
    };
    if (backwards) {
        for (std::size_t i = m_stretch.size(); i-- > 0;) {
            solve(m_stretch[i], m_stretchDone[i]);
        }
    } else {
        for (std::size_t i = 0; i < m_stretch.size(); ++i) {
            solve(m_stretch[i], m_stretchDone[i]);
        }
    }
}

void Cloth::SolveBend(float dt)
{
    if (m_values.bendModulus <= 0.0F) {
        return;
    }
    const float unit = StepCompliance(1.0F, m_values.bendModulus, dt);
    Vector* const places = m_particles.places.data();
    const float* const weights = m_particles.inverseMasses.data();
    for (const BendLink& link : m_bend) {
        const auto [a, b, c, d] = link.vertices;
        const auto [fa, fb, fc, fd] = link.factors;
        const Vector sum = fa * places[a] + fb * places[b] + fc * places[c] + fd * places[d];
        const float length = std::sqrt(sum.squaredNorm());
        const float divisor = length * (fa * fa * weights[a] + fb * fb * weights[b] + fc * fc * weights[c] +
                                        fd * fd * weights[d] + unit * link.compliance);
        if (divisor > 1e-9F) {
            const Vector correction = ((link.length - length) / divisor) * sum;
            places[a] += (fa * weights[a]) * correction;
            places[b] += (fb * weights[b]) * correction;
            places[c] += (fc * weights[c]) * correction;
            places[d] += (fd * weights[d]) * correction;
        }
    }
}

void Cloth::SolveTethers(float dt)
{
    const float share = ShareWithin(m_values.tetherRate, dt);
    if (m_values.tetherLimit <= 0.0F || share <= 0.0F) {
        return;
    }
    for (const Tether& tether : m_tethers) {
        Vector& place = m_particles.places[std::size_t(tether.vertex)];
        const Vector out = place - m_particles.places[std::size_t(tether.anchor)];
        const float longest = tether.length * m_values.tetherLimit;
        const float square = out.squaredNorm();
        if (square > longest * longest) {
            place -= (share * (1.0F - longest / std::sqrt(square))) * out;
        }
    }
}

void Cloth::SolveFreedom()
{
    for (const int i : m_tied) {
        const auto k = std::size_t(i);
        const Vector out = m_particles.places[k] - m_followed[k];
        const float most = m_shape.freedom[k];
        const float square = out.squaredNorm();
        if (square > most * most) {
            m_particles.places[k] = m_followed[k] + (most / std::sqrt(square)) * out;
        }
    }
}

/// Adds the corrections to the velocities; the difference of two places alone would lose too many digits.
void Cloth::UpdateVelocities(float dt)
{
    const float kept = 1.0F - ShareWithin(m_values.dampingRate, dt);
    const float perSecond = 1.0F / dt;
    for (std::size_t i = 0; i < m_accelerations.size(); ++i) {
        Vector& velocity = m_particles.velocities[i];
        velocity = kept * (velocity + dt * m_accelerations[i] + perSecond * (m_particles.places[i] - m_predicted[i]));
    }
    for (const int i : m_held) {
        const auto k = std::size_t(i);
        m_particles.velocities[k] = perSecond * (m_particles.places[k] - m_particles.previous[k]);
    }
}

double Cloth::Energy(const Vector& acceleration) const
{
    // In the middle of the substep velocity and place belong together.
    const auto place = [this](std::size_t i) -> Vector {
        return 0.5F * (m_particles.places[i] + m_particles.previous[i]);
    };
    double energy = 0.0;
    for (std::size_t i = 0; i < m_masses.size(); ++i) {
        if (m_particles.inverseMasses[i] > 0.0F && m_lastSubstep > 0.0F) {
            const Vector velocity = (m_particles.places[i] - m_particles.previous[i]) / m_lastSubstep;
            energy += double(m_masses[i]) * (0.5 * double(velocity.squaredNorm()) - double(acceleration.dot(place(i))));
        }
    }
    return energy;
}

bool Cloth::IsSound() const
{
    const auto isSound = [](const Vectors& vectors, float limit) {
        return std::all_of(vectors.begin(), vectors.end(),
                           [limit](const Vector& v) { return v.squaredNorm() < limit * limit; });
    };
    return isSound(m_particles.places, farthest) && isSound(m_particles.velocities, fastest);
}

} // namespace Host
