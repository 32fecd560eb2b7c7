#pragma once

#include "framework/core/CCmdUI.h"

// Command ids. The framework's own lie from 57344 up; the program's from 32768.
enum StandardCommand : CommandId {
    ID_FILE_NEW = 57600,
    ID_FILE_OPEN = 57601,
    ID_FILE_CLOSE = 57602,
    ID_FILE_SAVE = 57603,
    ID_FILE_SAVE_AS = 57604,
    ID_FILE_MRU_FIRST = 57616,
    ID_FILE_MRU_LAST = 57631,
    ID_EDIT_CLEAR = 57632,
    ID_EDIT_COPY = 57634,
    ID_EDIT_CUT = 57635,
    ID_EDIT_PASTE = 57637,
    ID_EDIT_SELECT_ALL = 57642,
    ID_EDIT_UNDO = 57643,
    ID_EDIT_REDO = 57644,
    ID_WINDOW_NEW = 57648,
    ID_WINDOW_ARRANGE = 57649,
    ID_WINDOW_CASCADE = 57650,
    ID_WINDOW_TILE_HORZ = 57651,
    ID_WINDOW_TILE_VERT = 57652,
    ID_WINDOW_SPLIT = 57653,
    ID_APP_ABOUT = 57664,
    ID_APP_EXIT = 57665,
    ID_HELP_FINDER = 57667,
    ID_CONTEXT_HELP = 57669,
    ID_HELP = 57670,
    ID_DEFAULT_HELP = 57671,
    ID_NEXT_PANE = 57680,
    ID_PREV_PANE = 57681,
    ID_VIEW_TOOLBAR = 59392,
    ID_VIEW_STATUS_BAR = 59393
};

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
    ID_PALETTE_TABLES = 32789, // placeholder of the run of colour tables
    ID_BRUSHES = 32790,        // placeholder of the run of brushes
    ID_FILTER_NEAREST = 32791,
    ID_FILTER_DITHER = 32792,
    ID_BRUSH_NONE = 32793,
    ID_PALETTE_NONE = 32794,
    ID_CANCEL = 32795,
    ID_FILTER_HALF = 32798,
    ID_FORMAT_NEAREST = 32799,
    ID_FORMAT_DITHER = 32800,
    ID_TOOLS_OPTIONS = 32802,
    ID_PALETTE_SPACES = 32810, // placeholder of the run of colour spaces
    ID_3D_SOLID = 32813,
    ID_3D_TEXTURED = 32814,
    ID_3D_WIREFRAME = 32815,
    ID_EDIT_PROPERTIES = 32839
};

// Titles that the framework gives its file dialogs.
enum StandardString : unsigned {
    AFX_IDS_OPENFILE = 61440,
    AFX_IDS_SAVEFILE = 61441,
    AFX_IDS_ALLFILTER = 61442,
    AFX_IDS_SAVEFILECOPY = 61444
};
