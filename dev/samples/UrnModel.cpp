#include "UrnModel.h"

#include "UrnSkin.h"
#include "support/builders/ModelBuilder.h"

#include <cmath>
#include <iterator>
#include <numbers>

namespace keltavlo {

namespace {

// A ring around the axis: radius and height in units of the game, and the row of the skin on it.
struct Ring {
    double radius, height;
    int t;
};

// From inside the neck over the lip and down to the middle of the foot.
constexpr Ring rings[] = {
    {0, 50, 10},   {8, 52, 8},   {9, 60, 4},   {12, 63, 0},  {12.5, 61, 5}, {9, 57, 12},
    {8.5, 51, 24}, {13, 46, 36}, {18, 39, 50}, {20, 31, 64}, {19, 22, 78},  {15, 12, 92},
    {9.5, 5, 104}, {8, 3, 112},  {11, 0, 122}, {0, 0, 127},
};
constexpr int ringCount = std::size(rings);
constexpr int sectors = 20;

constexpr float unitsPerStep = 0.25F; // of a vertex's bytes
constexpr double middle = 31.75;      // units from the lowest coordinate that bytes can hold to the axis
constexpr int frameCount = 8;
constexpr double widestLean = 6; // units, at the top

double Turn(int part, int parts) {
    return 2 * std::numbers::pi * part / parts;
}

int ToByte(double units) {
    return static_cast<int>(std::lround(units / unitsPerStep));
}

// The seam of the skin is at the back. The skin runs to the right as seen from outside.
Md2Builder::Vertex VertexAt(int frame, int i) {
    const Ring& ring = rings[i / sectors];
    const double angle = Turn(i % sectors, sectors) + std::numbers::pi / 2;
    const double share = ring.height / rings[3].height;
    const double lean = widestLean * std::sin(Turn(frame, frameCount)) * share * share;
    return {ToByte(middle + ring.radius * std::cos(angle) + lean),
            ToByte(middle + ring.radius * std::sin(angle)), ToByte(ring.height)};
}

Md2Builder::TexCoord TexCoordAt(int i) {
    return {i % (sectors + 1) * UrnSkin::width / sectors, rings[i / (sectors + 1)].t};
}

// One corner of a triangle.
struct Corner {
    int ring, sector;
    std::uint16_t Vertex() const { return static_cast<std::uint16_t>(ring * sectors + sector % sectors); }
    std::uint16_t TexCoord() const { return static_cast<std::uint16_t>(ring * (sectors + 1) + sector); }
};

void AddTriangle(Md2Builder& model, Corner a, Corner b, Corner c) {
    model.triangles.push_back({a.Vertex(), b.Vertex(), c.Vertex(), a.TexCoord(), b.TexCoord(), c.TexCoord()});
}

// Counterclockwise as seen from outside. A ring that is a point has one triangle instead of two.
void AddBand(Md2Builder& model, int upper) {
    const int lower = upper + 1;
    for (int left = 0; left < sectors; ++left) {
        const int right = left + 1;
        if (rings[lower].radius > 0) AddTriangle(model, {upper, left}, {lower, left}, {lower, right});
        if (rings[upper].radius > 0) AddTriangle(model, {upper, left}, {lower, right}, {upper, right});
    }
}

} // namespace

Bytes BuildUrnModel() {
    Md2Builder model;
    model.skins = {UrnSkin::path};
    model.texCoords = ringCount * (sectors + 1);
    model.texCoordAt = TexCoordAt;
    for (int upper = 0; upper + 1 < ringCount; ++upper) AddBand(model, upper);
    model.frames = frameCount;
    model.vertices = ringCount * sectors;
    model.vertexAt = VertexAt;
    model.scale.fill(unitsPerStep);
    // Far enough from the camera that all of it is visible.
    model.translate = {-static_cast<float>(middle), 60, -static_cast<float>(middle)};
    return model.Build();
}

} // namespace keltavlo
