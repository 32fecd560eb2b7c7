#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Quake mip textures (".mip", and the textures of WAD files): a 40-byte header, four levels of palette
// indices and, if the texture has a palette of its own, that palette.

// Reads the picture, the Quake name and, if 770 to 772 bytes follow the levels, the palette. Looks up the
// indices in that palette, otherwise in the texture's, otherwise in `palette`. Throws badIndex for sides that
// are 0, above 256 or no multiple of 8, for a color count outside 1 to 256 and for an index without a color.
// Throws endOfFile if the file ends before level 0 does. Does not read levels 1 to 3.
void ReadMIP(InputStream& in, Texture& texture, const ColorList* palette);

// Writes 40 + width x height x 85 / 64 bytes, and another 2 + 3 x colors if the texture has a palette. Throws
// badIndex for sides that the format does not allow and for a palette of no or more than 256 colors.
void WriteMIP(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
