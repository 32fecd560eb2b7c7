#pragma once

#include "framework/core/ToolBarTable.h"

#include <QIcon>

// The picture as an icon that takes its colours from the palette in use and keeps its pixels square at every
// scale. The rows must live as long as the program.
QIcon MakePixelIcon(PixelArt art);
