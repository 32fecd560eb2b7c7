#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// Targa pictures (".tga"), uncompressed, of 24 bits a pixel or 32 with alpha.

// Reads the picture, whichever corner its rows start from. badIndex for no pixels, for other types and
// depths, with a sentence that names them, for an unknown kind of color map, for a damaged footer and for a
// file without pixels that claims more than 16 MiB of them; endOfFile for one that ends early; badSeek for
// one that is shorter than a footer.
void ReadTGA(InputStream& in, Texture& texture, const ColorList* palette);

// Writes the rows from the bottom up: 18 + 3 x width x height + 26 bytes, or 4 bytes a pixel for a picture
// that is not all opaque. badIndex for no pixels.
void WriteTGA(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
