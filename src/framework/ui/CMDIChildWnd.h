#pragma once

#include "framework/ui/CView.h"

#include <QMdiSubWindow>

#include <string>

namespace keltavlo {

class CMDIChildWnd;

// The main window, as the document windows inside it see it.
class MDIFrame {
public:
    virtual ~MDIFrame() = default;
    // Returns the active child that the user sees, or null.
    virtual CMDIChildWnd* MDIGetActive() const = 0;
    virtual void MDIActivate(CMDIChildWnd& child) = 0;
    virtual void AddChild(CMDIChildWnd& child) = 0;
    // Called by a child that closes: it is no longer active or listed.
    virtual void RemoveChild(CMDIChildWnd& child) = 0;
    // Shows the active document's name in the title. A maximized child adds its own title in brackets.
    virtual void OnUpdateFrameTitle() = 0;
    // Notifies both views that another one is active.
    virtual void ChangeActiveView(CView* activated, CView* deactivated) = 0;
};

// A document's window inside the main frame.
class CMDIChildWnd : public QMdiSubWindow,
                     public Dynamic<"CMDIChildWnd", CMDIChildWnd, CCmdTarget>,
                     public ViewFrame {
public:
    CMDIChildWnd();
    ~CMDIChildWnd() override;

    // Fills the new frame with a view of the class on the document. `owner` shows the frame among its
    // children; if it is null, the frame is a top-level window.
    void Create(CDocument& document, const CRuntimeClass& viewClass, MDIFrame* owner);

    CView* GetActiveView() const override { return activeView; }
    void SetActiveView(CView* view) override;
    // Returns the document of the frame's views, or null while the frame closes.
    CDocument* GetActiveDocument() const;
    // Returns the document's title, with a number if the document has several windows.
    const std::string& GetTitle() const { return title; }
    // Turns a text into a window title that ends with Qt's placeholder for the modified mark.
    static QString MarkedTitle(const std::string& text);

    void ActivateFrame() override;
    void InitialUpdate(bool visible) override;
    // Detaches the views and hides the window at once. The window itself is deleted after its current events.
    void DestroyFrame() override;
    // Updates the titles of all frames of the document.
    void OnTitleChanged() override;
    bool IsShown() const override { return shown; }

    // Tries the active view and its document, then the frame's own commands.
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;
    QSize sizeHint() const override;

protected:
    // Makes the client area with its first view. This version contains only the view, without scroll bars.
    virtual CView& CreateClient(CDocument& document, const CRuntimeClass& viewClass);
    const CommandMap& GetCommandMap() const override;
    void closeEvent(QCloseEvent* event) override;

private:
    void OnFileClose();
    void DetachViews();
    void SetTitle(const std::string& text, bool modified);
    static void UpdateTitles(const CDocument& document);

    CView* activeView = nullptr;
    MDIFrame* mdiFrame = nullptr;
    std::string title;
    bool shown = false;
    bool ending = false;
};

} // namespace keltavlo
