#pragma once

#include <QByteArray>

/// The programs that run on the graphics processor.
namespace Host::Shaders {

/// Where the vertices' values go in.
enum Attribute : unsigned
{
    Position = 0,
    Normal = 1,
    Uv = 2,
    Weight = 3
};

/// What a material is drawn with; any of them together.
enum Feature : unsigned
{
    Plain = 0,
    DiffuseImage = 1,
    OpacityImage = 2,
    Weights = 4,
    NoWeights = 8
};

/// Which texture unit holds what.
enum Unit : int
{
    DiffuseUnit = 0,
    OpacityUnit = 1,
    WeightUnit = 2
};

/// Draws triangles: with their material, lit from both sides by lights that go with the viewer.
QByteArray ModelVertex();
/// \param features  several of Feature
QByteArray ModelFragment(unsigned features);

/// Draws the lines of the ground, which fade with the distance.
QByteArray GridVertex();
QByteArray GridFragment();

/// Draws the framed picture upon the screen, with lines around what is marked in it.
QByteArray OutlineVertex();
QByteArray OutlineFragment();

} // namespace Host::Shaders
