#pragma once

#include "image/picture/ColorList.h"

namespace keltavlo {

// A run of palette entries from bright to dark.
struct Ramp {
    int first;
    int count;
};

// Selects colors of a palette by brightness.
class Paint {
public:
    explicit Paint(const ColorList& paletteOfTexture) : palette(paletteOfTexture) {}

    // Brightness 1 is the ramp's first color, 0 its last. A grain of 0 to 1 decides between two neighbors.
    Color operator()(const Ramp& ramp, double brightness, double grain) const;

private:
    const ColorList& palette;
};

} // namespace keltavlo
