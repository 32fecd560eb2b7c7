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
constexpr const char* firstSteps = "first-steps.html";
constexpr const char* painting = "painting.html";
constexpr const char* keys = "keys.html";
constexpr const char* disabled = "disabled.html";

constexpr Row rows[] = {
    {ID_FILE_PROPERTIES, ID_SELECT_NONE, disabled},
    {ID_ZOOM_100, ID_ZOOM_1600, firstSteps},
    {ID_FORMAT_COLOR, ID_FORMAT_COLOR, painting},
    {ID_VIEW_REFRESH, ID_VIEW_REFRESH, firstSteps},
    {ID_PALETTE_TABLES, ID_PALETTE_NONE, painting},
    {ID_FILTER_HALF, ID_FORMAT_DITHER, painting},
    {ID_TOOLS_OPTIONS, ID_TOOLS_OPTIONS, firstSteps},
    {ID_PALETTE_SPACES, ID_PALETTE_SPACES, painting},
    {ID_3D_SOLID, ID_3D_TEXTURED, "models.html"},
    {ID_3D_WIREFRAME, ID_3D_WIREFRAME, disabled},
    {ID_EDIT_PROPERTIES, ID_EDIT_PROPERTIES, "flags.html"},
    {ID_BAR_FIRST, ID_BAR_LAST, firstSteps},
    {ID_BRUSH_FIRST, ID_COLOR_TABLE_LAST, painting},
    {ID_COLOR_SPACE_FIRST, ID_COLOR_SPACE_LAST, disabled},
    {ID_FILE_NEW, ID_FILE_MRU_LAST, firstSteps},
    {ID_EDIT_CLEAR, ID_EDIT_CLEAR, disabled},
    {ID_EDIT_COPY, ID_EDIT_PASTE, keys},
    {ID_EDIT_SELECT_ALL, ID_EDIT_SELECT_ALL, disabled},
    {ID_EDIT_UNDO, ID_EDIT_REDO, painting},
    {ID_WINDOW_NEW, ID_WINDOW_SPLIT, firstSteps},
    {ID_APP_EXIT, ID_APP_EXIT, firstSteps},
    {ID_APP_ABOUT, ID_DEFAULT_HELP, contents},
    {ID_VIEW_TOOLBAR, ID_VIEW_STATUS_BAR, firstSteps},
    {ID_FILTER_BAR, ID_PALETTE_BAR, painting},
    {ID_WINDOW_CHILD_FIRST, ID_WINDOW_CHILD_LAST, firstSteps},
};

} // namespace

const char* HelpPageFor(CommandId id) {
    const auto row =
        std::ranges::find_if(rows, [id](const Row& each) { return each.first <= id && id <= each.last; });
    return row == std::end(rows) ? nullptr : row->page;
}

} // namespace keltavlo
