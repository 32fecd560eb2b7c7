#include "framework/ui/FrameMenus.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QShortcutEvent>

namespace keltavlo {

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

// Of menus with the same mnemonic the toolkit takes each in turn; here it is always the first.
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

} // namespace keltavlo
