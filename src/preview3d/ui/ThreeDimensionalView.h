#pragma once

#include "preview3d/ui/OpenGLView.h"
#include "preview3d/ui/ThreeDimensionalCtrl.h"

namespace keltavlo {

// Shows a model in space: sets the scene up, moves it by the keyboard and keeps a texture to draw it with,
// taken from an open image when the view is made.
class ThreeDimensionalView : public Dynamic<"ThreeDimensionalView", ThreeDimensionalView, OpenGLView> {
public:
    ThreeDimensionalView() : control(*this) { Host(control); }

    // The steps of the control that stand for its own; see OpenGLCtrl.
    virtual void InitGL();
    virtual void SetProjection(double aspect);
    virtual void SetCamera();
    virtual void DrawScene() {}
    virtual void ReleaseResources() {}

    void OnCreate() override;

protected:
    const TextureBuffer& GetTexture() const { return control.GetTexture(); }
    const ThreeDimensionalCtrl::Offset& GetOffset() const { return control.GetOffset(); }
    bool IsTextured() const { return control.IsTextured(); }

    void keyPressEvent(QKeyEvent* event) override;

private:
    ThreeDimensionalCtrl control;
};

} // namespace keltavlo
