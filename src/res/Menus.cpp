#include "res/Menus.h"

#include "res/CommandIds.h"

namespace keltavlo {

namespace {

constexpr MenuRow separator{};

constexpr MenuRow mainFile[] = {
    {"&New\tCtrl+N", ID_FILE_NEW},
    {"&Open...\tCtrl+O", ID_FILE_OPEN},
    separator,
    {"Recent File", ID_FILE_MRU_FIRST},
    separator,
    {"E&xit", ID_APP_EXIT},
};
constexpr MenuRow mainToolbars[] = {
    {"S&tandard", ID_VIEW_TOOLBAR},
};
constexpr MenuRow mainView[] = {
    {"&Toolbars", 0, mainToolbars},
    {"&Status Bar", ID_VIEW_STATUS_BAR},
    separator,
    {"&Refresh", ID_VIEW_REFRESH},
};
constexpr MenuRow brushFormat[] = {
    {"&Color...", ID_FORMAT_COLOR},
};
constexpr MenuRow mainFormat[] = {
    {"&Brush", 0, brushFormat},
};
constexpr MenuRow mainTools[] = {
    {"&Options...", ID_TOOLS_OPTIONS},
};
constexpr MenuRow help[] = {
    {"&Help Topics", ID_HELP_FINDER},
    separator,
    {"&About KelTavlo...", ID_APP_ABOUT},
};
constexpr MenuRow mainMenu[] = {
    {"&File", 0, mainFile},   {"&View", 0, mainView}, {"&Format", 0, mainFormat},
    {"&Tools", 0, mainTools}, {"&Help", 0, help},
};

constexpr MenuRow documentFile[] = {
    {"&New\tCtrl+N", ID_FILE_NEW},
    {"&Open...\tCtrl+O", ID_FILE_OPEN},
    {"&Close", ID_FILE_CLOSE},
    separator,
    {"&Save\tCtrl+S", ID_FILE_SAVE},
    {"Save &As...", ID_FILE_SAVE_AS},
    separator,
    {"Propert&ies", ID_FILE_PROPERTIES},
    separator,
    {"Recent File", ID_FILE_MRU_FIRST},
    separator,
    {"E&xit", ID_APP_EXIT},
};
constexpr MenuRow select[] = {
    {"&All\tCtrl+A", ID_EDIT_SELECT_ALL},
    {"&None", ID_SELECT_NONE},
};
constexpr MenuRow documentEdit[] = {
    {"&Undo\tCtrl+Z", ID_EDIT_UNDO},
    {"&Redo\tCtrl+Y", ID_EDIT_REDO},
    separator,
    {"Cu&t\tCtrl+X", ID_EDIT_CUT},
    {"&Copy\tCtrl+C", ID_EDIT_COPY},
    {"&Paste\tCtrl+V", ID_EDIT_PASTE},
    separator,
    {"Cle&ar\tDelete", ID_EDIT_CLEAR},
    {"&Select", 0, select},
    separator,
    {"Propert&ies", ID_EDIT_PROPERTIES},
};
constexpr MenuRow documentToolbars[] = {
    {"Toolbar", ID_VIEW_TOOLBAR},
};
constexpr MenuRow zoom[] = {
    {"&100%", ID_ZOOM_100}, {"&200%", ID_ZOOM_200},   {"&400%", ID_ZOOM_400},
    {"&800%", ID_ZOOM_800}, {"1&600%", ID_ZOOM_1600},
};
constexpr MenuRow view3d[] = {
    {"&Wireframe", ID_3D_WIREFRAME},
    {"&Solid", ID_3D_SOLID},
    {"&Textured", ID_3D_TEXTURED},
};
constexpr MenuRow filter[] = {
    {"&Nearest Color", ID_FILTER_NEAREST},
    {"Error Diffusion &Dithering", ID_FILTER_DITHER},
};
constexpr MenuRow documentView[] = {
    {"&Toolbars", 0, documentToolbars},
    {"&Status Bar", ID_VIEW_STATUS_BAR},
    separator,
    {"&Zoom", 0, zoom},
    separator,
    {"&3D", 0, view3d},
    separator,
    {"F&ilter", 0, filter},
    separator,
    {"&Refresh", ID_VIEW_REFRESH},
};
constexpr MenuRow documentFormat[] = {
    {"&Brush", 0, brushFormat},
    separator,
    {"&Nearest Color", ID_FORMAT_NEAREST},
    {"Error Diffusion &Dithering", ID_FORMAT_DITHER},
};
constexpr MenuRow brushes[] = {
    {"Brush", ID_BRUSHES},
    separator,
    {"&None", ID_BRUSH_NONE},
};
constexpr MenuRow palettes[] = {
    {"Palette", ID_PALETTE_SPACES}, separator, {"Palette", ID_PALETTE_TABLES}, separator,
    {"&None", ID_PALETTE_NONE},     separator, {"&Open...", ID_FILE_OPEN},
};
constexpr MenuRow documentTools[] = {
    {"&Brush", 0, brushes},
    {"&Palette", 0, palettes},
    separator,
    {"&Options...", ID_TOOLS_OPTIONS},
};
constexpr MenuRow arrange[] = {
    {"&Horizontal", ID_WINDOW_TILE_HORZ}, {"&Vertical", ID_WINDOW_TILE_VERT},
    {"&Cascade", ID_WINDOW_CASCADE},      separator,
    {"&Icons", ID_WINDOW_ARRANGE},
};
constexpr MenuRow documentWindow[] = {
    {"&New Window", ID_WINDOW_NEW},
    {"&Arrange", 0, arrange},
    {"S&plit", ID_WINDOW_SPLIT},
};
constexpr MenuRow documentMenu[] = {
    {"&File", 0, documentFile},   {"&Edit", 0, documentEdit},
    {"&View", 0, documentView},   {"&Format", 0, documentFormat},
    {"&Tools", 0, documentTools}, {"&Window", 0, documentWindow},
    {"&Help", 0, help},
};

constexpr MenuRow imageItems[] = {
    {"&Brush", 0, brushes}, {"&Color...", ID_FORMAT_COLOR},
    {"&Zoom", 0, zoom},     {"Propert&ies", ID_EDIT_PROPERTIES},
    {"Ca&ncel", ID_CANCEL},
};
constexpr MenuRow imageContextMenu[] = {
    {"Image", 0, imageItems},
};

constexpr AcceleratorRow accelerators[] = {
    {"Ctrl+A", ID_EDIT_SELECT_ALL},  {"Ctrl+C", ID_EDIT_COPY},     {"Ctrl+N", ID_FILE_NEW},
    {"Ctrl+O", ID_FILE_OPEN},        {"Ctrl+S", ID_FILE_SAVE},     {"Ctrl+V", ID_EDIT_PASTE},
    {"Alt+Backspace", ID_EDIT_UNDO}, {"Shift+Del", ID_EDIT_CUT},   {"F1", ID_HELP},
    {"Shift+F1", ID_CONTEXT_HELP},   {"F6", ID_NEXT_PANE},         {"Shift+F6", ID_PREV_PANE},
    {"Ctrl+Ins", ID_EDIT_COPY},      {"Shift+Ins", ID_EDIT_PASTE}, {"Ctrl+X", ID_EDIT_CUT},
    {"Ctrl+Y", ID_EDIT_REDO},        {"Ctrl+Z", ID_EDIT_UNDO},
};

} // namespace

std::span<const MenuRow> MenuBarRows(unsigned menuId) {
    switch (menuId) {
    case IDR_MAINFRAME:
        return mainMenu;
    case IDR_DOCUMENT:
        return documentMenu;
    default:
        return {};
    }
}

std::span<const MenuRow> ImageContextMenuRows() {
    return imageContextMenu;
}

std::span<const AcceleratorRow> AcceleratorRows() {
    return accelerators;
}

} // namespace keltavlo
