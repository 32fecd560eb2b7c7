#pragma once

#include "tool/pictures/TextureFields.h"

#include <string_view>

namespace keltavlo {

// Reads "surface=0x80,value=300,next=wall1". Numbers are decimal or hexadecimal. Throws UsageError.
TextureFields ParseTextureFields(std::string_view text);

} // namespace keltavlo
