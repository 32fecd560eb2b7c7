#pragma once

#include "framework/ui/CView.h"

namespace keltavlo {

class OpenGLCtrl;

// A view covered by one OpenGL control, which receives commands first.
class OpenGLView : public Dynamic<"OpenGLView", OpenGLView, CView> {
public:
    void OnCreate() override;
    void OnDestroy() override;
    void OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) override;
    bool OnCmdMsg(CommandId id, CCmdUI* state) override;

protected:
    // Called by the constructor of the derived class, which owns the control.
    void Host(OpenGLCtrl& hosted) { control = &hosted; }

    void resizeEvent(QResizeEvent* event) override;

private:
    OpenGLCtrl* control = nullptr;
};

} // namespace keltavlo
