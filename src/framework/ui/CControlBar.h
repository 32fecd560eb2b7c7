#pragma once

#include "framework/core/CCmdTarget.h"

#include <QDockWidget>

#include <string>

namespace keltavlo {

// A bar at the edge of the main window, which people move, hide and find again where they left it.
class CControlBar : public Dynamic<"CControlBar", CControlBar, CCmdTarget> {
public:
    // What people know the bar by.
    std::string GetWindowText() const;
    // Whether the bar is shown whenever the main window is.
    bool IsVisible() const;
    void Show(bool visible);
    unsigned GetBarId() const { return id; }
    // Brings what the bar shows of its commands' states up to date.
    virtual void OnUpdateCmdUI() {}

    // The command that shows or hides a bar, and its state; null disables it.
    static void OnToggle(CControlBar* bar);
    static void OnUpdateToggle(const CControlBar* bar, CCmdUI& state);

protected:
    // `barWindow` is the bar itself, as the toolkit sees it.
    CControlBar(unsigned barId, QWidget& barWindow);
    // Hands a prompt on to the main window, also from a bar that floats; false for other events.
    bool ForwardPrompt(QEvent& event);

private:
    unsigned id;
    QWidget& window;
};

// A bar of controls that docks at the left or the right side of the main window, or floats. Commands are
// offered to it like to any other window.
class CDialogBar : public QDockWidget, public Dynamic<"CDialogBar", CDialogBar, CControlBar> {
public:
    CDialogBar(unsigned barId, const std::string& title, QWidget* parent);

protected:
    bool event(QEvent* event) override;
};

} // namespace keltavlo
