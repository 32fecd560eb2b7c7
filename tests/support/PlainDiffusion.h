#pragma once

#include "image/picture/Color.h"

#include <span>

namespace keltavlo {

class ColorList;

// Error diffusion along one row by its definition, with the list's own search for each pixel.
void DiffusePlainly(std::span<Color> row, const ColorList& list);

} // namespace keltavlo
