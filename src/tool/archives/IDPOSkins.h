#pragma once

#include "tool/archives/ModelSkin.h"

#include <vector>

namespace keltavlo {

class ColorList;
class InputStream;

// Whether a file begins like a Quake model. Moves the stream.
bool IsIDPO(InputStream& in);

// Reads the skins of a Quake model (".mdl", version 6), whose pixels are indices into the palette of 256
// colors. Throws badClass for another kind of file, badSchema for another version, badIndex for invalid
// sides, counts and types, endOfFile for a short file.
std::vector<ModelSkin> ReadIDPOSkins(InputStream& in, const ColorList& palette);

} // namespace keltavlo
