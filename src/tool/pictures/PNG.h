#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// PNG pictures (".png").

// Reads the picture, of any kind that the format allows; 16-bit channels are rounded to 8 bits. A paletted
// picture leaves its palette, with the alpha of the entries, and its indices where the texture wants them.
// badClass for another kind of file; badIndex, with a sentence, for a damaged one, for an index without a
// color and for more pixels than the file can back; endOfFile for one that ends early.
void ReadPNG(InputStream& in, Texture& texture, const ColorList* palette);

// Writes the indices and the palette if the texture has both, otherwise the colors, with alpha unless all are
// opaque. badIndex for no pixels.
void WritePNG(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
