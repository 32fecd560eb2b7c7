#pragma once

#include "formats/Codec.h"

#include <span>
#include <string>
#include <string_view>

namespace keltavlo {

// What a file of a format does with palettes.
enum class PaletteUse {
    none,      // stores colors
    game,      // stores indices of its game's palette
    gameOrOwn, // the same, or of a palette that it carries
    own,       // stores indices and their palette
    optional   // stores colors, or indices and their palette
};

// A picture format of the tool. Those that the windowed program lacks have no document class.
struct PictureFormat {
    Codec codec; // `write` is null for a format that is only read
    PaletteUse paletteUse;

    bool IsAlwaysPaletted() const {
        return paletteUse != PaletteUse::none && paletteUse != PaletteUse::optional;
    }
};

std::span<const PictureFormat> PictureFormats();

// The format of a file name's extension, or of an extension with its dot; null for any other name.
const PictureFormat* FindPictureFormat(std::string_view fileName);

// The names of the formats that can be written, with a text before each: "wal, mip, pcx, tga, bmp or png".
std::string ListWritableFormats(std::string_view before = {});

} // namespace keltavlo
