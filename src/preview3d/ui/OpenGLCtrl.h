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

// A window that draws a scene with an OpenGL context of its own, through a fixed chain of steps that a class
// derived from it replaces one by one. The scene is drawn off the screen and its picture painted like any
// other. Where the system offers no OpenGL the window says so.
class OpenGLCtrl : public QWidget, public CCmdTarget {
public:
    OpenGLCtrl();
    // Ends the context, too, but ReleaseResources no longer reaches a derived class: Destroy does.
    ~OpenGLCtrl() override;

    // Between the two the OpenGL calls go to this control; they nest. Where there is no context or no surface
    // the calls have no effect.
    void MakeCurrent();
    void ReleaseCurrent();

protected:
    // Makes the context and its surface; none is current afterwards.
    virtual void CreateContext();
    // May change what is asked of the surface before it is chosen. Here: nothing.
    virtual void AdjustPixelFormat(PixelFormat& format);
    // Ends the context, if there is one.
    virtual void DestroyContext();
    // Sets up viewport, projection and camera for a picture of cx x cy screen pixels.
    virtual void ResizeView(int cx, int cy);
    // Clears, draws and finishes the scene and takes its picture.
    virtual void Render();
    // Called once for each context, with the context current, as soon as there is a surface for it.
    virtual void InitGL();
    virtual void SetViewport(int cx, int cy);
    // `aspect` is width by height.
    virtual void SetProjection(double aspect);
    virtual void SetCamera();
    // Here: a cube.
    virtual void DrawScene();
    // Called with the context current, just before Destroy ends it, if InitGL was. Here: nothing.
    virtual void ReleaseResources();

public:
    // Puts the control into its parent, makes its context and shows it; without a context too.
    virtual void Create(const QRect& area, QWidget& parent);
    // The opposite: ends the context. Call it while the object and all that ReleaseResources needs is whole.
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

    OffScreenSurface* deviceContext = nullptr; // the surface, while the context is current on it
    std::unique_ptr<RenderingContext> renderingContext;
    bool prepared = false; // InitGL was called for this context
    QRect paintRect;       // what is being painted
    int currentDepth = 0;
    std::unique_ptr<OffScreenSurface> surface; // the back buffer
    QImage picture;                            // the front buffer
};

} // namespace keltavlo
