#include "image/ui/TavloView.h"

#include "framework/ui/PaintSentence.h"
#include "image/TavloDocument.h"
#include "image/picture/ChannelTable.h"
#include "image/picture/TilePainter.h"
#include "image/ui/TavloViewFrame.h"
#include "res/CommandIds.h"
#include "res/ShellStrings.h"
#include "resources/Shell.h"

#include <QPaintEvent>
#include <QPainter>

#include <array>
#include <cmath>
#include <new>

namespace keltavlo {

namespace {

// Returns the whole screen pixels that a rectangle of the widget touches.
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

void TavloView::OnCreate() {
    InfiniteScrollView::OnCreate();
    shown = dynamic_cast<TavloDocument*>(GetDocument());
}

void TavloView::OnUpdate(DocumentView*, std::intptr_t, CObject* hintObject) {
    if (!shown || endsStroke) return;
    if (const auto* texel = dynamic_cast<const TexelChange*>(hintObject)) return RepaintTexel(*texel);
    converted.Invalidate();
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
    try {
        PaintRegion(event->region());
    } catch (const std::bad_alloc&) {
        PaintSentence(*this, IDS_NO_MEMORY_TO_PAINT);
    }
}

// The conversion comes first, gamma last.
void TavloView::PaintRegion(const QRegion& region) {
    if (!shown) return;
    const QSize size = DeviceSize(*this);
    if (surface.size() != size) surface = QImage(size, QImage::Format_RGB32);
    if (surface.isNull() && !size.isEmpty()) throw std::bad_alloc();
    const Image& picture = converted.Get(shown->GetTexture(), GetConversion(), shown->GetPaletteColors());
    const std::uint32_t* gamma = Shell::Get().GetGammaTable();
    const std::array<std::uint32_t, 256> halved = HalveBrightness(gamma);
    const QRegion areas = region.rectCount() > int{mostTexelRects} ? QRegion(region.boundingRect()) : region;
    for (const QRect& area : areas)
        PaintArea(picture, halfFilter ? halved.data() : gamma,
                  ToDevice(area, devicePixelRatioF(), surface.size()));
}

// `area` is in screen pixels.
void TavloView::PaintArea(const Image& picture, const std::uint32_t* table, const QRect& area) {
    if (area.isEmpty()) return;
    const auto stride = static_cast<std::size_t>(surface.bytesPerLine()) / sizeof(Color);
    auto* pixels =
        reinterpret_cast<Color*>(surface.bits()) + static_cast<std::size_t>(area.y()) * stride + area.x();
    PaintTiles(picture, table, GetViewport(),
               {area.x(), area.y(), area.width(), area.height(), pixels, stride});
    QPainter painter(this);
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    painter.drawImage(area.topLeft(), surface, area);
}

// If memory runs out, the next paint shows the texel.
void TavloView::RepaintTexel(const TexelChange& texel) try {
    const QRegion region = FindTexels(converted.UpdateTexel(shown->GetTexture(), texel.x, texel.y));
    if (captured)
        repaint(region);
    else
        update(region);
} catch (const std::bad_alloc&) {
    update();
    throw;
}

// Returns the area in whole widget units that covers the texels' screen pixels.
QRegion TavloView::FindTexels(const TexelRun& run) const {
    const Texture& texture = shown->GetTexture();
    const QSize size = DeviceSize(*this);
    const double ratio = devicePixelRatioF();
    QRegion region;
    for (const ScreenRect& rect : FindTexelRects(run, {texture.GetWidth(), texture.GetHeight()},
                                                 GetViewport(), {size.width(), size.height()}))
        region += QRectF(rect.left / ratio, rect.top / ratio, rect.width / ratio, rect.height / ratio)
                      .toAlignedRect();
    return region;
}

const CommandMap& TavloView::GetCommandMap() const {
    using Self = TavloView;
    static const CommandMap map{
        InfiniteScrollView::GetCommandMap(),
        {Command<&Self::OnFilterNearest, &Self::OnUpdateFilterNearest>(ID_FILTER_NEAREST),
         Command<&Self::OnFilterDither, &Self::OnUpdateFilterDither>(ID_FILTER_DITHER),
         Command<&Self::OnFilterHalf, &Self::OnUpdateFilterHalf>(ID_FILTER_HALF)}};
    return map;
}

void TavloView::ToggleFilter(bool& filter) {
    filter = !filter;
    update();
}

void TavloView::UpdatePaletteFilter(CCmdUI& state, bool filter) const {
    state.Enable(shown && shown->HasPalette());
    state.SetCheck(filter);
}

TavloViewFrame* TavloView::GetViewFrame() const {
    return dynamic_cast<TavloViewFrame*>(GetParentFrame());
}

int TavloView::GetZoom() const {
    const TavloViewFrame* frame = GetViewFrame();
    return frame ? frame->GetZoom() : 1;
}

TileViewport TavloView::GetViewport() const {
    return {GetZoom(), GetScrollX(), GetScrollY()};
}

PictureConversion TavloView::GetConversion() const {
    if (ditherFilter) return PictureConversion::errorDiffusion;
    return nearestFilter ? PictureConversion::nearest : PictureConversion::none;
}

} // namespace keltavlo
