#pragma once

#include "image/picture/Texture.h"

#include <vector>

namespace keltavlo {

class ColorList;

// What the Quake II name of every texture starts with.
constexpr char nameFolder[] = "sample/";

// Textures with their Quake II properties, drawn in colours of the Quake II palette.
std::vector<Texture> DrawSampleTextures(const ColorList& palette);

} // namespace keltavlo
