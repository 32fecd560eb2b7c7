#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

class ColorList;
class Image;
class InputStream;
class OutputStream;

// What the game texture formats share: their sizes, four mip levels of palette indices, names in fixed
// fields.
namespace gametexture {

constexpr int levelCount = 4;
constexpr int sideUnit = 8; // sides are multiples of it, so that level 3 has whole texels
constexpr int maximumSide = 256;

// The side that a picture's side is brought to before it is saved.
constexpr int FittingSide(int side) {
    const int rounded = (side + sideUnit - 1) / sideUnit * sideUnit;
    return rounded < sideUnit ? sideUnit : rounded > maximumSide ? maximumSide : rounded;
}
constexpr bool IsFittingSide(int side) {
    return side > 0 && FittingSide(side) == side;
}

// Offsets of the four levels when the first lies at `start` and they follow one another.
std::array<std::uint32_t, levelCount> LevelOffsets(std::uint32_t start, int width, int height);

// Reads width x height indices at the stream's position into the picture, which gets that size. badIndex for
// an index past the end of the palette; endOfFile before the picture is made when there are too few.
void ReadIndices(InputStream& in, Image& picture, int width, int height, const ColorList& palette);

// Writes the picture and its three half sizes as indices of the nearest palette colours.
void WriteMipLevels(OutputStream& out, const Image& picture, const ColorList& palette);

// Fills a zeroed field with a name, which keeps a NUL at its end.
template <std::size_t n>
void PutName(char (&field)[n], const std::string& name) {
    name.copy(field, n - 1);
}

} // namespace gametexture
