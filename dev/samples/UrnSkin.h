#pragma once

#include "image/picture/Texture.h"

namespace keltavlo {

class ColorList;

// The skin of the urn: black figures on fired clay, in bands around it.
struct UrnSkin {
    static constexpr int width = 256; // texels
    static constexpr int height = 128;
    static constexpr const char* path = "models/sample/urn.pcx";

    static Texture Draw(const ColorList& palette);
};

} // namespace keltavlo
