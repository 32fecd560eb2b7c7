#pragma once

#include "framework/core/ToolBarTable.h"

#include <QIcon>

namespace keltavlo {

// The picture as an icon that takes its colors from the palette in use. Its pixels stay sharp where they
// come out as whole ones of the screen. The rows must live as long as the program.
QIcon MakePixelIcon(PixelArt art);

} // namespace keltavlo
