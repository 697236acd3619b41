#include "tests/unit/simulation/ClothSamples.h"

#include <cmath>

namespace ClothSamples {

using Host::Vector;

Host::ClothShape Sheet(int columns, int rows, float square)
{
    Host::ClothShape shape;
    for (int row = 0; row <= rows; ++row) {
        for (int column = 0; column <= columns; ++column) {
            shape.rest.emplace_back(square * float(column), -square * float(row), 0.0F, 0.0F);
        }
    }
    const auto at = [columns](int column, int row) { return row * (columns + 1) + column; };
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            // The diagonals take turns, so that no direction is preferred.
            if ((row + column) % 2 == 0) {
                shape.triangles.push_back({at(column, row), at(column, row + 1), at(column + 1, row + 1)});
                shape.triangles.push_back({at(column, row), at(column + 1, row + 1), at(column + 1, row)});
            } else {
                shape.triangles.push_back({at(column, row), at(column, row + 1), at(column + 1, row)});
                shape.triangles.push_back({at(column + 1, row), at(column, row + 1), at(column + 1, row + 1)});
            }
        }
    }
    shape.freedom.assign(shape.rest.size(), freely);
    return shape;
}

Host::ClothShape HangingSheet(int columns, int rows, float square)
{
    Host::ClothShape shape = Sheet(columns, rows, square);
    std::fill_n(shape.freedom.begin(), columns + 1, 0.0F);
    return shape;
}

Host::ClothShape LyingSheet(int squares, float square, float height)
{
    Host::ClothShape shape = Sheet(squares, squares, square);
    const float half = 0.5F * square * float(squares);
    for (Vector& place : shape.rest) {
        place = {place.x() - half, height, -place.y() - half, 0.0F};
    }
    return shape;
}

Host::ClothShape Thread(const Host::Vectors& places)
{
    Host::ClothShape shape;
    shape.rest = places;
    for (int i = 0; i + 1 < int(places.size()); ++i) {
        shape.threads.push_back({i, i + 1});
    }
    shape.freedom.assign(places.size(), freely);
    return shape;
}

Body Ball(float radius, int columns, int rows)
{
    constexpr float pi = 3.14159265F;
    Body body;
    body.places.emplace_back(0.0F, -radius, 0.0F, 0.0F);
    for (int row = 1; row < rows; ++row) {
        const float up = pi * float(row) / float(rows);
        for (int column = 0; column < columns; ++column) {
            const float turn = 2.0F * pi * float(column) / float(columns);
            body.places.emplace_back(radius * std::sin(up) * std::cos(turn), -radius * std::cos(up),
                                     -radius * std::sin(up) * std::sin(turn), 0.0F);
        }
    }
    body.places.emplace_back(0.0F, radius, 0.0F, 0.0F);
    const int top = int(body.places.size()) - 1;
    const auto at = [=](int column, int row) { return 1 + (row - 1) * columns + column % columns; };
    for (int column = 0; column < columns; ++column) {
        body.triangles.push_back({0, at(column + 1, 1), at(column, 1)});
        for (int row = 1; row + 1 < rows; ++row) {
            body.triangles.push_back({at(column, row), at(column + 1, row), at(column + 1, row + 1)});
            body.triangles.push_back({at(column, row), at(column + 1, row + 1), at(column, row + 1)});
        }
        body.triangles.push_back({top, at(column, rows - 1), at(column + 1, rows - 1)});
    }
    return body;
}

Host::SolverValues Ideal(float frequency)
{
    Host::SolverValues values;
    values.frequency = frequency;
    values.stretchModulus = std::numeric_limits<float>::infinity();
    values.tetherLimit = 0.0F;
    values.collidesWithBody = false;
    return values;
}

Host::ClothFrame Falling()
{
    Host::ClothFrame frame;
    frame.acceleration = {0.0F, -981.0F, 0.0F, 0.0F};
    return frame;
}

void Run(Host::Cloth& cloth, double seconds, const Host::ClothFrame& frame, Host::BodyCollider* body)
{
    const auto frames = int(std::lround(seconds / frame.duration));
    for (int i = 0; i < frames; ++i) {
        cloth.Step(frame, cloth.Shape().rest, body);
    }
}

double MeanStrain(const Host::Cloth& cloth)
{
    double sum = 0.0;
    for (const Host::StretchLink& link : cloth.Links()) {
        const float length = (cloth.Positions()[std::size_t(link.a)] - cloth.Positions()[std::size_t(link.b)]).norm();
        sum += std::fabs(double(length / link.length) - 1.0);
    }
    return sum / double(cloth.Links().size());
}

} // namespace ClothSamples
