#pragma once

#include "framework/core/ToolBarTable.h"

#include <QIcon>

namespace keltavlo {

// Returns the picture as an icon in the colors of the current palette. Its pixels stay sharp at sizes where
// each covers whole screen pixels. The rows must live as long as the program.
QIcon MakePixelIcon(PixelArt art);

} // namespace keltavlo
