#pragma once

#include "framework/core/CCmdTarget.h"
#include "framework/core/DocumentView.h"

#include <QWidget>

class QScrollBar;

namespace keltavlo {

class CDocument;
class CView;

// The window round a document's views, as a view sees it.
class ViewFrame : public DocumentFrame {
public:
    // The view that commands go to; null while the frame ends.
    virtual CView* GetActiveView() const = 0;
    virtual void SetActiveView(CView* view) = 0;
};

// Panes with scroll bars, as a view in one of them sees them.
class ViewPanes {
public:
    virtual ~ViewPanes() = default;
    // The bar of the column (horizontal) or row (vertical) that holds the view.
    virtual QScrollBar& GetScrollBar(const CView& view, Qt::Orientation orientation) const = 0;
};

// A window that shows a document, in a pane of a frame. Painting and input are the toolkit's events.
class CView : public QWidget, public Dynamic<"CView", CView, CCmdTarget>, public DocumentView {
public:
    CView();
    ~CView() override;

    // Null only before the view is attached and while it ends.
    CDocument* GetDocument() const { return attachedDocument; }
    // The frame round the view; null while it has none.
    ViewFrame* GetParentFrame() const;
    DocumentFrame* GetFrame() const override;
    // The bar beside the view's pane; panes of a row or a column share theirs. Only in panes that have bars.
    QScrollBar& GetScrollBar(Qt::Orientation orientation) const;

    // Called once, when the view is in its pane and has its document, which may still be empty.
    virtual void OnCreate() {}
    // Called once, before the view leaves its document and ends, while every class that it derives from is
    // there.
    virtual void OnDestroy() {}
    // Called once, when the document is filled, before the view is first seen. Here: OnUpdate with no sender.
    virtual void OnInitialUpdate();
    // Here: repaints everything.
    void OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) override;
    // The view became the active one (`activate`), or stopped to be. Either view may be null; a view that
    // ends gets a null `activated`.
    virtual void OnActivateView(bool activate, CView* activated, CView* deactivated);
    // The view's own commands, then its document's.
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;

    // Ties the new view to its document and the panes that hold it (null: no bars). For those who make views.
    void Attach(CDocument& shown, const ViewPanes* holders);
    // Unties the view from its document, which may end by it. Call it before the view is deleted: its
    // destructor can no longer reach OnDestroy.
    void Detach();

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void LeaveDocument();

    CDocument* attachedDocument = nullptr;
    const ViewPanes* panes = nullptr;
};

} // namespace keltavlo
