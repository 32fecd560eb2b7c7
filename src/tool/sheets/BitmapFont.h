#pragma once

#include <string_view>

namespace keltavlo {

class Image;

// A font of fixed width for labels on pictures. It has the visible characters of ASCII; any other character
// is drawn as "?".
namespace bitmapfont {

inline constexpr int advance = 6;    // pixels from one character to the next
inline constexpr int lineHeight = 9; // pixels from one line to the next

// Draws UTF-8 text in light gray with its top-left corner at (x, y); what leaves the picture is cut off.
void Draw(Image& picture, int x, int y, std::string_view text);

} // namespace bitmapfont

} // namespace keltavlo
