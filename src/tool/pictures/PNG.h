#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class OutputStream;
class Texture;

// PNG pictures (".png").

// Reads a picture of any kind that the format allows. Rounds 16-bit channels to 8 bits. Keeps the palette of
// a paletted picture, with the alpha of its entries, and its indices if the texture wants them. Throws
// badClass for another kind of file, endOfFile for one that ends early, and badIndex, with a sentence, for a
// damaged file, for an index without a color and for more pixels than the file can back.
void ReadPNG(InputStream& in, Texture& texture, const ColorList* palette);

// Writes the indices and the palette if the texture has both, otherwise the colors, with alpha unless all are
// opaque. Throws badIndex for no pixels.
void WritePNG(OutputStream& out, const Texture& texture, const ColorList* palette);

} // namespace keltavlo
