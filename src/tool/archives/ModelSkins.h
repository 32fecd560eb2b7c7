#pragma once

#include "tool/archives/ModelSkin.h"

#include <vector>

namespace keltavlo {

class ColorList;
class InputStream;

// Reads the textures in a model (".mdl"): those of a Quake model, whose pixels are indices into the palette,
// or those of a studio model, some of which may have no pixels. Throws like ReadIDPOSkins and MDLDocument.
std::vector<ModelSkin> ReadModelSkins(InputStream& in, const ColorList& palette);

} // namespace keltavlo
