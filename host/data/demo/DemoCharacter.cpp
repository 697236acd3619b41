#include "host/data/demo/DemoCharacter.h"

#include <algorithm>
#include <cmath>

namespace Demo {

namespace {

// The shapes below are given in metres, the models are in centimetres.
constexpr float centimetres = 100.0F;

constexpr float pi = 3.14159265F;
const QRectF wholeTexture(0.0, 0.0, 1.0, 1.0);

const QVector3D headCenter(0.0F, 1.555F, 0.0F);
const QVector3D headRadii(0.092F, 0.125F, 0.108F);

/// \p area without a rim, so that neighbours in the texture do not bleed into it.
QRectF Inside(const QRectF& area)
{
    constexpr double rim = 0.004;
    return area.adjusted(rim, rim, -rim, -rim);
}

QRectF Half(const QRectF& area, bool right)
{
    return {area.x() + (right ? area.width() / 2.0 : 0.0), area.y(), area.width() / 2.0, area.height()};
}

void AddArm(Part& skin, bool right)
{
    static const std::vector<Ring> rings{{0.00F, 0.000F, 0.000F}, {0.02F, 0.016F, 0.022F}, {0.08F, 0.022F, 0.034F},
                                         {0.14F, 0.021F, 0.028F}, {0.19F, 0.022F, 0.023F}, {0.30F, 0.031F, 0.031F},
                                         {0.42F, 0.038F, 0.038F}, {0.52F, 0.035F, 0.036F}, {0.66F, 0.041F, 0.041F},
                                         {0.82F, 0.046F, 0.046F}, {0.94F, 0.048F, 0.050F}, {1.00F, 0.036F, 0.040F},
                                         {1.03F, 0.000F, 0.000F}};
    const float side = right ? -1.0F : 1.0F;
    const Surface arm = Limb(rings, {side * 0.43F, 0.80F, 0.03F}, {side * 0.165F, 1.375F, 0.0F});
    AddSurface(skin, arm, 18, 36, Inside(Half(SkinAreas::arms, right)));
}

void AddLeg(Part& skin, bool right)
{
    static const std::vector<Ring> rings{{0.00F, 0.000F, 0.000F}, {0.02F, 0.030F, 0.032F}, {0.09F, 0.034F, 0.038F},
                                         {0.22F, 0.045F, 0.048F}, {0.34F, 0.053F, 0.056F}, {0.46F, 0.047F, 0.050F},
                                         {0.54F, 0.052F, 0.054F}, {0.70F, 0.070F, 0.072F}, {0.86F, 0.081F, 0.084F},
                                         {0.97F, 0.080F, 0.082F}, {1.00F, 0.000F, 0.000F}};
    const float side = right ? -1.0F : 1.0F;
    const Surface leg = Limb(rings, {side * 0.095F, 0.03F, -0.005F}, {side * 0.082F, 0.92F, 0.0F});
    AddSurface(skin, leg, 20, 32, Inside(Half(SkinAreas::legs, right)));
    const Surface foot = Ellipsoid({side * 0.098F, 0.042F, 0.05F}, {0.044F, 0.042F, 0.108F});
    AddSurface(skin, foot, 20, 12, Inside(Half(SkinAreas::feet, right)));
}

Part MakeSkin()
{
    static const std::vector<Ring> torso{{0.80F, 0.000F, 0.000F}, {0.81F, 0.070F, 0.060F}, {0.86F, 0.142F, 0.104F},
                                         {0.93F, 0.165F, 0.117F}, {1.00F, 0.146F, 0.102F}, {1.08F, 0.122F, 0.086F},
                                         {1.16F, 0.130F, 0.093F}, {1.25F, 0.150F, 0.112F}, {1.33F, 0.164F, 0.104F},
                                         {1.39F, 0.150F, 0.078F}, {1.42F, 0.080F, 0.056F}, {1.45F, 0.046F, 0.046F},
                                         {1.49F, 0.043F, 0.045F}, {1.52F, 0.030F, 0.032F}, {1.53F, 0.000F, 0.000F}};
    Part skin;
    skin.material = "Body skin";
    AddSurface(skin, Lathe(torso), 40, 56, Inside(SkinAreas::torso));
    AddSurface(skin, Ellipsoid(headCenter, headRadii), 36, 28, Inside(SkinAreas::head));
    for (const bool right : {false, true}) {
        AddArm(skin, right);
        AddLeg(skin, right);
    }
    return skin;
}

/// How far from the crown the hair grows: from the brow in front to the neck at the back. \p turn as of TurnOf().
float Hairline(float turn)
{
    const float toFront = 0.5F - 0.5F * std::cos(turn);
    const float brow = 0.33F * pi;
    const float neck = 0.70F * pi;
    return neck + (brow - neck) * toFront * toFront * (3.0F - 2.0F * toFront);
}

QVector3D HairCap(float u, float v)
{
    const float turn = TurnOf(u);
    const float fromCrown = Hairline(turn) * (1.0F - v);
    // Thick on the crown, close to the skin at the edge.
    const QVector3D radii = headRadii * (1.05F + 0.09F * v);
    const float ring = std::sin(fromCrown);
    return headCenter + QVector3D(-std::sin(turn) * ring * radii.x(), std::cos(fromCrown) * radii.y(),
                                  -std::cos(turn) * ring * radii.z());
}

/// One strand of \p count around the head but for the face.
Surface HairStrand(int number, int count)
{
    constexpr float faceHalf = 0.30F * pi;
    const float place = (static_cast<float>(number) + 0.5F) / static_cast<float>(count);
    const float middle = -pi + faceHalf + place * 2.0F * (pi - faceHalf); // 0 is the back
    const float layer = number % 2 == 0 ? 1.08F : 1.13F;
    const float length = 0.205F + 0.012F * std::sin(5.0F * middle);
    return [=](float u, float v) {
        constexpr float start = 0.085F; // above the middle of the head, under the cap
        const float down = 1.0F - v;
        const float height = start - length * down;
        // Over the head as the cap lies, then straight down and a little inwards.
        const float over = std::max(0.0F, height) / headRadii.y();
        const float spread = layer * std::sqrt(1.0F - over * over) + 0.05F * std::sin(pi * down) - 0.07F * down * down;
        const float width = 0.46F * (1.0F - 0.55F * down * down);
        const float turn = middle + pi + (u - 0.5F) * width + 0.10F * down * std::sin(7.0F * middle);
        return headCenter + QVector3D(std::sin(turn) * spread * headRadii.x(), height - 0.01F * std::fabs(u - 0.5F),
                                      std::cos(turn) * spread * headRadii.z());
    };
}

Part MakeHair()
{
    constexpr int strands = 22;
    Part hair;
    hair.material = "Hair";
    AddSurface(hair, HairCap, 40, 20, QRectF(0.0, hairTextureSplit, 1.0, 1.0 - hairTextureSplit));
    for (int i = 0; i < strands; ++i) {
        const double width = 1.0 / strands;
        AddSurface(hair, HairStrand(i, strands), 4, 14, QRectF(i * width, 0.0, width, hairTextureSplit));
    }
    return hair;
}

QVector3D SkirtSurface(float u, float v)
{
    constexpr float pleats = 22.0F;
    const float down = 1.0F - v;
    const float turn = TurnOf(u);
    const float flare = 0.19F * std::pow(down, 0.85F);
    const float pleat = 0.017F * std::sin(pleats * turn) * std::min(1.0F, 2.5F * down) * (0.4F + down);
    const float radiusX = 0.131F + flare + pleat;
    const float radiusZ = 0.096F + 1.02F * flare + pleat;
    return {-std::sin(turn) * radiusX, 1.075F - 0.50F * down, -std::cos(turn) * radiusZ};
}

QVector3D CapeSurface(float u, float v)
{
    static const std::vector<Ring> rings{{0.36F, 0.420F, 0.400F}, {0.55F, 0.390F, 0.355F},  {0.75F, 0.350F, 0.310F},
                                         {0.95F, 0.310F, 0.265F}, {1.12F, 0.275F, 0.220F},  {1.26F, 0.240F, 0.175F},
                                         {1.36F, 0.205F, 0.125F}, {1.415F, 0.150F, 0.095F}, {1.445F, 0.080F, 0.075F}};
    const float down = 1.0F - v;
    const float halfTurn = (0.60F - 0.22F * std::min(1.0F, 3.0F * down)) * pi;
    const float turn = (1.0F - 2.0F * u) * halfTurn; // 0 is the back
    const QVector3D spine = Lathe(rings)(0.0F, v);
    const QVector3D flank = Lathe(rings)(0.25F, v);
    const float wave = 1.0F + 0.045F * down * down * std::cos(9.0F * turn);
    return {std::sin(turn) * std::fabs(flank.x()) * wave, spine.y(), -std::cos(turn) * std::fabs(spine.z()) * wave};
}

Part MakeCloth(const char* material, const Surface& surface, int columns, int rows)
{
    Part cloth;
    cloth.material = material;
    AddSurface(cloth, surface, columns, rows, wholeTexture);
    return cloth;
}

void Finish(Part& part)
{
    SmoothNormals(part);
    Enlarge(part, centimetres);
}

} // namespace

std::vector<Mesh> MakeCharacter()
{
    std::vector<Mesh> meshes{
        {"Body", {MakeSkin(), MakeHair()}},
        {"Clothes", {MakeCloth("Skirt", SkirtSurface, 176, 22), MakeCloth("Cape", CapeSurface, 52, 60)}},
    };
    for (Mesh& mesh : meshes) {
        std::for_each(mesh.parts.begin(), mesh.parts.end(), Finish);
    }
    return meshes;
}

std::vector<Mesh> MakeFlag()
{
    const auto flag = [](float u, float v) { return QVector3D(1.5F * u, v, 0.03F * std::sin(2.0F * pi * u) * u); };
    std::vector<Mesh> meshes{{"Sheet", {MakeCloth("Flag", flag, 60, 40)}}};
    Finish(meshes.front().parts.front());
    return meshes;
}

} // namespace Demo
