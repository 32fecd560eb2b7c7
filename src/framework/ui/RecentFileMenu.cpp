#include "framework/ui/RecentFileMenu.h"

#include "framework/core/Path.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/ui/CMenu.h"

#include <algorithm>

namespace {

std::string ItemText(const std::vector<std::string>& paths, std::size_t index) {
    return "&" + std::to_string(index + 1) + " " + MenuText(ToDisplayPath(paths[index]));
}

} // namespace

void UpdateRecentFileMenu(CMenu& menu, const std::vector<std::string>& paths) {
    const auto count = static_cast<CommandId>(paths.size());
    for (CommandId id = ID_FILE_MRU_FIRST + std::max(count, 1U); menu.FindItem(id); ++id) menu.RemoveItem(id);
    menu.ModifyItem(ID_FILE_MRU_FIRST, ID_FILE_MRU_FIRST,
                    paths.empty() ? LoadString(AFX_IDS_RECENT_FILE) : ItemText(paths, 0));
    for (CommandId i = 1; i < count; ++i) {
        const CommandId id = ID_FILE_MRU_FIRST + i;
        if (!menu.FindItem(id)) menu.InsertItemAfter(id - 1, id, {});
        menu.ModifyItem(id, id, ItemText(paths, i));
    }
}
