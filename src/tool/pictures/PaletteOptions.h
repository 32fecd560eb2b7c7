#pragma once

#include <string>

namespace keltavlo {

// Where the palette of a converted picture comes from: the picture or its format, a game, the picture's
// colors, or a file.
enum class PaletteSource { automatic, quake, quake2, hexen2, own, file };

// How a picture is brought to a palette.
struct PaletteOptions {
    PaletteSource source = PaletteSource::automatic;
    std::string file; // a palette file; only for PaletteSource::file
    bool dither = false;
    bool protectFullbright = false;
};

} // namespace keltavlo
