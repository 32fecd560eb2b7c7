#pragma once

#include "tool/pictures/PaletteOptions.h"
#include "tool/pictures/TextureFields.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace keltavlo {

class CFile;
class Texture;
struct PaletteSet;

struct ConversionOptions {
    PaletteOptions palette{};
    TextureFields fields{};
    // The texture's path below the folder of textures, without its extension: "e1u1/floor1_1". The output's
    // name is used when it is empty.
    std::string textureName{};
    // A MIP file carries the palette that it is written in, as WAD3 archives require.
    bool embedPalette = false;
};

struct ConvertedFile {
    std::vector<std::byte> bytes;
    // What was done otherwise than asked. Each note continues a sentence that begins with the output's name:
    // "was cropped to 256 x 256 to fit the games."
    std::vector<std::string> notes;
};

// Reads a picture in the format of `sourceName`, from the file's position, and writes it in that of
// `targetName`. Safe to call from several threads. Throws CException, with a sentence for the user, for names
// of no picture format, for a format that is only read, and for a picture that cannot be read or written.
ConvertedFile ConvertPicture(CFile& source, std::string_view sourceName, std::string_view targetName,
                             const PaletteSet& palettes, const ConversionOptions& options);

// Reads a picture as ConvertPicture does, in a format that stores colors: texels that its name makes
// transparent have alpha 0.
Texture ReadPicture(CFile& source, std::string_view sourceName, const PaletteSet& palettes,
                    const PaletteOptions& options);

} // namespace keltavlo
