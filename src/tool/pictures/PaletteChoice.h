#pragma once

#include "formats/Codec.h"
#include "image/picture/ColorList.h"
#include "tool/pictures/PaletteOptions.h"

#include <optional>

namespace keltavlo {

struct IndexingRules;
struct PaletteSet;
struct PictureFormat;
struct SourcePicture;

// Returns the palette for reading a file that contains none. If the output can store colors, it is the
// palette that the options name, because the output does not use that; otherwise it is that of the format's
// game. Returns null for formats without a game.
const ColorList* PaletteToRead(const PictureFormat& from, bool toColors, const PaletteSet& palettes,
                               PaletteSource source);

// The palette that an output's indices refer to, and whether the output contains it.
struct OutputPalette {
    ColorList colors;
    bool isCarried;
};

// Chooses the palette of an output; returns nothing for an output that stores colors. Throws CException if
// the format cannot store a palette made for the picture.
std::optional<OutputPalette> ChoosePalette(const SourcePicture& picture, const PictureFormat& to,
                                           const PaletteSet& palettes, PaletteSource source,
                                           const IndexingRules& rules);

} // namespace keltavlo
