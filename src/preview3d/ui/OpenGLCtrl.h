#pragma once

#include "framework/core/CCmdTarget.h"

#include <QImage>
#include <QRect>
#include <QWidget>

#include <memory>

class OffScreenSurface;
class RenderingContext;
struct PixelFormat;

// A window that draws a scene with an OpenGL context of its own, through a fixed chain of steps that a class
// derived from it replaces one by one. The scene is drawn off the screen and its picture painted like any
// other. Where the system offers no OpenGL the window says so.
class OpenGLCtrl : public QWidget, public CCmdTarget {
public:
    OpenGLCtrl();
    ~OpenGLCtrl() override;

    // Between the two the OpenGL calls go to this control; they nest. Where there is no context or no surface
    // the calls have no effect.
    void MakeCurrent();
    void ReleaseCurrent();

protected:
    // Makes the context and lets InitGL prepare it; none is current afterwards.
    virtual void CreateContext();
    // May change what is asked of the surface before it is chosen. Here: nothing.
    virtual void AdjustPixelFormat(PixelFormat& format);
    // Ends the context, if there is one. A class with resources of OpenGL calls it in its destructor.
    virtual void DestroyContext();
    // Sets up viewport, projection and camera for a picture of cx x cy screen pixels.
    virtual void ResizeView(int cx, int cy);
    // Clears, draws and finishes the scene and takes its picture.
    virtual void Render();
    virtual void InitGL();
    virtual void SetViewport(int cx, int cy);
    // `aspect` is width by height.
    virtual void SetProjection(double aspect);
    virtual void SetCamera();
    // Here: a cube.
    virtual void DrawScene();
    // Called with the context current, just before it ends. Here: nothing.
    virtual void ReleaseResources();

public:
    // Puts the control into its parent, makes its context and shows it; without a context too.
    virtual void Create(const QRect& area, QWidget& parent);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QSize DeviceSize() const;
    void ReplaceSurface(const QSize& size);
    void Fit(const QSize& size);
    void PaintPicture();
    void PaintExcuse();

    OffScreenSurface* deviceContext = nullptr; // the surface, while the context is current on it
    std::unique_ptr<RenderingContext> renderingContext;
    QRect paintRect; // what is being painted
    int currentDepth = 0;
    std::unique_ptr<OffScreenSurface> surface; // the back buffer
    QImage picture;                            // the front buffer
};
