#pragma once

#include "framework/core/StandardIds.h"

namespace keltavlo {

// The program's own command ids. StandardIds.h contains the framework's.
enum ProgramCommand : CommandId {
    ID_FILE_PROPERTIES = 32771,
    ID_SELECT_NONE = 32772,
    ID_ZOOM_100 = 32774,
    ID_ZOOM_200 = 32776,
    ID_ZOOM_400 = 32777,
    ID_ZOOM_800 = 32778,
    ID_ZOOM_1600 = 32779,
    ID_FORMAT_COLOR = 32783,
    ID_VIEW_REFRESH = 32784,
    ID_PALETTE_TABLES = 32789, // placeholder for the color tables
    ID_BRUSHES = 32790,        // placeholder for the brushes
    ID_FILTER_NEAREST = 32791,
    ID_FILTER_DITHER = 32792,
    ID_BRUSH_NONE = 32793,
    ID_PALETTE_NONE = 32794,
    ID_CANCEL = 32795,
    ID_FILTER_HALF = 32798,
    ID_FORMAT_NEAREST = 32799,
    ID_FORMAT_DITHER = 32800,
    ID_TOOLS_OPTIONS = 32802,
    ID_PALETTE_SPACES = 32810, // placeholder for the color spaces
    ID_3D_SOLID = 32813,
    ID_3D_TEXTURED = 32814,
    ID_3D_WIREFRAME = 32815,
    ID_EDIT_PROPERTIES = 32839,
    // Runs of menu items that change, with one id per entry.
    ID_BAR_FIRST = 49152,
    ID_BAR_LAST = 49407,
    ID_BRUSH_FIRST = 50432,
    ID_BRUSH_LAST = 50687,
    ID_COLOR_TABLE_FIRST = 50688,
    ID_COLOR_TABLE_LAST = 50943,
    ID_COLOR_SPACE_FIRST = 50944,
    ID_COLOR_SPACE_LAST = 51199,
    // The bars besides the standard toolbar, which is ID_VIEW_TOOLBAR.
    ID_FILTER_BAR = 59398,
    ID_PALETTE_BAR = 59401
};

} // namespace keltavlo
