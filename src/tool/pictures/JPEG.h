#pragma once

namespace keltavlo {

class ColorList;
class InputStream;
class Texture;

// Reads a JPEG picture (".jpg"), gray or in color, in one pass or progressive. All pixels become opaque.
// Throws badClass for another kind of file, endOfFile for one that ends early, and badIndex, with a sentence,
// for a damaged file, for printing colors and for more pixels than the file can back.
void ReadJPEG(InputStream& in, Texture& texture, const ColorList* palette);

} // namespace keltavlo
