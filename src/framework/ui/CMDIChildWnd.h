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
    // The active child that people see, or null.
    virtual CMDIChildWnd* MDIGetActive() const = 0;
    virtual void MDIActivate(CMDIChildWnd& child) = 0;
    virtual void AddChild(CMDIChildWnd& child) = 0;
    // For a child that ends: it is no longer active, nor listed.
    virtual void RemoveChild(CMDIChildWnd& child) = 0;
    // Names the active document in the title. A maximized child adds its own title in brackets.
    virtual void OnUpdateFrameTitle() = 0;
    // Tells the views that another one is active.
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
    // children; without one the frame is a window of its own.
    void Create(CDocument& document, const CRuntimeClass& viewClass, MDIFrame* owner);

    CView* GetActiveView() const override { return activeView; }
    void SetActiveView(CView* view) override;
    // The document of the frame's views; null while the frame ends.
    CDocument* GetActiveDocument() const;
    // The document's title, numbered when the document has several windows.
    const std::string& GetTitle() const { return title; }
    // A text as a window's title, with the toolkit's mark for unsaved changes behind it.
    static QString MarkedTitle(const std::string& text);

    void ActivateFrame() override;
    void InitialUpdate(bool visible) override;
    // At once for the views and for people; the window itself is deleted when its events are over.
    void DestroyFrame() override;
    // Updates the titles of all frames of the document.
    void OnTitleChanged() override;
    bool IsShown() const override { return shown; }

    // The active view and its document, then the frame's own commands.
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;
    QSize sizeHint() const override;

protected:
    // Makes the client area with its first view. Here: the view alone, without scroll bars.
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
