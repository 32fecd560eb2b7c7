#include "BrickWall.h"

#include <algorithm>
#include <cmath>

namespace keltavlo {

namespace {

constexpr int width = 32; // texels, of a brick with its joint
constexpr int height = 16;
constexpr double halfJoint = 1.1;
constexpr double edgeWidth = 1.3;

constexpr Ramp fired{160, 12};
constexpr Ramp burnt{130, 11};
constexpr Ramp mortar{81, 11};
constexpr double burntShare = 0.16;

} // namespace

// The position of a texel within its brick.
struct BrickWall::Place {
    Place(int x, int y)
        : row(y / height), column((x + row % 2 * width / 2) % side / width),
          across((x + row % 2 * width / 2) % width + 0.5 - width / 2.0),
          down(y % height + 0.5 - height / 2.0) {}

    // Texels to the nearest edge.
    double FromEdge() const {
        return std::min(width / 2.0 - std::abs(across), height / 2.0 - std::abs(down));
    }
    bool IsNearLongEdge() const { return std::abs(down) > std::abs(across) - (width - height) / 2.0; }

    int row, column;
    double across, down; // texels from the brick's middle
};

Color BrickWall::At(int x, int y) const {
    const Place place(x, y);
    const double u = (x + 0.5) / side;
    const double v = (y + 0.5) / side;
    const double roughness = surface.At(u, v, 32, 32, 3) - 0.5;
    const double grain = grains.AtCell(x, y);
    // Worn edges are not straight.
    const double wear = 1.8 * (surface.At(u, v, 16, 16, 2) - 0.5);
    const double inside = place.FromEdge() - halfJoint + wear;
    if (inside <= 0) return JointAt(y, roughness, grain);
    const double shade = grains.AtCell(side + place.column, place.row) - 0.5;
    const double brightness = 0.54 + 0.34 * shade + 0.75 * roughness + EdgeLight(place, inside);
    const bool isBurnt = grains.AtCell(place.column, side + place.row) < burntShare;
    return isBurnt ? paint(burnt, brightness - 0.12, grain) : paint(fired, brightness, grain);
}

// The brick above casts a shadow on the joint.
Color BrickWall::JointAt(int y, double roughness, double grain) const {
    const double shadow = y % height < 2 ? 0.2 : 0;
    return paint(mortar, 0.46 + 0.5 * roughness - shadow, grain);
}

double BrickWall::EdgeLight(const Place& place, double inside) {
    if (inside >= edgeWidth) return 0;
    if (place.IsNearLongEdge()) return place.down < 0 ? 0.22 : -0.26;
    return place.across < 0 ? 0.12 : -0.16;
}

} // namespace keltavlo
