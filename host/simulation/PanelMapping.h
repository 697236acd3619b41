#pragma once

#include "host/simulation/Vector.h"

#include "plugin/services/SoftClothRecords.h"

namespace Host {

/// The values of one material on one mesh as the preview uses them; the records are those that the panel edits.
struct ClothValues
{
    MV::SoftClothPropertyData property;
    MV::SoftClothCollisionData collision;
    MV::SoftClothWindData wind;
    bool useGlobalGravity = true;
};

/// What the solver works with. Lengths are in centimetres, the unit of the scene, and times in seconds.
struct SolverValues
{
    float frequency = 240.0F; ///< Substeps per second, 60 to 1000.
    float gravity = 981.0F;   ///< Downwards, cm/s².
    /// Square of the speed of a pull in the cloth, cm²/s²; infinite in a cloth that does not stretch.
    float stretchModulus = 0.0F;
    /// Resistance to bending for each unit of mass, cm⁴/s²; infinite in a cloth that does not bend.
    float bendModulus = 0.0F;
    float tetherLimit = 1.0F; ///< Longest distance as a multiple of the one along the surface; 0 for no tether.
    float tetherRate = 0.0F;  ///< How fast the excess disappears, 1/s; infinite for at once.
    float dampingRate = 0.0F; ///< How fast velocity disappears, 1/s.
    float dragRate = 0.0F;    ///< How fast a triangle takes on the air's velocity along its normal, 1/s.
    float friction = 0.0F;    ///< Coulomb's coefficient.
    float linearInertia = 1.0F;
    float angularInertia = 1.0F;
    float centrifugalInertia = 1.0F;
    bool collidesWithBody = true;
    bool collidesWithItself = false;
    float bodyMargin = 0.0F; ///< Distance kept from the body, cm.
    float selfMargin = 0.0F; ///< Distance kept between the cloth's own surfaces, cm.
};

/// Translates the values of the panel into those of the solver. Numbers that are not finite count as 0, and numbers out
/// of range as the nearest that is in range.
///
/// | value of the panel | in the solver |
/// |---|---|
/// | Solver Frequency | substeps a second, exactly; at least one in each frame (60) and at most 1000 |
/// | Mass | divides the force of the air; gravity, wind and inertia are accelerations, which no mass changes |
/// | Friction | Coulomb's coefficient where the cloth touches the body |
/// | Damping | share of the velocity that is lost in one second |
/// | Drag | force of the air: at mass 1 and drag 1 a triangle's velocity against the air fades along its normal 5 times
/// a second | | Tether Limit | multiple of the distance along the surface to the nearest held vertex; 0 means no tether
/// | | Tether Stiffness | share of the excess that is corrected within one period of the stiffness frequency | |
/// Stiffness | share of a stretch of one metre that is corrected within one period of the stiffness frequency | |
/// Bending | share of a fold of 7 cm that is corrected within one period of the stiffness frequency | | Stiffness
/// Frequency | the frequency of the three above, Hz | | Inertia scales | share of the object's linear, angular and
/// centrifugal acceleration that reaches the cloth | | Collision, margins | distances in scene units | | Use Global
/// Gravity | 981 cm/s² downwards, or none | | External, Random Acceleration, Frequency, Random Factor | see Wind | |
/// Collision Mass Scale, Sleep Linear Velocity, Wake Counter Value | not shown: the body is not moved by the cloth, and
/// the preview never sleeps |
///
/// A share of 1 is corrected at once and makes the cloth rigid; 0 leaves it without resistance.
SolverValues ToSolverValues(const ClothValues& values);

/// How far a vertex may be from where the model has it, for the gray of its weight image: 0 (black) not at all, 255
/// (white) any distance (infinity), in between 10 cm × gray / (255 - gray).
float AllowedDistance(int gray);

/// The wind of one material: an acceleration of its own, and the velocity of the air that drag is measured against.
class Wind
{
public:
    /// \param seed the same seed gives the same wind
    explicit Wind(quint32 seed = 0)
        : m_seed(seed)
    {
    }

    /// The acceleration at \p time in seconds, cm/s²: external + random × factor × r. The factor, between its two
    /// values, and r, from -1 to 1 on each axis, are drawn again as often a second as the wind's frequency says.
    Vector Acceleration(const MV::SoftClothWindData& wind, double time) const;

    /// The velocity of the air, cm/s: what the acceleration comes to in one second.
    Vector Velocity(const MV::SoftClothWindData& wind, double time) const;

private:
    quint32 m_seed;
};

} // namespace Host
