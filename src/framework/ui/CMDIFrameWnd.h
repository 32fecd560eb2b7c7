#pragma once

#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/DockedBars.h"
#include "framework/ui/FrameMenus.h"
#include "framework/ui/IdleCall.h"

#include <QMainWindow>

#include <vector>

namespace keltavlo {

class CStatusBar;
class MDIClientArea;

// The program's main window: document windows in its client area, menus and accelerators that carry out
// commands by id, and a status bar. Commands go to the active child (its view, its document, itself), then to
// this frame, then to the application.
class CMDIFrameWnd : public QMainWindow,
                     public Dynamic<"CMDIFrameWnd", CMDIFrameWnd, CCmdTarget>,
                     public MDIFrame {
public:
    // The status bar has a pane for messages and one more for each sample, as wide as that string.
    explicit CMDIFrameWnd(std::span<const unsigned> paneSampleIds);
    ~CMDIFrameWnd() override;

    CMDIChildWnd* MDIGetActive() const override { return activeChild; }
    // Returns the children in the order of creation.
    std::vector<CMDIChildWnd*> GetChildren() const;
    void AddChild(CMDIChildWnd& child) override;
    void RemoveChild(CMDIChildWnd& child) override;
    void MDIActivate(CMDIChildWnd& child) override;
    // Activates the child after the active one, or the one before it; the last one is followed by the first.
    void MDINext(bool previous);
    void OnUpdateFrameTitle() override;
    void ChangeActiveView(CView* activated, CView* deactivated) override;

    // Returns the menu in the menu bar.
    CMenu& GetCurrentMenu() { return *menus.GetCurrent(); }
    CStatusBar& GetStatusBar() { return *statusBarWindow; }
    DockedBars& GetBars() { return bars; }
    // Updates the command states that the user sees. Runs automatically when the program becomes idle.
    void OnIdle() noexcept;
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;

protected:
    // Makes the menus and the accelerators. The menu bar shows `menuId` while no child is active.
    void LoadFrame(unsigned menuId, std::span<const AcceleratorRow> accelerators);
    // Returns the menu table with that id.
    virtual std::span<const MenuRow> GetMenuRows(unsigned menuId) const = 0;
    // Called before a popup opens. Override it to update items that change.
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
    void CheckActiveFile();
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
    IdleCall fileCheck{[this] { CheckActiveFile(); }};
    unsigned ownMenuId = 0;
    FrameMenus menus{*this, [this](unsigned menuId) { return MakeMenu(menuId); }};
};

} // namespace keltavlo
