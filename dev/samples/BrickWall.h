#pragma once

#include "Paint.h"
#include "TileNoise.h"

namespace keltavlo {

// A brick wall in stretcher bond, lit from above, that tiles.
class BrickWall {
public:
    static constexpr int side = 128; // texels

    explicit BrickWall(const Paint& paintOfTexture) : paint(paintOfTexture) {}

    Color At(int x, int y) const;

private:
    struct Place;

    Color JointAt(int y, double roughness, double grain) const;
    static double EdgeLight(const Place& place, double inside);

    Paint paint;
    TileNoise surface{11};
    TileNoise grains{12};
};

} // namespace keltavlo
