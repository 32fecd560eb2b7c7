#pragma once

#include "tool/archives/ModelSkin.h"

#include <vector>

namespace keltavlo {

class ColorList;
class InputStream;

// Whether a file begins as a Quake model does. Moves the stream.
bool IsIDPO(InputStream& in);

// Reads the skins of a Quake model (".mdl", version 6), whose pixels are indices into the palette of 256
// colors. badClass for another kind of file, badSchema for another version, badIndex for sides, counts and
// types that are not allowed, endOfFile for a short file.
std::vector<ModelSkin> ReadIDPOSkins(InputStream& in, const ColorList& palette);

} // namespace keltavlo
