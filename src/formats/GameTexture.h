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

// What the formats of game textures share: sizes, four mip levels of palette indices, names in fixed fields.
namespace gametexture {

constexpr int levelCount = 4;
constexpr int sideUnit = 8; // sides are multiples of this, so that level 3 has whole texels
constexpr int maximumSide = 256;

// Rounds a side up to one that the formats allow; anything larger becomes maximumSide.
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

// Returns the texture's own palette, or `fallback` if it has none.
const ColorList& PaletteOf(const Texture& texture, const ColorList* fallback);
// Calls Fail(badIndex) unless the palette has 1 to 256 colors, because an index is one byte.
void CheckPalette(const OutputStream& out, const ColorList& palette);

// Returns the offsets of the four levels, which follow one another from `start`.
std::array<std::uint32_t, levelCount> LevelOffsets(std::uint32_t start, int width, int height);

// Reads width x height indices at the stream's position. Gives the picture that size and their colors, and
// stores the indices if the texture wants them. Throws badIndex for an index past the end of the palette.
// Throws endOfFile, before it allocates anything, if the stream is too short.
void ReadIndices(InputStream& in, Texture& texture, int width, int height, const ColorList& palette);

// Writes the indices of the picture and its three half sizes. Where the texture has none, those of the
// nearest palette colors are written.
void WriteMipLevels(OutputStream& out, const Texture& texture, const ColorList& palette);

// Returns the text of a name field: up to its first NUL, or all of it.
template <std::size_t n>
std::string GetName(const char (&field)[n]) {
    return std::string(UpToNul({field, n}));
}

// Whether the last character of a name field must be a NUL.
enum class NameEnd { withNul, anyCharacter };
// Copies as much of the name as fits into a zeroed field.
template <std::size_t n>
void PutName(char (&field)[n], const std::string& name, NameEnd end) {
    name.copy(field, end == NameEnd::withNul ? n - 1 : n);
}

} // namespace gametexture

} // namespace keltavlo
