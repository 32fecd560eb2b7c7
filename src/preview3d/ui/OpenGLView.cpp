#include "preview3d/ui/OpenGLView.h"

#include "preview3d/ui/OpenGLCtrl.h"

namespace keltavlo {

void OpenGLView::OnCreate() {
    CView::OnCreate();
    control->Create(rect(), *this);
}

void OpenGLView::OnDestroy() {
    control->Destroy();
    CView::OnDestroy();
}

void OpenGLView::OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) {
    CView::OnUpdate(sender, hint, hintObject);
    control->update();
}

bool OpenGLView::OnCmdMsg(CommandId id, CCmdUI* state) {
    return control->OnCmdMsg(id, state) || CView::OnCmdMsg(id, state);
}

// The control keeps its size while the view has none.
void OpenGLView::resizeEvent(QResizeEvent* event) {
    CView::resizeEvent(event);
    if (width() <= 0 || height() <= 0 || control->parentWidget() != this) return;
    control->setGeometry(rect());
    control->update();
}

} // namespace keltavlo
