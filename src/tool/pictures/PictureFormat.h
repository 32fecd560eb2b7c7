#pragma once

#include "formats/Codec.h"

#include <span>
#include <string>
#include <string_view>

namespace keltavlo {

// What files of a format do with palettes.
enum class PaletteUse {
    none,      // stores colors
    game,      // stores indices in its game's palette
    gameOrOwn, // stores indices in its game's palette or in its own, which it stores too
    own,       // stores indices and their palette
    optional   // stores colors, or indices and their palette
};

// A picture format of the tool. Formats that the windowed program lacks have no document class.
struct PictureFormat {
    Codec codec; // `write` is null for a format that can only be read
    PaletteUse paletteUse;

    bool IsAlwaysPaletted() const {
        return paletteUse != PaletteUse::none && paletteUse != PaletteUse::optional;
    }
};

std::span<const PictureFormat> PictureFormats();

// Returns the format for a file name's extension, or for an extension with its dot; null for any other name.
const PictureFormat* FindPictureFormat(std::string_view fileName);

// Lists the names of the formats that can be written, each after the text `before`: "wal, mip, pcx, tga, bmp
// or png".
std::string ListWritableFormats(std::string_view before = {});

} // namespace keltavlo
