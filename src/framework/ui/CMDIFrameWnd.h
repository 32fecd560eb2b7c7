#pragma once

#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/DockedBars.h"
#include "framework/ui/FrameMenus.h"

#include <QMainWindow>

#include <vector>

namespace keltavlo {

class CStatusBar;
class MDIClientArea;

// The program's main window: document windows in its client area, menus and accelerators that carry out
// commands by id, a status bar. Commands go to the active child (its view, its document, itself), then to
// this frame, then to the application.
class CMDIFrameWnd : public QMainWindow,
                     public Dynamic<"CMDIFrameWnd", CMDIFrameWnd, CCmdTarget>,
                     public MDIFrame {
public:
    // The status bar gets a pane for its messages and one for each sample, as wide as that string.
    explicit CMDIFrameWnd(std::span<const unsigned> paneSampleIds);
    ~CMDIFrameWnd() override;

    CMDIChildWnd* MDIGetActive() const override { return activeChild; }
    // In the order of creation.
    std::vector<CMDIChildWnd*> GetChildren() const;
    void AddChild(CMDIChildWnd& child) override;
    void RemoveChild(CMDIChildWnd& child) override;
    void MDIActivate(CMDIChildWnd& child) override;
    // Activates the child behind the active one, or before it; after the last one comes the first.
    void MDINext(bool previous);
    void OnUpdateFrameTitle() override;
    void ChangeActiveView(CView* activated, CView* deactivated) override;

    // The menu that the menu bar shows.
    CMenu& GetCurrentMenu() { return *menus.GetCurrent(); }
    CStatusBar& GetStatusBar() { return *statusBarWindow; }
    DockedBars& GetBars() { return bars; }
    // Brings what people see of the commands' states up to date; runs by itself before the program waits.
    void OnIdle() noexcept;
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;

protected:
    // Makes the menus and the accelerators; the frame's own menu is shown while no child is active.
    void LoadFrame(unsigned menuId, std::span<const AcceleratorRow> accelerators);
    // The menu table of that id.
    virtual std::span<const MenuRow> GetMenuRows(unsigned menuId) const = 0;
    // A popup is about to be seen: a place to renew items that change.
    virtual void OnInitMenuPopup(CMenu& menu);
    const CommandMap& GetCommandMap() const override;

    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    template <class Action>
    void AddKeys(const char* keys, Action action);
    void AddChildKeys();
    void OnChildActivated();
    void SetActiveChild(CMDIChildWnd* child);
    std::unique_ptr<CMenu> MakeMenu(unsigned menuId);

    void OnUpdateWithChild(CCmdUI& state);
    void OnWindowNew();
    void OnWindowArrange(CommandId id);
    void OnWindowActivate(CommandId id);
    void OnUpdateWindowActivate(CCmdUI& state);
    void OnViewStatusBar();
    void OnUpdateViewStatusBar(CCmdUI& state);
    void OnViewControlBar(CommandId id);
    void OnUpdateViewControlBar(CCmdUI& state);

    MDIClientArea* clientArea; // children of this window
    CStatusBar* statusBarWindow;
    DockedBars bars{*this};
    CMDIChildWnd* activeChild = nullptr;
    unsigned ownMenuId = 0;
    FrameMenus menus{*this, [this](unsigned menuId) { return MakeMenu(menuId); }};
};

} // namespace keltavlo
