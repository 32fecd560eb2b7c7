#pragma once

#include "framework/core/ToolBarTable.h"

namespace keltavlo {

// Small pictures for the dialogs.
PixelArt GammaIcon();
PixelArt RedIcon();
PixelArt GreenIcon();
PixelArt BlueIcon();

} // namespace keltavlo
