#pragma once

#include "framework/core/StringTable.h"

// Strings of the program's windows beside the framework's own.
enum ShellStringId : unsigned {
    IDS_OPEN_FILTERS = 256,
    IDS_SAVE_FILTERS = 257,
    IDS_POSITION = 1089,
    IDS_COLOR_OPAQUE = 1091,
    IDS_COLOR_TRANSPARENT = 1092,
    IDS_COLOR_ALPHA = 1093,
    IDS_SAMPLE_POSITION = 1105,
    IDS_SAMPLE_COLOR = 1109,
    IDS_SAMPLE_ZOOM = 1110
};

// Those strings, the framework's, and one for each command: the prompt, then the tool tip.
std::span<const StringRow> ShellStrings();
