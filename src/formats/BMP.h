#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Bitmap files (".bmp").

// Reads the picture, all opaque, from a bitmap of any depth that is not compressed. One of 8 bits also gives
// its palette and indices to a texture that wants indices. badClass for another kind of file, badIndex for
// fields that make no bitmap and, with a sentence, for compressed ones; endOfFile for one that ends early.
void ReadBMP(InputStream& in, Texture& texture, const ColorList* palette);

// Writes 54 + 4 x width x height bytes: 32 bits a pixel, alpha included. badIndex for no pixels.
void WriteBMP(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
