#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Paintbrush pictures (".pcx") of version 5 with 8 bits a pixel in one plane: a 128-byte header, run-length
// coded rows of palette indices and a palette of 256 colors at the end.

// Reads the picture and the palette, which is `palette` if the file has none. Throws badClass for a file of
// another kind and badSchema for another version. Throws badIndex for fields that make no sense, for runs
// beyond the end of a row and, with a sentence, for other encodings and depths, several planes and rows of an
// odd number of bytes. Throws endOfFile if the file ends early.
void ReadPCX(InputStream& in, Texture& texture, const ColorList* palette);

// Writes every pixel separately, without runs, and the palette of a texture that has one. Throws badIndex for
// no pixels, for more than 65534 columns and for a palette that does not have 256 colors.
void WritePCX(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
