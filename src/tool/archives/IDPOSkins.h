#pragma once

#include "image/picture/Image.h"

#include <string>
#include <vector>

namespace keltavlo {

class InputStream;

// A skin of a Quake model.
struct IDPOSkin {
    std::string
        number; // "1" for the first skin, "2_1" for the first picture of the second one if it is a group
    Image picture;
};

// Whether a file begins as a Quake model does. Moves the stream.
bool IsIDPO(InputStream& in);

// Reads the skins of a Quake model (".mdl", version 6), whose pixels are indices into the palette of 256
// colors. badClass for another kind of file, badSchema for another version, badIndex for sides, counts and
// types that are not allowed, endOfFile for a short file.
std::vector<IDPOSkin> ReadIDPOSkins(InputStream& in, const ColorList& palette);

} // namespace keltavlo
