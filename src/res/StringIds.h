#pragma once

namespace keltavlo {

// Strings that the documents use.
enum DocumentStringId : unsigned {
    IDS_UNDO_NAMED = 768,
    IDS_REDO_NAMED = 769,
    IDS_UNDO = 770,
    IDS_REDO = 771,
    IDS_CANNOT_UNDO = 772,
    IDS_CANNOT_REDO = 773,
    IDS_ACTION_REFORMAT = 785,
    IDS_ACTION_PASTE = 786,
    IDS_ACTION_RESIZE = 787,
    IDS_ACTION_QUAKE_NAME = 788,
    IDS_ACTION_QUAKE2_NAME = 789,
    IDS_ACTION_QUAKE2_SURFACE = 790,
    IDS_ACTION_QUAKE2_CONTENTS = 791,
    IDS_ACTION_QUAKE2_VALUE = 792,
    IDS_ACTION_NEAREST = 793,
    IDS_ACTION_DITHER = 794,
    IDS_ACTION_RELOAD = 795,
    IDS_PARENTHESES = 1028,
    IDS_NONE = 1248,
    IDS_WORKING = 2304,
    IDS_READING_DIRECTORY = 2305,
    IDS_READING_FILES = 2306,
    IDS_CANNOT_BE_WRITTEN = 2307
};

// Strings of the document types.
enum DocumentTypeId : unsigned {
    IDR_BITMAP = 130,
    IDR_MIPMAP = 133,
    IDR_PCX = 134,
    IDR_TARGA = 136,
    IDR_WAL = 138,
    IDR_PAK = 140,
    IDR_WAD = 141,
    IDR_LMP = 142,
    IDR_BRUSH = 149,
    IDR_MD2 = 150,
    IDR_MDL = 151,
    IDR_COLOR_SPACE = 152,
    IDR_RESOURCES = 153,
    IDR_COLOR_TABLE = 154,
    IDR_PK3 = 155,
    IDR_ZIP = 156,
    IDR_BSP = 157
};

} // namespace keltavlo
