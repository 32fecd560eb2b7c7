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

// The palette in which a file that carries none is read: the one that the options name if the output can
// store colors, because it is not the output's then; else that of its format's game. Null for formats without
// a game.
const ColorList* PaletteToRead(const PictureFormat& from, bool toColors, const PaletteSet& palettes,
                               PaletteSource source);

// The palette that an output's indices refer to, and whether the output carries it.
struct OutputPalette {
    ColorList colors;
    bool isCarried;
};

// Chooses the palette of an output; nothing for one that stores colors. Throws CException if the format
// cannot carry a palette of the picture's own.
std::optional<OutputPalette> ChoosePalette(const SourcePicture& picture, const PictureFormat& to,
                                           const PaletteSet& palettes, PaletteSource source,
                                           const IndexingRules& rules);

} // namespace keltavlo
