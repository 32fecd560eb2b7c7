#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Quake mip textures (".mip", and the textures of WAD files): a 40-byte header, four levels of palette
// indices and, where the texture has a palette of its own, that palette.

// Reads the picture and the Quake name, and the palette when the file ends in one of 770 to 772 bytes.
// Indices are looked up in that palette, else in the texture's, else in `palette`. badIndex for sides that
// are 0, no multiple of 8 or above 256, for a palette of no or more than 256 colors and for an index without
// a color; endOfFile for a file that ends before level 0 does. Levels 1 to 3 are not looked at.
void ReadMIP(InputStream& in, Texture& texture, const ColorList* palette);

// Writes 40 + width x height x 85 / 64 bytes, and 2 + 3 x colors more for a texture with a palette. badIndex
// for sides that the format does not allow and for a palette of no or more than 256 colors.
void WriteMIP(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
