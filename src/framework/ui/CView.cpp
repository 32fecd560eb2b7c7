#include "framework/ui/CView.h"

#include "framework/core/CDocument.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CSplitterWnd.h"

#include <utility>

namespace keltavlo {

CView::CView() {
    setFocusPolicy(Qt::StrongFocus);
}

CView::~CView() {
    LeaveDocument();
}

CMDIChildWnd* CView::GetParentFrame() const {
    for (QWidget* widget = parentWidget(); widget; widget = widget->parentWidget())
        if (auto* frame = dynamic_cast<CMDIChildWnd*>(widget)) return frame;
    return nullptr;
}

DocumentFrame* CView::GetFrame() const {
    return GetParentFrame();
}

QScrollBar& CView::GetScrollBar(Qt::Orientation orientation) const {
    Q_ASSERT(paneSplitter);
    return paneSplitter->GetScrollBar(*this, orientation);
}

void CView::OnInitialUpdate() {
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(DocumentView*, std::intptr_t, CObject*) {
    update();
}

void CView::OnActivateView(bool, CView*, CView*) {}

bool CView::OnCmdMsg(CommandId id, CCmdUI* state) {
    return CCmdTarget::OnCmdMsg(id, state) || (attachedDocument && attachedDocument->OnCmdMsg(id, state));
}

void CView::Attach(CDocument& shown, CSplitterWnd* pane) {
    attachedDocument = &shown;
    paneSplitter = pane;
    attachedDocument->AddView(*this);
    OnCreate();
}

void CView::Detach() {
    if (attachedDocument) OnDestroy();
    LeaveDocument();
}

void CView::LeaveDocument() {
    if (CDocument* left = std::exchange(attachedDocument, nullptr)) left->RemoveView(*this);
}

void CView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (CMDIChildWnd* frame = GetParentFrame(); frame && attachedDocument) frame->SetActiveView(this);
}

} // namespace keltavlo
