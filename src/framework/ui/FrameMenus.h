#pragma once

#include "framework/ui/CMenu.h"

#include <QObject>

#include <map>

class QMainWindow;

namespace keltavlo {

// The menus of a main window by number. The menu bar shows one of them at a time. A menu is made when it is
// first shown.
class FrameMenus final : public QObject {
public:
    using Maker = std::function<std::unique_ptr<CMenu>(unsigned menuId)>;

    FrameMenus(QMainWindow& mainWindow, Maker menuMaker);

    void Show(unsigned menuId);
    // Returns the menu in the menu bar, or null before the first one.
    CMenu* GetCurrent() const { return current; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow& window;
    Maker make;
    std::map<unsigned, std::unique_ptr<CMenu>> menus;
    CMenu* current = nullptr;
};

// Replaces the menu's placeholder for recent files by the files, or restores it if there are none.
void UpdateRecentFileMenu(CMenu& menu, const std::vector<std::string>& paths);
// Lists the main window's children below the Window menu's own items.
void UpdateWindowMenu(CMenu& menu, const std::vector<std::string>& titles);

} // namespace keltavlo
