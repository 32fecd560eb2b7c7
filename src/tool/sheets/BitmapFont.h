#pragma once

#include <string_view>

namespace keltavlo {

class Image;

// A font of fixed width for labels on pictures. It contains the visible characters of ASCII, and draws "?"
// for all others.
namespace bitmapfont {

inline constexpr int advance = 6;    // pixels from one character to the next
inline constexpr int lineHeight = 9; // pixels from one line to the next

// Draws UTF-8 text in light gray with its top-left corner at (x, y). Cuts off what leaves the picture.
void Draw(Image& picture, int x, int y, std::string_view text);

} // namespace bitmapfont

} // namespace keltavlo
