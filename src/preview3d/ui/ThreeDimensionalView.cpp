#include "preview3d/ui/ThreeDimensionalView.h"

#include "res/CommandIds.h"

#include <QKeyEvent>
#include <QScrollBar>

#include <GL/glu.h>

namespace keltavlo {

ThreeDimensionalCtrl::ThreeDimensionalCtrl(ThreeDimensionalView& owner)
    : view(&owner), texture(TakeLastPicture()) {}

void ThreeDimensionalCtrl::MoveBy(const QString& characters, bool smallSteps) {
    const double step = smallSteps ? 1 : 16;
    if (characters == u"d")
        offset.y += step;
    else if (characters == u"e")
        offset.y -= step;
    else if (characters == u"f")
        offset.x -= step;
    else if (characters == u"s")
        offset.x += step;
    else
        return;
    repaint();
}

void ThreeDimensionalCtrl::InitGL() {
    view->InitGL();
}

void ThreeDimensionalCtrl::SetProjection(double aspect) {
    view->SetProjection(aspect);
}

void ThreeDimensionalCtrl::SetCamera() {
    view->SetCamera();
}

void ThreeDimensionalCtrl::DrawScene() {
    view->DrawScene();
}

void ThreeDimensionalCtrl::ReleaseResources() {
    view->ReleaseResources();
}

const CommandMap& ThreeDimensionalCtrl::GetCommandMap() const {
    using Self = ThreeDimensionalCtrl;
    static const CommandMap map{
        OpenGLCtrl::GetCommandMap(),
        {Command<&Self::OnRenderMode<solid>, &Self::OnUpdateRenderMode<solid>>(ID_3D_SOLID),
         Command<&Self::OnRenderMode<textured>, &Self::OnUpdateRenderMode<textured>>(ID_3D_TEXTURED)}};
    return map;
}

// Hides the scroll bars, because there is nothing to scroll.
void ThreeDimensionalView::OnCreate() {
    OpenGLView::OnCreate();
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical})
        GetScrollBar(orientation).setRange(0, 0);
}

void ThreeDimensionalView::InitGL() {
    glClearColor(0, 0, 0, 0);
    glClearDepth(1);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_CULL_FACE);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_REPEAT);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
}

void ThreeDimensionalView::SetProjection(double aspect) {
    gluPerspective(45, aspect, 1, 1024);
}

void ThreeDimensionalView::SetCamera() {
    gluLookAt(0, -4, 0, 0, 0, 0, 0, 0, 1);
}

// Keys with Ctrl, Alt or Meta are commands, not characters.
void ThreeDimensionalView::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers keys = event->modifiers();
    if (!(keys & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)))
        control.MoveBy(event->text(), keys.testFlag(Qt::ShiftModifier));
    OpenGLView::keyPressEvent(event);
}

} // namespace keltavlo
