#pragma once

#include "framework/core/ToolBarTable.h"

// Small pictures for the dialogs.
PixelArt GammaIcon();
PixelArt RedIcon();
PixelArt GreenIcon();
PixelArt BlueIcon();
