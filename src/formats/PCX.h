#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Paintbrush pictures (".pcx") of version 5 with 8 bits a pixel in one plane: a 128-byte header, run-length
// coded rows of palette indices and a palette of 256 colors at the end.

// Reads the picture and the palette, which is `palette` when the file has none. badClass for a file of
// another kind, badSchema for another version, badIndex for other encodings, depths and rows of an odd number
// of bytes, with a sentence that names them, for rows shorter than the width and for runs beyond the end of a
// row; endOfFile for one that ends early.
void ReadPCX(InputStream& in, Texture& texture, const ColorList* palette);

// Writes every pixel by itself, without runs, and the palette of a texture that has one. badIndex for no
// pixels, for more than 65534 columns and for a palette of fewer or more than 256 colors.
void WritePCX(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
