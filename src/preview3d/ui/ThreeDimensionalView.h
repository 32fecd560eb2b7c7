#pragma once

#include "preview3d/TextureBuffer.h"
#include "preview3d/ui/OpenGLCtrl.h"
#include "preview3d/ui/OpenGLView.h"

namespace keltavlo {

class ThreeDimensionalView;

// The control of a 3D view. It lets the view draw and owns what the view draws with.
class ThreeDimensionalCtrl final : public OpenGLCtrl {
public:
    struct Offset {
        double x = 0, y = 0, z = 0;
    };

    // Uses a copy of an open image document's picture as its texture.
    explicit ThreeDimensionalCtrl(ThreeDimensionalView& owner);

    // Returns by how much the model is moved, in its own units.
    const Offset& GetOffset() const { return offset; }
    const TextureBuffer& GetTexture() const { return texture; }
    bool IsTextured() const { return renderMode == textured; }
    // Moves the model by typed characters: d away, e nearer, f and s left and right; by 16 units, or by one
    // for small steps. Other characters do nothing.
    void MoveBy(const QString& characters, bool smallSteps);

protected:
    void InitGL() override;
    void SetProjection(double aspect) override;
    void SetCamera() override;
    void DrawScene() override;
    void ReleaseResources() override;
    const CommandMap& GetCommandMap() const override;

private:
    static constexpr int solid = 2;
    static constexpr int textured = 3;

    template <int mode>
    void OnRenderMode() {
        renderMode = mode;
        update();
    }
    template <int mode>
    void OnUpdateRenderMode(CCmdUI& state) const {
        state.SetRadio(renderMode == mode);
    }

    ThreeDimensionalView* view;
    int renderMode = textured;
    Offset offset;
    TextureBuffer texture;
};

// Shows a model in 3D: sets up the scene, moves the model with the keyboard and draws it with a copy of an
// open image, taken when the view is created.
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
