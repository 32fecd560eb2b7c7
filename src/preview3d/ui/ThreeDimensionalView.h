#pragma once

#include "preview3d/ui/OpenGLView.h"
#include "preview3d/ui/ThreeDimensionalCtrl.h"

namespace keltavlo {

// Shows a model in 3D: sets up the scene, moves it by the keyboard and draws it with a copy of an open image,
// taken when the view is created.
class ThreeDimensionalView : public Dynamic<"ThreeDimensionalView", ThreeDimensionalView, OpenGLView> {
public:
    ThreeDimensionalView() : control(*this) { Host(control); }

    // These replace the steps of the control; see OpenGLCtrl.
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
