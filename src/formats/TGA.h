#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Targa pictures (".tga"), uncompressed, of 24 bits a pixel or 32 with alpha.

// Reads the picture, whichever corner its rows start from. Throws badIndex for a width or height of 0, for an
// unknown kind of color map, for a damaged footer, for a file without pixels that claims more than 16 MiB of
// them and, with a sentence, for other types and depths. Throws endOfFile if the file ends early, badSeek if
// it is shorter than a footer.
void ReadTGA(InputStream& in, Texture& texture, const ColorList* palette);

// Writes 18 + 3 x width x height + 26 bytes, rows from the bottom up; 4 bytes a pixel if the picture is not
// all opaque. Throws badIndex for no pixels.
void WriteTGA(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
