#include "app/ui/HelpPages.h"

#include "res/CommandIds.h"

#include <algorithm>
#include <iterator>

namespace keltavlo {

namespace {

struct Row {
    CommandId first, last;
    const char* page;
};

constexpr const char* contents = "index.html";
constexpr const char* opening = "open.html";
constexpr const char* looking = "seam.html";
constexpr const char* painting = "painting.html";
constexpr const char* saving = "save.html";
constexpr const char* palettes = "palettes.html";
constexpr const char* keys = "keys.html";
constexpr const char* disabled = "disabled.html";

constexpr Row rows[] = {
    {ID_FILE_PROPERTIES, ID_SELECT_NONE, disabled},
    {ID_ZOOM_100, ID_ZOOM_1600, looking},
    {ID_FORMAT_COLOR, ID_FORMAT_COLOR, painting},
    {ID_VIEW_REFRESH, ID_VIEW_REFRESH, looking},
    {ID_BRUSHES, ID_BRUSHES, painting},
    {ID_BRUSH_NONE, ID_BRUSH_NONE, painting},
    {ID_PALETTE_TABLES, ID_PALETTE_NONE, palettes},
    {ID_FILTER_HALF, ID_FORMAT_DITHER, palettes},
    {ID_TOOLS_OPTIONS, ID_TOOLS_OPTIONS, looking},
    {ID_PALETTE_SPACES, ID_PALETTE_SPACES, palettes},
    {ID_3D_SOLID, ID_3D_TEXTURED, "models.html"},
    {ID_3D_WIREFRAME, ID_3D_WIREFRAME, disabled},
    {ID_EDIT_PROPERTIES, ID_EDIT_PROPERTIES, "flags.html"},
    {ID_BAR_FIRST, ID_BAR_LAST, looking},
    {ID_BRUSH_FIRST, ID_BRUSH_LAST, painting},
    {ID_COLOR_TABLE_FIRST, ID_COLOR_TABLE_LAST, palettes},
    {ID_COLOR_SPACE_FIRST, ID_COLOR_SPACE_LAST, disabled},
    {ID_FILE_CLOSE, ID_FILE_SAVE_AS, saving},
    {ID_FILE_NEW, ID_FILE_MRU_LAST, opening},
    {ID_EDIT_CLEAR, ID_EDIT_CLEAR, disabled},
    {ID_EDIT_COPY, ID_EDIT_PASTE, keys},
    {ID_EDIT_SELECT_ALL, ID_EDIT_SELECT_ALL, disabled},
    {ID_EDIT_UNDO, ID_EDIT_REDO, painting},
    {ID_WINDOW_NEW, ID_WINDOW_SPLIT, looking},
    {ID_APP_EXIT, ID_APP_EXIT, saving},
    {ID_APP_ABOUT, ID_DEFAULT_HELP, contents},
    {ID_VIEW_TOOLBAR, ID_VIEW_STATUS_BAR, looking},
    {ID_FILTER_BAR, ID_PALETTE_BAR, palettes},
    {ID_WINDOW_CHILD_FIRST, ID_WINDOW_CHILD_LAST, looking},
};

} // namespace

const char* HelpPageFor(CommandId id) {
    const auto row =
        std::ranges::find_if(rows, [id](const Row& each) { return each.first <= id && id <= each.last; });
    return row == std::end(rows) ? nullptr : row->page;
}

} // namespace keltavlo
