#pragma once

#include "framework/core/CCmdTarget.h"
#include "framework/core/MenuTable.h"
#include "framework/core/WindowPlacement.h"

#include <QMainWindow>

#include <map>
#include <memory>
#include <vector>

namespace keltavlo {

class CControlBar;
class CDialogBar;
class CMDIChildWnd;
class CMenu;
class CStatusBar;
class CToolBar;
class CView;
class MDIClientArea;

// The program's main window: document windows in its client area, menus and accelerators that carry out
// commands by id, a status bar. Commands go to the active child (its view, its document, itself), then to
// this frame, then to the application.
class CMDIFrameWnd : public QMainWindow, public Dynamic<"CMDIFrameWnd", CMDIFrameWnd, CCmdTarget> {
public:
    CMDIFrameWnd();
    ~CMDIFrameWnd() override;

    // The active child that people see, or null.
    CMDIChildWnd* MDIGetActive() const { return activeChild; }
    // In the order of creation.
    std::vector<CMDIChildWnd*> GetChildren() const;
    void AddChild(CMDIChildWnd& child);
    // For a child that ends: it is no longer active, nor listed.
    void RemoveChild(CMDIChildWnd& child);
    void MDIActivate(CMDIChildWnd& child);
    // Activates the child behind the active one, or before it; after the last one comes the first.
    void MDINext(bool previous);
    // Names the active document in the title. A maximized child adds its own title in brackets.
    void OnUpdateFrameTitle();
    // Tells the views that another one is active, and keeps account of it.
    void ChangeActiveView(CView* activated, CView* deactivated);

    // The menu that the menu bar shows.
    CMenu& GetCurrentMenu() { return *currentMenu; }
    CStatusBar& GetStatusBar() { return *statusBarWindow; }
    // Brings what people see of the commands' states up to date; runs by itself before the program waits.
    void OnIdle() noexcept;
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;

    // Docks a bar, which is a child of this window: at the top behind the others, or at a side.
    void DockControlBar(CToolBar& bar);
    void DockControlBar(CDialogBar& bar, Qt::DockWidgetArea side);
    // Keeps in the settings, and puts back from there, where the bars are and which of them are shown, the
    // status bar included. What cannot be read whole and unharmed changes nothing.
    void SaveBarState(const std::string& profileName) const;
    void LoadBarState(const std::string& profileName);
    // Once this window is shown: keeps the bars that float, which were shown before it, above it.
    void LiftFloatingBars();

    WindowPlacement GetWindowPlacement() const;
    // Moves the window to where it stands when it is neither minimised nor maximised, on a screen that there
    // is; does not show it.
    void SetWindowPlacement(const WindowPlacement& placement);
    // Shows the window as a WindowPlacement::ShowCommand says.
    void ShowWindow(std::uint32_t showCommand);

protected:
    // Makes the menus and the accelerators; the frame's own menu is shown while no child is active.
    void LoadFrame(unsigned menuId, std::span<const AcceleratorRow> accelerators);
    // The menu table of that id.
    virtual std::span<const MenuRow> GetMenuRows(unsigned menuId) const = 0;
    // A popup is about to be seen: a place to renew items that change.
    virtual void OnInitMenuPopup(CMenu& menu);
    const CommandMap& GetCommandMap() const override;

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    template <class Action>
    void AddKeys(const char* keys, Action action);
    void AddChildKeys();
    void OnChildActivated();
    void SetActiveChild(CMDIChildWnd* child);
    void ShowMenu(unsigned menuId);
    void UpdateWindowList(CMenu& menu);

    void OnUpdateWithChild(CCmdUI& state);
    void OnWindowNew();
    void OnWindowArrange(CommandId id);
    void OnWindowActivate(CommandId id);
    void OnUpdateWindowActivate(CCmdUI& state);
    void OnViewStatusBar();
    void OnUpdateViewStatusBar(CCmdUI& state);
    CControlBar* FindControlBar(unsigned barId) const;
    void OnViewControlBar(CommandId id);
    void OnUpdateViewControlBar(CCmdUI& state);

    MDIClientArea* clientArea; // children of this window
    CStatusBar* statusBarWindow;
    std::vector<CControlBar*> dockedBars; // docked in this order
    CMDIChildWnd* activeChild = nullptr;
    unsigned ownMenuId = 0;
    std::map<unsigned, std::unique_ptr<CMenu>> menus;
    CMenu* currentMenu = nullptr;
};

} // namespace keltavlo
