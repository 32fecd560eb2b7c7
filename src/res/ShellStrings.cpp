#include "res/ShellStrings.h"

#include "res/CommandIds.h"

namespace keltavlo {

namespace {

constexpr StringRow rows[] = {
    {AFX_IDS_APP_TITLE, "KelTavlo"},
    {AFX_IDS_IDLEMESSAGE, "Ready"},
    {AFX_IDS_RECENT_FILE, "Recent File"},
    {AFX_IDS_MDICHILD, "Activate this window"},
    {AFX_IDS_OPENFILE, "Open"},
    {AFX_IDS_SAVEFILE, "Save As"},
    {AFX_IDS_SAVEFILECOPY, "Save Copy As"},
    {AFX_IDS_ALLFILTER, "All Files (*.*)"},
    {AFX_IDS_ASK_TO_SAVE, "Save changes to %s?"},
    {AFX_IDS_NEW_TITLE, "New"},
    {AFX_IDS_NEW_LABEL, "&New document of type:"},
    {AFX_IDS_FILE_EXISTS, "%s already exists.\nDo you want to replace it?"},
    {AFX_IDS_FILE_MISSING, "%s\nThis file does not exist."},
    {AFX_IDP_FAILED_MEMORY_ALLOC, "There is not enough memory for this.\nYour documents have not changed."},
    {AFX_IDP_PARSE_INT_RANGE, "Enter a whole number between %d and %d."},
    {AFX_IDP_PARSE_STRING_SIZE, "Enter no more than %u characters. Non-ASCII letters count as several."},
    {AFX_IDS_SAVE_IN, "Save in:"},
    {AFX_IDS_FILE_CHANGED, "%s\nAnother program has changed this file. Do you want to reload it?"},
    {AFX_IDS_SAVE_OVER_CHANGE,
     "%s\nAnother program has changed this file. Saving would overwrite its changes."},
    {AFX_IDS_RELOAD_REPLACES, "\n\nReloading discards your unsaved changes."},
    {AFX_IDS_RELOAD_UNDO, "\n\nReloading replaces your unsaved changes. Edit > Undo brings them back."},
    {AFX_IDS_RELOAD_BUTTON, "&Reload"},
    {AFX_IDS_KEEP_BUTTON, "&Keep"},
    {AFX_IDS_OVERWRITE_BUTTON, "&Overwrite"},
    {AFX_IDS_RESCUED,
     "%s\nKelTavlo ended before this document was saved. Do you want to open it with its changes?"},
    {AFX_IDS_RESCUED_NEW, "%s (a new document)\n"
                          "KelTavlo ended before this document was saved. Do you want to open it?"},
    {AFX_IDS_OPEN_BUTTON, "&Open"},
    {AFX_IDS_DISCARD_BUTTON, "&Discard"},
    {AFX_IDS_LATER_BUTTON, "Ask &Later"},
    {AFX_IDS_CANCEL_BUTTON, "Cancel"},
    {AFX_IDS_PATH_MISSING, "%s\nThis folder does not exist."},

    // Labels and patterns of the file dialogs. Every row includes archives, because they count as folders.
    {IDS_OPEN_FILTERS, "All Files (*.bmp, *.lmp, *.md2, *.mdl, *.mip, *.pcx, *.tga, *.wal)\n"
                       "*.bmp;*.lmp;*.md2;*.mdl;*.mip;*.pak;*.pcx;*tga;*.wad;*.wal\n"
                       "Quake Files (*.lmp, *mdl, *.mip, *.pcx)\n*.lmp;*.mdl;*.mip;*.pak;*.pcx;*.wad;\n"
                       "Quake II Files (*.lmp, *.pcx, *.wal)\n*.lmp;*.pak;*.pcx;*.wad;*.wal;\n"
                       "Quake III Arena Files (*.pcx, *.tga)\n*.pak;*.pcx;*.tga;*.wad;"},
    {IDS_SAVE_FILTERS,
     "All Files (*.bmp, *.mip, *.pcx, *.tga, *.wal)\n*.bmp;*.mip;*.pak;*.pcx;*tga;*.wad;*.wal\n"
     "Bitmap Files (*.bmp)\n*.bmp;*.pak;*.wad\n"
     "Quake Texture Files (*.mip)\n*.mip;*.pak;*.wad\n"
     "Paintbrush Image Files (*.pcx)\n*.pak;*.pcx;*.wad\n"
     "Targa Files (*.tga)\n*.pak;*.tga;*.wad\n"
     "Quake II Texture Files (*.wal)\n*.pak;*.wad;*.wal"},

    {IDS_EDIT_PROPERTIES_TITLE, "Edit Properties"},
    {IDS_OPTIONS_TITLE, "Options"},
    {IDS_GAMMA_VALUE, "%.2f"},
    {IDS_POSITION, "%.2f, %.2f"},
    {IDS_COLOR_OPAQUE, "rgb: %.2X %.2X %.2X"},
    {IDS_COLOR_TRANSPARENT, "rgb: (%.2X %.2X %.2X)"},
    {IDS_COLOR_ALPHA, "rgba: %.2X %.2X %.2X %.2X"},
    {IDS_SAMPLE_POSITION, "1000.00, 1000.00"},
    {IDS_SAMPLE_COLOR, "rgba: AA AA AA AA"},
    {IDS_SAMPLE_ZOOM, "100%"},

    {IDS_COLOR_TABLE, "Color Table"},
    {IDS_RGBA, "RGBA"},
    {IDS_PALETTE_BAR, "Palette"},
    {IDS_PALETTE_CHOOSER, "Choose the colors that the palette bar shows\nColors"},
    {IDS_PALETTE_PICK, "Click a color to paint with it\nCurrent Color"},
    {IDS_STANDARD_BAR, "Standard"},
    {IDS_FILTER_BAR, "View Filter"},

    // The lower list of the file dialogs.
    {IDS_COLUMN_NAME, "Name"},
    {IDS_COLUMN_SIZE, "Size"},
    {IDS_COLUMN_TYPE, "Type"},
    {IDS_COLUMN_MODIFIED, "Modified"},
    {IDS_KILOBYTES, "%uKB"},
    {IDS_DATE_AND_TIME, "%c"},
    {IDS_PREVIEW_SIZE, "%d x %d"},
    {IDS_NO_PREVIEW, "No preview of this picture."},
    {IDS_NO_PICTURE, "This file has no preview."},
    {IDS_CONTENTS_OF, "Contents of %s:"},
    {IDS_UNKNOWN_FORMAT, "%s\nKelTavlo does not know this extension and will write a %s.\n"
                         "Do you want to save it under this name?"},
    {IDS_NOT_IMPLEMENTED_TITLE, "Not Implemented"},
    {IDS_NOT_IMPLEMENTED, "%s is not implemented.\nKelTavlo is not fully implemented yet. Sorry.\n\n"
                          "keltavlo@example.org\nwww.example.org/keltavlo\n"},
    {IDS_NO_OPENGL, "Models cannot be shown because this system has no OpenGL."},
    {IDS_NO_MEMORY_TO_PAINT, "There is not enough memory to show this."},

    {ID_FILE_NEW, "Create a new texture\nNew"},
    {ID_FILE_OPEN, "Open a file, even one inside an archive\nOpen"},
    {ID_FILE_CLOSE, "Close the active document\nClose"},
    {ID_FILE_SAVE, "Save the active document\nSave"},
    {ID_FILE_SAVE_AS, "Save the active document under another name\nSave As"},
    {ID_FILE_PROPERTIES, "Show the properties of the file\nProperties"},
    {ID_FILE_MRU_FIRST, "Open this file again\nRecent File"},
    {ID_FILE_MRU_FIRST + 1, "Open this file again\nRecent File"},
    {ID_FILE_MRU_FIRST + 2, "Open this file again\nRecent File"},
    {ID_FILE_MRU_LAST, "Open this file again\nRecent File"},
    {ID_APP_EXIT, "Close all documents and exit\nExit"},
    {ID_EDIT_UNDO, "Undo the last change\nUndo"},
    {ID_EDIT_REDO, "Redo the change that was undone\nRedo"},
    {ID_EDIT_CUT, "Copy the picture to the clipboard and leave it in place\nCut"},
    {ID_EDIT_COPY, "Copy the picture to the clipboard\nCopy"},
    {ID_EDIT_PASTE, "Replace the picture with the one on the clipboard\nPaste"},
    {ID_EDIT_CLEAR, "Clear the picture\nClear"},
    {ID_EDIT_SELECT_ALL, "Select the whole picture\nSelect All"},
    {ID_SELECT_NONE, "Select nothing\nSelect None"},
    {ID_EDIT_PROPERTIES, "Edit the texture's size, names and flags\nProperties"},
    {ID_VIEW_TOOLBAR, "Show or hide this toolbar\nToolbar"},
    {ID_VIEW_STATUS_BAR, "Show or hide the status bar\nStatus Bar"},
    {ID_VIEW_REFRESH, "Redraw everything\nRefresh"},
    {ID_ZOOM_100, "Show each texel as one pixel\n100%"},
    {ID_ZOOM_200, "Show each texel two pixels wide\n200%"},
    {ID_ZOOM_400, "Show each texel four pixels wide\n400%"},
    {ID_ZOOM_800, "Show each texel eight pixels wide\n800%"},
    {ID_ZOOM_1600, "Show each texel sixteen pixels wide\n1600%"},
    {ID_3D_WIREFRAME, "Draw the edges of the model\nWireframe"},
    {ID_3D_SOLID, "Draw the faces of the model\nSolid"},
    {ID_3D_TEXTURED, "Draw the model with its texture\nTextured"},
    {ID_FILTER_HALF, "Show the picture at half its brightness\nHalf Brightness Filter"},
    {ID_FILTER_NEAREST, "Show the nearest colors of the palette\nNearest Color Filter"},
    {ID_FILTER_DITHER,
     "Show the colors of the palette with error diffusion\nError Diffusion Dithering Filter"},
    {ID_FORMAT_COLOR, "Edit the color of the brush\nColor"},
    {ID_FORMAT_NEAREST, "Convert the picture to the nearest colors of the palette\nNearest Color"},
    {ID_FORMAT_DITHER, "Convert the picture to the palette with error diffusion\nError Diffusion Dithering"},
    {ID_BRUSHES, "Select this brush for the active document\nBrush"},
    {ID_BRUSH_NONE, "Use no brush in the active document\nNo Brush"},
    {ID_PALETTE_SPACES, "Select this palette for the active document\nPalette"},
    {ID_PALETTE_TABLES, "Select this palette for the active document\nPalette"},
    {ID_PALETTE_NONE, "Use no palette in the active document\nNo Palette"},
    {ID_TOOLS_OPTIONS, "Change the program's settings\nOptions"},
    {ID_CANCEL, "Close the menu\nCancel"},
    {ID_WINDOW_NEW, "Open another window on the active document\nNew Window"},
    {ID_WINDOW_TILE_HORZ, "Arrange the windows one above the other\nTile Horizontally"},
    {ID_WINDOW_TILE_VERT, "Arrange the windows side by side\nTile Vertically"},
    {ID_WINDOW_CASCADE, "Arrange the windows so that they overlap\nCascade"},
    {ID_WINDOW_ARRANGE, "Arrange the minimized windows\nArrange Icons"},
    {ID_WINDOW_SPLIT, "Split the active window into panes\nSplit"},
    {ID_NEXT_PANE, "Go to the next pane of the active window\nNext Pane"},
    {ID_PREV_PANE, "Go to the previous pane of the active window\nPrevious Pane"},
    {ID_HELP, "Show the help page for the active window\nHelp"},
    {ID_HELP_FINDER, "Show the help topics\nHelp Topics"},
    {ID_CONTEXT_HELP, "Show the help page for a part of the window\nHelp"},
    {ID_APP_ABOUT, "Show the version, Qt, OpenGL and the settings path\nAbout"},
};

} // namespace

std::span<const StringRow> ShellStrings() {
    return rows;
}

} // namespace keltavlo
