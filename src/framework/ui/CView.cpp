#include "framework/ui/CView.h"

#include "framework/core/CDocument.h"

#include <utility>

namespace keltavlo {

CView::CView() {
    setFocusPolicy(Qt::StrongFocus);
}

CView::~CView() {
    LeaveDocument();
}

ViewFrame* CView::GetParentFrame() const {
    for (QWidget* widget = parentWidget(); widget; widget = widget->parentWidget())
        if (auto* frame = dynamic_cast<ViewFrame*>(widget)) return frame;
    return nullptr;
}

DocumentFrame* CView::GetFrame() const {
    return GetParentFrame();
}

QScrollBar& CView::GetScrollBar(Qt::Orientation orientation) const {
    Q_ASSERT(panes);
    return panes->GetScrollBar(*this, orientation);
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

void CView::Attach(CDocument& shown, const ViewPanes* holders) {
    attachedDocument = &shown;
    panes = holders;
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
    if (ViewFrame* frame = GetParentFrame(); frame && attachedDocument) frame->SetActiveView(this);
}

} // namespace keltavlo
