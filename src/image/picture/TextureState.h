#pragma once

namespace keltavlo {

class InputStream;
class OutputStream;
class Texture;

// A texture as it is in memory, without the losses of the picture formats: u32 width and height, the pixels
// (u32 each, rows top first), the Quake name, the Quake II properties, and u32 n and the n colors of the
// palette, which is missing if n is 0. Palette indices are not included; only the tool has them.

void WriteTextureState(OutputStream& out, const Texture& texture);
// Throws endOfFile for a file that is cut short, and PictureSizeError.
void ReadTextureState(InputStream& in, Texture& texture);

} // namespace keltavlo
