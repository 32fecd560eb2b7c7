#pragma once

#include "framework/core/CCmdTarget.h"

#include <QDockWidget>

#include <string>

namespace keltavlo {

// A bar at the edge of the main window. The user moves or hides it; it reopens in the same place.
class CControlBar : public Dynamic<"CControlBar", CControlBar, CCmdTarget> {
public:
    // Returns the bar's title.
    std::string GetWindowText() const;
    // Returns whether the bar is shown when the main window is.
    bool IsVisible() const;
    void Show(bool visible);
    unsigned GetBarId() const { return id; }
    // Updates the command states that the bar shows.
    virtual void OnUpdateCmdUI() {}

    // The command that shows or hides a bar, and its state. If `bar` is null, the command is disabled.
    static void OnToggle(CControlBar* bar);
    static void OnUpdateToggle(const CControlBar* bar, CCmdUI& state);

protected:
    // `barWindow` is the bar itself as a Qt widget.
    CControlBar(unsigned barId, QWidget& barWindow);
    // Passes a prompt from a floating bar on to the main window. Returns false for all other events.
    bool ForwardPrompt(QEvent& event);

private:
    unsigned id;
    QWidget& window;
};

// A bar of controls that floats or docks at the left or right side of the main window. It is a command target
// like any other window.
class CDialogBar : public QDockWidget, public Dynamic<"CDialogBar", CDialogBar, CControlBar> {
public:
    CDialogBar(unsigned barId, const std::string& title, QWidget* parent);

protected:
    bool event(QEvent* event) override;
};

} // namespace keltavlo
