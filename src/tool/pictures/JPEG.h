#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class Texture;

// Reads a JPEG picture (".jpg"), gray or in color, in one pass or progressive; all pixels become opaque.
// badClass for another kind of file; badIndex, with a sentence, for a damaged one, for pictures in printing
// colors and for more pixels than the file can back; endOfFile for one that ends early.
void ReadJPEG(InputStream& in, Texture& texture, const ColorList* palette);

} // namespace keltavlo
