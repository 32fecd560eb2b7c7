#pragma once

#include "framework/core/CCmdTarget.h"
#include "framework/core/DocumentView.h"

#include <QWidget>

class QScrollBar;

namespace keltavlo {

class CDocument;
class CView;

// The window around a document's views, as a view sees it.
class ViewFrame : public DocumentFrame {
public:
    // Returns the view that receives commands, or null while the frame closes.
    virtual CView* GetActiveView() const = 0;
    virtual void SetActiveView(CView* view) = 0;
};

// Panes with scroll bars, as a view in one of them sees them.
class ViewPanes {
public:
    virtual ~ViewPanes() = default;
    // Returns the horizontal bar of the view's column or the vertical bar of its row.
    virtual QScrollBar& GetScrollBar(const CView& view, Qt::Orientation orientation) const = 0;
};

// A window that shows a document in a pane of a frame. Painting and input are Qt's events.
class CView : public QWidget, public Dynamic<"CView", CView, CCmdTarget>, public DocumentView {
public:
    CView();
    ~CView() override;

    // Returns null only before the view is attached and while it is detached.
    CDocument* GetDocument() const { return attachedDocument; }
    // Returns the frame around the view, or null if it has none.
    ViewFrame* GetParentFrame() const;
    DocumentFrame* GetFrame() const override;
    // Returns the bar beside the view's pane; the panes of a row or a column share it. Only for panes that
    // have bars.
    QScrollBar& GetScrollBar(Qt::Orientation orientation) const;

    // Called once, when the view is in its pane and has its document, which may still be empty.
    virtual void OnCreate() {}
    // Called once, before the view leaves its document, while the object still has its full class.
    virtual void OnDestroy() {}
    // Called once, when the document is filled and before the view is first shown. This version calls
    // OnUpdate without a sender.
    virtual void OnInitialUpdate();
    // This version repaints everything.
    void OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) override;
    // Called when the view becomes the active one (`activate`) or stops being it. Either view may be null;
    // `activated` is null for a view that closes.
    virtual void OnActivateView(bool activate, CView* activated, CView* deactivated);
    // Tries the view's own commands, then its document's.
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;

    // Connects the new view to its document and to the panes that contain it (null: no bars). For those who
    // create views.
    void Attach(CDocument& shown, const ViewPanes* holders);
    // Disconnects the view from its document, which closes with its last view. Call this before deleting the
    // view: its destructor can no longer call OnDestroy.
    void Detach();

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void LeaveDocument();

    CDocument* attachedDocument = nullptr;
    const ViewPanes* panes = nullptr;
};

} // namespace keltavlo
