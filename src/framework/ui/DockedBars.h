#pragma once

#include <Qt>

#include <string>
#include <vector>

class QMainWindow;

namespace keltavlo {

class CControlBar;
class CDialogBar;
class CToolBar;

// The bars that are docked to a main window, and its status bar.
class DockedBars {
public:
    explicit DockedBars(QMainWindow& mainWindow) : window(mainWindow) {}

    // Docks a bar, which is a child of the window: at the top behind the others, or at a side.
    void Dock(CToolBar& bar);
    void Dock(CDialogBar& bar, Qt::DockWidgetArea side);
    // Null when no bar has that id.
    CControlBar* Find(unsigned barId) const;
    // Brings what the bars show of their commands' states up to date.
    void OnUpdateCmdUI();

    // Keeps in the settings, and puts back from there, where the bars are and which of them are shown, the
    // status bar included. What cannot be read whole and unharmed changes nothing.
    void SaveState(const std::string& profileName) const;
    void LoadState(const std::string& profileName);
    // Once the window is shown: keeps the bars that float, which were shown before it, above it.
    void LiftFloating();

private:
    QMainWindow& window;
    std::vector<CControlBar*> bars; // in the order in which they were docked
};

} // namespace keltavlo
