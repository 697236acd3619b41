#include "host/simulation/WalkPose.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Host {

namespace {

constexpr float pi = 3.14159265F;
constexpr float degree = pi / 180.0F;

// Shares of the height.
constexpr float hip = 0.53F;
constexpr float knee = 0.28F;
constexpr float kneeSize = 0.04F; ///< How far above and below the knee the leg bends.
constexpr float shoulder = 0.80F;
constexpr float legTop = 0.60F; ///< No leg is higher.
constexpr float besideMiddle = 0.02F;
constexpr float besideBody = 0.10F;
constexpr float rise = 0.008F;

constexpr float legSwing = 20.0F * degree;
constexpr float kneeBend = 35.0F * degree;
constexpr float armSwing = 16.0F * degree;

struct Box
{
    Vector low = Vector::Constant(std::numeric_limits<float>::max());
    Vector high = Vector::Constant(std::numeric_limits<float>::lowest());
};

/// Turns \p place about the line along x at \p y; a positive angle moves what is below forwards.
void Swing(Vector& place, float y, float angle)
{
    const float down = y - place.y();
    const float ahead = place.z();
    const float s = std::sin(angle);
    const float c = std::cos(angle);
    place.y() = y - (c * down - s * ahead);
    place.z() = s * down + c * ahead;
}

float Smooth(float share)
{
    const float s = std::clamp(share, 0.0F, 1.0F);
    return s * s * (3.0F - 2.0F * s);
}

} // namespace

WalkPose::WalkPose(const Vectors& places, const IndexTriangles& triangles, float height)
    : m_height(height)
    , m_limbs(places.size(), Limb::None)
{
    Sort(places, triangles);
}

void WalkPose::Sort(const Vectors& places, const IndexTriangles& triangles)
{
    const std::vector<int> pieceOf = PieceOfVertex(places.size(), triangles);
    std::vector<Box> boxes;
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (pieceOf[i] >= 0) {
            boxes.resize(std::max(boxes.size(), std::size_t(pieceOf[i]) + 1));
            Box& box = boxes[std::size_t(pieceOf[i])];
            box.low = box.low.cwiseMin(places[i]);
            box.high = box.high.cwiseMax(places[i]);
        }
    }
    const auto limbOf = [&](const Box& box) {
        const float x = 0.5F * (box.low.x() + box.high.x()) / m_height;
        const float low = box.low.y() / m_height;
        const float high = box.high.y() / m_height;
        if (high < legTop && std::fabs(x) > besideMiddle) {
            return x > 0.0F ? Limb::LeftLeg : Limb::RightLeg;
        }
        if (high > legTop && low < legTop && std::fabs(x) > besideBody) {
            return x > 0.0F ? Limb::LeftArm : Limb::RightArm;
        }
        return Limb::None;
    };
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (pieceOf[i] >= 0) {
            m_limbs[i] = limbOf(boxes[std::size_t(pieceOf[i])]);
        }
    }
}

float WalkPose::Rise(const MotionPhase& phase) const
{
    // Twice a turn: once for each leg.
    return float(phase.strength) * rise * m_height * (1.0F - std::cos(4.0F * pi * float(std::fmod(phase.turns, 1.0))));
}

void WalkPose::Apply(const MotionPhase& phase, Vectors& places) const
{
    const auto strength = float(phase.strength);
    const float turn = 2.0F * pi * float(std::fmod(phase.turns, 1.0));
    const float up = Rise(phase);
    for (std::size_t i = 0; i < places.size(); ++i) {
        Vector& place = places[i];
        const bool left = m_limbs[i] == Limb::LeftLeg || m_limbs[i] == Limb::RightArm; // these swing together
        const float angle = left ? turn : turn + pi;
        switch (m_limbs[i]) {
        case Limb::LeftLeg:
        case Limb::RightLeg: {
            const float below = Smooth((knee + kneeSize - place.y() / m_height) / (2.0F * kneeSize));
            // The knee bends while the leg comes forwards.
            const float bend =
                kneeBend * strength * below * std::max(0.0F, std::cos(angle)) * std::max(0.0F, std::cos(angle));
            Swing(place, knee * m_height, -bend);
            Swing(place, hip * m_height, legSwing * strength * std::sin(angle));
            break;
        }
        case Limb::LeftArm:
        case Limb::RightArm:
            Swing(place, shoulder * m_height, armSwing * strength * std::sin(angle));
            break;
        case Limb::None:
            break;
        }
        place.y() += up;
    }
}

} // namespace Host
