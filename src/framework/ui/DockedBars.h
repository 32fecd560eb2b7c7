#pragma once

#include <Qt>

#include <string>
#include <vector>

class QMainWindow;

namespace keltavlo {

class CControlBar;
class CDialogBar;
class CToolBar;

// The bars docked to a main window, and its status bar.
class DockedBars {
public:
    explicit DockedBars(QMainWindow& mainWindow) : window(mainWindow) {}

    // Docks a bar, which is a child of the window: at the top after the others, or at a side.
    void Dock(CToolBar& bar);
    void Dock(CDialogBar& bar, Qt::DockWidgetArea side);
    // Returns null if no bar has that id.
    CControlBar* Find(unsigned barId) const;
    // Updates the command states that the bars show.
    void OnUpdateCmdUI();

    // Stores in the settings where the bars are and which of them are shown, including the status bar, or
    // restores that. A damaged or incomplete record changes nothing.
    void SaveState(const std::string& profileName) const;
    void LoadState(const std::string& profileName);
    // Keeps floating bars above the window. Call after showing the window, because the bars were shown
    // before it.
    void LiftFloating();

private:
    QMainWindow& window;
    std::vector<CControlBar*> bars; // in the order in which they were docked
};

} // namespace keltavlo
