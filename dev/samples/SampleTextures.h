#pragma once

#include "image/picture/Texture.h"

#include <vector>

namespace keltavlo {

class ColorList;

// The prefix of every texture's Quake II name.
constexpr char nameFolder[] = "sample/";

// Textures with their Quake II properties, drawn in colors of the Quake II palette.
std::vector<Texture> DrawSampleTextures(const ColorList& palette);

} // namespace keltavlo
