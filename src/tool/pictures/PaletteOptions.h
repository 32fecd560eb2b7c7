#pragma once

#include <string>

namespace keltavlo {

// The palette that a paletted picture is written in. `automatic` keeps the source's own palette if the output
// can store it, else takes that of the output's game; `own` makes one for the picture.
enum class PaletteSource { automatic, quake, quake2, hexen2, own, file };

struct PaletteOptions {
    PaletteSource source = PaletteSource::automatic;
    std::string file{}; // the path for PaletteSource::file
    bool dither = false;
    // Keeps pixels out of the indices 224 to 255, which Quake draws at full brightness, unless they had such
    // an index before.
    bool protectFullbright = false;

    bool operator==(const PaletteOptions&) const = default;
};

} // namespace keltavlo
