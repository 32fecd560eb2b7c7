#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Bitmap files (".bmp").

// Reads the picture, all opaque, from an uncompressed bitmap of any depth. If the texture wants indices, it
// also gets the palette and indices of an 8-bit bitmap. Throws badClass for another kind of file, badIndex
// for fields that make no bitmap and, with a sentence, for compressed bitmaps. Throws endOfFile if the file
// ends early.
void ReadBMP(InputStream& in, Texture& texture, const ColorList* palette);

// Writes 54 + 4 x width x height bytes: 32 bits a pixel, alpha included. Throws badIndex for no pixels.
void WriteBMP(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
