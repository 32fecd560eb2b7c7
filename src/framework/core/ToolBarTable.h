#pragma once

#include "framework/core/CCmdUI.h"

#include <span>
#include <string_view>

namespace keltavlo {

// A picture as rows of letters, one a pixel: "#" is the color of texts, "w" that of paper, "g" lies between
// text and ground, "b", "y", "r" and "n" are blue, yellow, red and green, anything else is see-through.
using PixelArt = std::span<const std::string_view>;

// A toolbar as data: one row a button; a row without an id is a separator.
struct ToolBarRow {
    CommandId id = 0;
    PixelArt icon = {};
};

} // namespace keltavlo
