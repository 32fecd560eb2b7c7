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
    // The texture's path below the folder of textures, without its extension: "e1u1/floor1_1". If empty, the
    // output's name is used.
    std::string textureName{};
    // Stores the palette in a MIP file, as WAD3 archives require.
    bool embedPalette = false;
};

struct ConvertedFile {
    std::vector<std::byte> bytes;
    // What was done in another way than asked. Each note continues a sentence that begins with the output's
    // name: "was cropped to 256 x 256 to fit the games."
    std::vector<std::string> notes;
};

// Reads a picture from the file's position, in the format of `sourceName`, and writes it in that of
// `targetName`. Safe to call from several threads. Throws CException, with a sentence for the user, for names
// of no picture format, for a format that can only be read, and for a picture that cannot be read or written.
ConvertedFile ConvertPicture(CFile& source, std::string_view sourceName, std::string_view targetName,
                             const PaletteSet& palettes, const ConversionOptions& options);

// Reads a picture like ConvertPicture, for a format that stores colors: texels that are transparent because
// of the picture's name get alpha 0.
Texture ReadPicture(CFile& source, std::string_view sourceName, const PaletteSet& palettes,
                    const PaletteOptions& options);

} // namespace keltavlo
