#pragma once

#include "framework/core/StringTable.h"

namespace keltavlo {

// Strings of the program's windows, in addition to the framework's.
enum ShellStringId : unsigned {
    IDS_OPEN_FILTERS = 256,
    IDS_SAVE_FILTERS = 257,
    IDS_EDIT_PROPERTIES_TITLE = 529,
    IDS_OPTIONS_TITLE = 530,
    IDS_GAMMA_VALUE = 1088,
    IDS_POSITION = 1089,
    IDS_COLOR_OPAQUE = 1091,
    IDS_COLOR_TRANSPARENT = 1092,
    IDS_COLOR_ALPHA = 1093,
    IDS_SAMPLE_POSITION = 1105,
    IDS_SAMPLE_COLOR = 1109,
    IDS_SAMPLE_ZOOM = 1110,
    IDS_COLOR_TABLE = 1249,
    IDS_RGBA = 1250,
    IDS_PALETTE_BAR = 1298,
    IDS_PALETTE_CHOOSER = 1299,
    IDS_PALETTE_PICK = 1300,
    IDS_STANDARD_BAR = 1345,
    IDS_FILTER_BAR = 1349,
    IDS_COLUMN_NAME = 1376,
    IDS_COLUMN_SIZE = 1377,
    IDS_COLUMN_TYPE = 1378,
    IDS_COLUMN_MODIFIED = 1379,
    IDS_KILOBYTES = 1393,
    IDS_DATE_AND_TIME = 1400,
    IDS_PREVIEW_SIZE = 1410,
    IDS_NO_PREVIEW = 1411,
    IDS_NOT_IMPLEMENTED_TITLE = 1412,
    IDS_NOT_IMPLEMENTED = 1413,
    IDS_NO_PICTURE = 1414,
    IDS_CONTENTS_OF = 1415,
    IDS_UNKNOWN_FORMAT = 1416,
    IDS_NO_OPENGL = 2400,
    IDS_NO_MEMORY_TO_PAINT = 2401
};

// Returns these strings, the framework's, and one for each command: its prompt, then its tool tip.
std::span<const StringRow> ShellStrings();

} // namespace keltavlo
