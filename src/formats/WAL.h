#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Quake II wall textures (".wal"): a 100-byte header and four levels of palette indices, without a palette.

// Reads the picture and the Quake II properties. Looks up the indices in the texture's palette, otherwise in
// `palette`. Throws badIndex for sides that are 0, above 256 or no multiple of 8, and for an index without a
// color. Throws endOfFile if the file ends before level 0 does. Does not read levels 1 to 3.
void ReadWAL(InputStream& in, Texture& texture, const ColorList* palette);

// Writes 100 + width x height x 85 / 64 bytes. Throws badIndex for sides that the format does not allow and
// for a palette of no or more than 256 colors.
void WriteWAL(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
