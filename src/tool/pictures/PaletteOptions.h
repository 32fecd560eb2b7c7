#pragma once

#include <string>

namespace keltavlo {

// The palette to write a paletted picture in. `automatic` keeps the source's own palette if the output can
// store it; otherwise it takes that of the output's game. `own` makes one for the picture.
enum class PaletteSource { automatic, quake, quake2, hexen2, own, file };

struct PaletteOptions {
    PaletteSource source = PaletteSource::automatic;
    std::string file{}; // the path for PaletteSource::file
    bool dither = false;
    // Keeps pixels out of indices 224 to 255, which Quake draws at full brightness, unless they already have
    // such an index.
    bool protectFullbright = false;

    bool operator==(const PaletteOptions&) const = default;
};

} // namespace keltavlo
