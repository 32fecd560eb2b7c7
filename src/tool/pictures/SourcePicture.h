#pragma once

#include "image/picture/Texture.h"

#include <string_view>

namespace keltavlo {

class CFile;
struct PictureFormat;

// A picture as a file stores it. If it has indices, it also has the palette that they refer to.
struct SourcePicture {
    Texture texture;
    bool carriesPalette; // the palette is from the file, not the game's
};

// Reads the file from its position. `palette` is for files that contain none, and null only for formats that
// need none. Texels of index 255 become transparent if the name, or the one in the file, begins with "{".
// Throws what the codec throws.
SourcePicture ReadSource(CFile& file, const PictureFormat& format, std::string_view name,
                         const ColorList* palette);

} // namespace keltavlo
