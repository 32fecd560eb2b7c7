#pragma once

#include "image/picture/Image.h"

#include <string>

namespace keltavlo {

// A texture in a model file.
struct ModelSkin {
    // "1" for the first texture. If the second one is a group of pictures, "2_1" for the first of these.
    std::string number;
    Image picture;
};

} // namespace keltavlo
