#include "preview3d/ui/OpenGLCtrl.h"

#include "framework/ui/PaintSentence.h"
#include "preview3d/ui/OffScreenSurface.h"
#include "preview3d/ui/PixelFormat.h"
#include "preview3d/ui/RenderingContext.h"
#include "res/ShellStrings.h"

#include <QPaintEvent>
#include <QPainter>

#include <GL/glu.h>
#include <cmath>
#include <new>
#include <utility>

namespace keltavlo {

namespace {

struct Corner {
    int x, y, z;
};

// The faces of the cube, each counter-clockwise as seen from outside.
constexpr Corner cube[][4] = {
    {{-1, -1, -1}, {-1, 1, -1}, {1, 1, -1}, {1, -1, -1}}, {{-1, -1, 1}, {1, -1, 1}, {1, 1, 1}, {-1, 1, 1}},
    {{-1, -1, -1}, {1, -1, -1}, {1, -1, 1}, {-1, -1, 1}}, {{-1, 1, -1}, {-1, 1, 1}, {1, 1, 1}, {1, 1, -1}},
    {{-1, -1, -1}, {-1, -1, 1}, {-1, 1, 1}, {-1, 1, -1}}, {{1, -1, -1}, {1, 1, -1}, {1, 1, 1}, {1, -1, 1}},
};

} // namespace

// Keeps the context current while it lives.
class OpenGLCtrl::CurrentScope {
public:
    explicit CurrentScope(OpenGLCtrl& owner) : control(owner) { control.MakeCurrent(); }
    ~CurrentScope() { control.ReleaseCurrent(); }
    CurrentScope(const CurrentScope&) = delete;
    CurrentScope& operator=(const CurrentScope&) = delete;

private:
    OpenGLCtrl& control;
};

OpenGLCtrl::OpenGLCtrl() {
    setAttribute(Qt::WA_OpaquePaintEvent); // every paint covers the whole area
}

OpenGLCtrl::~OpenGLCtrl() = default;

void OpenGLCtrl::Create(const QRect& area, QWidget& parent) {
    setParent(&parent);
    setGeometry(area);
    CreateContext();
    if (const QSize size = DeviceSize(); !size.isEmpty()) Fit(size);
    show();
}

void OpenGLCtrl::CreateContext() {
    PixelFormat format;
    AdjustPixelFormat(format);
    renderingContext = RenderingContext::Create(format);
    if (!renderingContext) return;
    ReplaceSurface(DeviceSize());
    const CurrentScope current(*this);
}

void OpenGLCtrl::AdjustPixelFormat(PixelFormat&) {}

void OpenGLCtrl::DestroyContext() {
    if (prepared) {
        if (!surface) ReplaceSurface({});
        const CurrentScope current(*this);
        if (deviceContext) ReleaseResources();
    }
    prepared = false;
    surface.reset();
    renderingContext.reset();
}

void OpenGLCtrl::ResizeView(int cx, int cy) {
    SetViewport(cx, cy);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    SetProjection(static_cast<double>(cx) / cy);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    SetCamera();
}

void OpenGLCtrl::Render() {
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glPushMatrix();
    DrawScene();
    glPopMatrix();
    glFinish();
    if (deviceContext) deviceContext->CopyTo(picture);
}

void OpenGLCtrl::InitGL() {
    glClearColor(0, 0, 0, 0);
    glClearDepth(1);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_CULL_FACE);
}

void OpenGLCtrl::SetViewport(int cx, int cy) {
    glViewport(0, 0, cx, cy);
}

void OpenGLCtrl::SetProjection(double aspect) {
    gluPerspective(45, aspect, 1, 10);
}

void OpenGLCtrl::SetCamera() {
    gluLookAt(4, 4, 4, 0, 0, 0, 0, 0, 1);
}

void OpenGLCtrl::DrawScene() {
    const auto share = [](int coordinate) { return static_cast<float>(coordinate + 1) / 2; };
    glBegin(GL_QUADS);
    for (const auto& face : cube)
        for (const auto& [x, y, z] : face) {
            glColor3f(share(x), share(y), share(z));
            glVertex3i(x, y, z);
        }
    glEnd();
}

void OpenGLCtrl::ReleaseResources() {}

void OpenGLCtrl::MakeCurrent() {
    if (++currentDepth > 1) return;
    BindSurface();
}

void OpenGLCtrl::BindSurface() {
    if (!surface || !renderingContext->MakeCurrent(*surface)) return;
    deviceContext = surface.get();
    if (!std::exchange(prepared, true)) InitGL();
}

void OpenGLCtrl::ReleaseCurrent() {
    if (--currentDepth > 0) return;
    RenderingContext::MakeNoneCurrent();
    deviceContext = nullptr;
}

void OpenGLCtrl::paintEvent(QPaintEvent* event) {
    paintRect = event->rect();
    if (!paintRect.isEmpty()) Paint();
    paintRect = QRect();
}

// Fits the surface here as well, because a move to another screen changes the number of pixels
// without a resize.
void OpenGLCtrl::Paint() {
    try {
        if (!surface || surface->GetSize() != DeviceSize()) Fit(DeviceSize());
        RenderIfPossible() ? PaintPicture() : PaintSentence(*this, IDS_NO_OPENGL);
    } catch (const std::bad_alloc&) {
        PaintSentence(*this, IDS_NO_MEMORY_TO_PAINT);
    }
}

bool OpenGLCtrl::RenderIfPossible() {
    const CurrentScope current(*this);
    if (!deviceContext) return false;
    Render();
    return true;
}

void OpenGLCtrl::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (const QSize size = DeviceSize(); !size.isEmpty()) Fit(size);
}

QSize OpenGLCtrl::DeviceSize() const {
    const double ratio = devicePixelRatioF();
    return {static_cast<int>(std::ceil(width() * ratio)), static_cast<int>(std::ceil(height() * ratio))};
}

// Replaces the surface, because surfaces cannot change their size.
void OpenGLCtrl::ReplaceSurface(const QSize& size) {
    const auto old = std::exchange(surface, renderingContext->CreateSurface(size.expandedTo({1, 1})));
    deviceContext = nullptr;
    if (currentDepth > 0) BindSurface();
}

void OpenGLCtrl::Fit(const QSize& size) {
    if (!renderingContext) return;
    if (!surface || surface->GetSize() != size) ReplaceSurface(size);
    const CurrentScope current(*this);
    ResizeView(size.width(), size.height());
}

void OpenGLCtrl::PaintPicture() {
    QPainter painter(this);
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    painter.drawImage(0, 0, picture);
}

} // namespace keltavlo
