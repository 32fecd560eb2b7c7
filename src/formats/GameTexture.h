#pragma once

#include "framework/core/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace keltavlo {

class ColorList;
class Image;
class InputStream;
class OutputStream;
class Texture;

// What the game texture formats share: their sizes, four mip levels of palette indices, names in fixed
// fields.
namespace gametexture {

constexpr int levelCount = 4;
constexpr int sideUnit = 8; // sides are multiples of it, so that level 3 has whole texels
constexpr int maximumSide = 256;

// The side that a picture gets before it is saved.
constexpr int FittingSide(int side) {
    const int rounded = (side + sideUnit - 1) / sideUnit * sideUnit;
    return rounded < sideUnit ? sideUnit : rounded > maximumSide ? maximumSide : rounded;
}
constexpr bool IsFittingSide(int side) {
    return side > 0 && FittingSide(side) == side;
}

// Calls Fail(badIndex) for sides that the formats do not allow.
void CheckSides(const InputStream& in, std::uint32_t width, std::uint32_t height);
void CheckSides(const OutputStream& out, const Image& picture);

// The palette that the indices of a file refer to: the texture's own, else the default one.
const ColorList& PaletteOf(const Texture& texture, const ColorList* fallback);
// Calls Fail(badIndex) for a palette that bytes cannot be indices of: an empty one, or of more than 256
// colors.
void CheckPalette(const OutputStream& out, const ColorList& palette);

// Offsets of the four levels when the first lies at `start` and they follow one another.
std::array<std::uint32_t, levelCount> LevelOffsets(std::uint32_t start, int width, int height);

// Reads width x height indices at the stream's position into the picture, which gets that size, and into the
// texture's indices if it wants them. badIndex for an index past the end of the palette; endOfFile before the
// picture is made when there are too few.
void ReadIndices(InputStream& in, Texture& texture, int width, int height, const ColorList& palette);

// Writes the picture and its three half sizes: the indices that the texture has, else those of the nearest
// palette colors.
void WriteMipLevels(OutputStream& out, const Texture& texture, const ColorList& palette);

// The text of a name's field: up to its first NUL, or all of it.
template <std::size_t n>
std::string GetName(const char (&field)[n]) {
    return std::string(UpToNul({field, n}));
}

// Fills a zeroed field with as much of a name as fits; whether a NUL must stay at its end, the format says.
enum class NameEnd { withNul, anyCharacter };
template <std::size_t n>
void PutName(char (&field)[n], const std::string& name, NameEnd end) {
    name.copy(field, end == NameEnd::withNul ? n - 1 : n);
}

} // namespace gametexture

} // namespace keltavlo
