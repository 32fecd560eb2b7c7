#include "framework/ui/RecentFileMenu.h"

#include "framework/core/Path.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"
#include "framework/ui/CMenu.h"

#include <QApplication>
#include <QFontMetrics>

#include <algorithm>

namespace keltavlo {

namespace {

constexpr int maximumWidth = 60; // average characters

// A long path loses its middle.
std::string ShortPath(const std::string& path) {
    const QFontMetrics metrics(QApplication::font("QMenu"));
    return FromQString(metrics.elidedText(ToQString(ToDisplayPath(path)), Qt::ElideMiddle,
                                          maximumWidth * metrics.averageCharWidth()));
}

std::string ItemText(const std::vector<std::string>& paths, std::size_t index) {
    return "&" + std::to_string(index + 1) + " " + MenuText(ShortPath(paths[index]));
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

} // namespace keltavlo
