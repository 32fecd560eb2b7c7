#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Quake II wall textures (".wal"): a 100-byte header and four levels of palette indices, without a palette.

// Reads the picture and the Quake II properties. Indices are looked up in the texture's palette, else in
// `palette`. badIndex for sides that are 0, no multiple of 8 or above 256, and for an index without a color;
// endOfFile for a file that ends before level 0 does. Levels 1 to 3 are not looked at.
void ReadWAL(InputStream& in, Texture& texture, const ColorList* palette);

// Writes 100 + width x height x 85 / 64 bytes. badIndex for sides that the format does not allow.
void WriteWAL(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
