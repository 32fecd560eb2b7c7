#pragma once

#include "framework/core/ToolBarTable.h"

namespace keltavlo {

// Small pictures of the dialogs.
PixelArt GammaIcon();
PixelArt RedIcon();
PixelArt GreenIcon();
PixelArt BlueIcon();

} // namespace keltavlo
