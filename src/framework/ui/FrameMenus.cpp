#include "framework/ui/FrameMenus.h"

#include "framework/core/Path.h"
#include "framework/core/StandardIds.h"
#include "framework/core/StringTable.h"
#include "framework/core/Text.h"

#include <QApplication>
#include <QFontMetrics>
#include <QMainWindow>
#include <QMenuBar>
#include <QShortcutEvent>

#include <algorithm>

namespace keltavlo {

namespace {

constexpr int maximumWidth = 60; // average characters

// Removes the middle of a long path.
std::string ShortPath(const std::string& path) {
    const QFontMetrics metrics(QApplication::font("QMenu"));
    return FromQString(metrics.elidedText(ToQString(ToDisplayPath(path)), Qt::ElideMiddle,
                                          maximumWidth * metrics.averageCharWidth()));
}

std::string ItemText(const std::vector<std::string>& paths, std::size_t index) {
    return "&" + std::to_string(index + 1) + " " + MenuText(ShortPath(paths[index]));
}

} // namespace

FrameMenus::FrameMenus(QMainWindow& mainWindow, Maker menuMaker)
    : window(mainWindow), make(std::move(menuMaker)) {
    window.menuBar()->installEventFilter(this);
}

void FrameMenus::Show(unsigned menuId) {
    std::unique_ptr<CMenu>& menu = menus[menuId];
    if (!menu) menu = make(menuId);
    if (current == menu.get()) return;
    current = menu.get();
    window.menuBar()->clear();
    for (const auto& popup : current->GetPopups()) window.menuBar()->addMenu(popup.get());
}

// If several menus have the same mnemonic, Qt cycles through them; this opens the first one.
bool FrameMenus::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::Shortcut) return false;
    const auto* shortcut = static_cast<QShortcutEvent*>(event);
    if (!shortcut->isAmbiguous()) return false;
    for (QAction* menu : window.menuBar()->actions())
        if (QKeySequence::mnemonic(menu->text()) == shortcut->key()) {
            window.menuBar()->setActiveAction(menu);
            return true;
        }
    return false;
}

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

void UpdateWindowMenu(CMenu& menu, const std::vector<std::string>& titles) {
    CommandId id = ID_WINDOW_CHILD_FIRST;
    for (const std::string& title : titles) {
        const unsigned number = id - ID_WINDOW_CHILD_FIRST + 1;
        const std::string text = (number < 10 ? "&" : "") + std::to_string(number) + " " + MenuText(title);
        if (menu.FindItem(id)) {
            menu.ModifyItem(id, id, text);
        } else {
            if (number == 1) menu.AppendItem(ID_WINDOW_NEW, 0, {});
            menu.AppendItem(ID_WINDOW_NEW, id, text);
        }
        menu.SetItemPrompt(id, LoadString(AFX_IDS_MDICHILD));
        ++id;
    }
    for (; menu.FindItem(id); ++id) menu.RemoveItem(id);
}

} // namespace keltavlo
