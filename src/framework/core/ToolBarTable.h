#pragma once

#include "framework/core/CCmdUI.h"

#include <span>
#include <string_view>

namespace keltavlo {

// A picture as rows of letters, one per pixel: "#" is the color of text, "w" that of paper, "g" lies between
// text and background; "b", "y", "r" and "n" are blue, yellow, red and green; anything else is transparent.
using PixelArt = std::span<const std::string_view>;

// A toolbar as data: one row per button; a row without an id is a separator.
struct ToolBarRow {
    CommandId id = 0;
    PixelArt icon = {};
};

} // namespace keltavlo
