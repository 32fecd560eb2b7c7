#pragma once

#include "framework/core/CCmdUI.h"

namespace keltavlo {

// Ids with a meaning to the framework: commands from 57600, strings from 57344.
enum StandardCommand : CommandId {
    ID_FILE_NEW = 57600,
    ID_FILE_OPEN = 57601,
    ID_FILE_CLOSE = 57602,
    ID_FILE_SAVE = 57603,
    ID_FILE_SAVE_AS = 57604,
    ID_FILE_MRU_FIRST = 57616,
    ID_FILE_MRU_LAST = 57619, // an id for each recent file
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
    ID_VIEW_STATUS_BAR = 59393,
    ID_WINDOW_CHILD_FIRST = 65280, // the windows listed in the Window menu
    ID_WINDOW_CHILD_LAST = 65535
};

// The framework's own texts.
enum StandardString : unsigned {
    AFX_IDS_APP_TITLE = 57344,
    AFX_IDS_IDLEMESSAGE = 57345,
    AFX_IDS_RECENT_FILE = 57346, // the placeholder of the recent files
    AFX_IDS_MDICHILD = 61215,    // the prompt of the windows listed in the Window menu
    AFX_IDS_OPENFILE = 61440,
    AFX_IDS_SAVEFILE = 61441,
    AFX_IDS_ALLFILTER = 61442,
    AFX_IDS_SAVEFILECOPY = 61444,
    AFX_IDS_ASK_TO_SAVE = 61478,
    AFX_IDS_NEW_TITLE = 61479,
    AFX_IDS_FILE_EXISTS = 61480,
    AFX_IDS_FILE_MISSING = 61481,
    AFX_IDS_PATH_MISSING = 61482,
    AFX_IDS_NEW_LABEL = 61483,
    AFX_IDS_SAVE_IN = 61484,
    AFX_IDS_FILE_CHANGED = 61485,
    AFX_IDS_SAVE_OVER_CHANGE = 61486,
    AFX_IDS_RELOAD_REPLACES = 61487, // follows one of the two
    AFX_IDS_RELOAD_UNDO = 61488,
    AFX_IDS_RELOAD_BUTTON = 61489,
    AFX_IDS_KEEP_BUTTON = 61490,
    AFX_IDS_OVERWRITE_BUTTON = 61491,
    AFX_IDP_FAILED_MEMORY_ALLOC = 61703,
    AFX_IDP_PARSE_INT_RANGE = 61714, // a dialog refuses a value
    AFX_IDP_PARSE_STRING_SIZE = 61716
};

} // namespace keltavlo
