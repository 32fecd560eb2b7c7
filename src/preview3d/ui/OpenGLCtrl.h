#pragma once

#include "framework/core/CCmdTarget.h"

#include <QImage>
#include <QRect>
#include <QWidget>

#include <memory>

namespace keltavlo {

class OffScreenSurface;
class RenderingContext;
struct PixelFormat;

// A window that draws a scene with its own OpenGL context in a fixed sequence of steps, each of which a
// derived class can override. The scene is drawn off-screen, and its picture is painted like any other. If
// the system has no OpenGL, the window shows a sentence that says so.
class OpenGLCtrl : public QWidget, public CCmdTarget {
public:
    OpenGLCtrl();
    // Destroys the context, but cannot call a derived class's ReleaseResources; use Destroy for that.
    ~OpenGLCtrl() override;

    // Between these two calls, OpenGL calls apply to this control. The pairs nest. Without a context or a
    // surface, the OpenGL calls have no effect.
    void MakeCurrent();
    void ReleaseCurrent();

protected:
    // Makes the context and its surface. Afterwards no context is current.
    virtual void CreateContext();
    // May change the requested format before the surface's format is chosen. This version does nothing.
    virtual void AdjustPixelFormat(PixelFormat& format);
    // Destroys the context, if there is one.
    virtual void DestroyContext();
    // Sets up viewport, projection and camera for a picture of cx x cy screen pixels.
    virtual void ResizeView(int cx, int cy);
    // Clears, draws and finishes the scene, then copies its picture.
    virtual void Render();
    // Called once per context, while it is current, as soon as there is a surface for it.
    virtual void InitGL();
    virtual void SetViewport(int cx, int cy);
    // `aspect` is width divided by height.
    virtual void SetProjection(double aspect);
    virtual void SetCamera();
    // This version draws a cube.
    virtual void DrawScene();
    // Called before Destroy destroys the context, while it is current, if InitGL was called. This version
    // does nothing.
    virtual void ReleaseResources();

public:
    // Makes the control a child of `parent`, makes its context and shows the control, even without a context.
    virtual void Create(const QRect& area, QWidget& parent);
    // Destroys the context. Call it while the object is complete and everything that
    // ReleaseResources needs exists.
    void Destroy() { DestroyContext(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class CurrentScope;

    QSize DeviceSize() const;
    void ReplaceSurface(const QSize& size);
    void BindSurface();
    void Fit(const QSize& size);
    bool RenderIfPossible();
    void Paint();
    void PaintPicture();

    OffScreenSurface* deviceContext = nullptr; // the surface while the context is current on it
    std::unique_ptr<RenderingContext> renderingContext;
    bool prepared = false; // InitGL was called for this context
    QRect paintRect;       // the area being painted
    int currentDepth = 0;
    std::unique_ptr<OffScreenSurface> surface; // the back buffer
    QImage picture;                            // the front buffer
};

} // namespace keltavlo
