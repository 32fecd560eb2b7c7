#include "image/ui/TavloView.h"

#include "image/TavloDocument.h"
#include "image/picture/TilePainter.h"
#include "image/ui/TavloViewFrame.h"
#include "resources/Shell.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr int wheelStep = 120;           // one notch
constexpr int scrollPixelsPerNotch = 48; // screen pixels

// The whole screen pixels that a rectangle of the widget touches.
QRect ToDevice(const QRect& area, double ratio, const QSize& limit) {
    const QRectF scaled(area.x() * ratio, area.y() * ratio, area.width() * ratio, area.height() * ratio);
    return scaled.toAlignedRect().intersected(QRect(QPoint(0, 0), limit));
}

QSize DeviceSize(const QWidget& widget) {
    return {static_cast<int>(std::ceil(widget.width() * widget.devicePixelRatioF())),
            static_cast<int>(std::ceil(widget.height() * widget.devicePixelRatioF()))};
}

} // namespace

TavloView::TavloView() {
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent); // every paint covers the whole area
}

QPointF TavloView::TexelAt(const QPointF& devicePoint) const {
    const double zoom = GetZoom();
    return {devicePoint.x() / zoom + GetScrollX(), devicePoint.y() / zoom + GetScrollY()};
}

void TavloView::OnUpdate(DocumentView*, std::intptr_t, CObject*) {
    const TavloDocument* shown = GetTavloDocument();
    if (!shown) return;
    update();
    SetRangeX(shown->GetTexture().GetWidth());
    SetRangeY(shown->GetTexture().GetHeight());
}

void TavloView::OnActivateView(bool activate, CView* activated, CView* deactivated) {
    const auto documentOf = [](CView* view) {
        return view ? dynamic_cast<BaseDocument*>(view->GetDocument()) : nullptr;
    };
    BaseDocument* told = documentOf(activate ? activated : deactivated);
    if (told) told->OnActivateDocument(activate, documentOf(activated), documentOf(deactivated));
    InfiniteScrollView::OnActivateView(activate, activated, deactivated);
}

void TavloView::paintEvent(QPaintEvent* event) {
    const TavloDocument* shown = GetTavloDocument();
    if (!shown) return;
    const double ratio = devicePixelRatioF();
    const QRect area = ToDevice(event->region().boundingRect(), ratio, DeviceSize(*this));
    if (area.isEmpty()) return;
    if (surface.size() != DeviceSize(*this)) surface = QImage(DeviceSize(*this), QImage::Format_RGB32);
    const auto stride = static_cast<std::size_t>(surface.bytesPerLine()) / sizeof(Color);
    auto* pixels =
        reinterpret_cast<Color*>(surface.bits()) + static_cast<std::size_t>(area.y()) * stride + area.x();
    PaintTiles(shown->GetTexture(), Shell::Get().GetGammaTable(), {GetZoom(), GetScrollX(), GetScrollY()},
               {area.x(), area.y(), area.width(), area.height(), pixels, stride});
    QPainter painter(this);
    painter.scale(1 / ratio, 1 / ratio);
    painter.drawImage(area.topLeft(), surface, area);
}

void TavloView::mouseMoveEvent(QMouseEvent* event) {
    ShowTexel(TexelAt(event->position() * devicePixelRatioF()));
    InfiniteScrollView::mouseMoveEvent(event);
}

void TavloView::mousePressEvent(QMouseEvent* event) {
    ShowTexel(TexelAt(event->position() * devicePixelRatioF()));
    InfiniteScrollView::mousePressEvent(event);
}

// With Ctrl alone the wheel zooms; without keys it scrolls up and down, with Shift sideways.
void TavloView::wheelEvent(QWheelEvent* event) {
    const Qt::KeyboardModifiers keys = event->modifiers();
    if (event->buttons() == Qt::NoButton && keys == Qt::ControlModifier)
        ZoomByWheel(event->angleDelta().y());
    else if (keys == Qt::NoModifier || keys == Qt::ShiftModifier)
        ScrollByWheel(event->angleDelta(), keys == Qt::ShiftModifier);
    else
        return InfiniteScrollView::wheelEvent(event);
    event->accept();
}

TavloDocument* TavloView::GetTavloDocument() const {
    return dynamic_cast<TavloDocument*>(GetDocument());
}

TavloViewFrame* TavloView::GetViewFrame() const {
    return dynamic_cast<TavloViewFrame*>(GetParentFrame());
}

int TavloView::GetZoom() const {
    const TavloViewFrame* frame = GetViewFrame();
    return frame ? frame->GetZoom() : 1;
}

// Position and colour in the status bar; the texel is the one that a brush would change.
void TavloView::ShowTexel(const QPointF& texel) const {
    const TavloDocument* shown = GetTavloDocument();
    if (!shown) return;
    const Texture& texture = shown->GetTexture();
    Shell& shell = Shell::Get();
    shell.SetPositionText(std::fmod(texel.x(), texture.GetWidth()),
                          std::fmod(texel.y(), texture.GetHeight()));
    shell.SetColorText(texture.GetPixelWrapped(static_cast<unsigned>(static_cast<int>(texel.x())),
                                               static_cast<unsigned>(static_cast<int>(texel.y()))));
}

void TavloView::ZoomByWheel(int delta) {
    TavloViewFrame* frame = GetViewFrame();
    if (!frame) return;
    wheelRemainder += delta;
    int zoom = frame->GetZoom();
    for (; wheelRemainder >= wheelStep; wheelRemainder -= wheelStep)
        zoom = std::min(zoom * 2, TavloViewFrame::maximumZoom);
    for (; wheelRemainder <= -wheelStep; wheelRemainder += wheelStep) zoom = std::max(zoom / 2, 1);
    frame->SetZoom(zoom);
}

void TavloView::ScrollByWheel(const QPoint& delta, bool sideways) {
    // Some systems turn the delta themselves while Shift is held.
    const QPoint turned = sideways && delta.x() == 0 ? delta.transposed() : delta;
    scrollRemainder -= turned * scrollPixelsPerNotch;
    const int perTexel = wheelStep * GetZoom();
    const QPoint whole(scrollRemainder.x() / perTexel, scrollRemainder.y() / perTexel);
    scrollRemainder -= whole * perTexel;
    if (whole.x() != 0) SetScrollX(GetScrollX() + whole.x());
    if (whole.y() != 0) SetScrollY(GetScrollY() + whole.y());
}
