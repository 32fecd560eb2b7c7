#include "preview3d/ui/ThreeDimensionalCtrl.h"

#include "preview3d/ui/ThreeDimensionalView.h"
#include "res/CommandIds.h"

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

} // namespace keltavlo
