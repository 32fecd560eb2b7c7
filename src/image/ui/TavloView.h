#pragma once

#include "image/ConvertedPicture.h"
#include "image/ui/InfiniteScrollView.h"

#include <QImage>

namespace keltavlo {

class TavloDocument;
class TexelChange;
class TavloViewFrame;
struct TexelPoint;
struct TileViewport;

// Shows an image document's picture as an endless tiling, so that its seams are visible, and passes mouse
// strokes to the document's brush.
class TavloView final : public Dynamic<"TavloView", TavloView, InfiniteScrollView> {
public:
    TavloView();

    // Returns the texel at a point in screen pixels, measured from the view's top left corner; not wrapped.
    TexelPoint TexelAt(const QPointF& devicePoint) const;

    void OnCreate() override;
    void OnDestroy() override { shown = nullptr; }
    // Repaints a changed texel at once in the view that strokes, and with the next events in the others. The
    // end of its own stroke changes nothing.
    void OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) override;
    void OnActivateView(bool activate, CView* activated, CView* deactivated) override;

protected:
    const CommandMap& GetCommandMap() const override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    TavloViewFrame* GetViewFrame() const;
    int GetZoom() const;
    TileViewport GetViewport() const;
    PictureConversion GetConversion() const;

    void PaintRegion(const QRegion& region);
    void PaintArea(const Image& picture, const std::uint32_t* table, const QRect& area);
    QRegion FindTexels(const TexelRun& run) const;
    void RepaintTexel(const TexelChange& texel);

    TexelPoint TexelUnder(const QMouseEvent& event) const;
    void ShowTexel(const TexelPoint& texel) const;
    void ShowBrushCursor();
    void ApplyBrush(const TexelPoint& texel);
    void EndStroke();
    void ZoomByWheel(int delta);
    void ScrollByWheel(const QPoint& delta, bool sideways);

    void OnFilterNearest() { ToggleFilter(nearestFilter); }
    void OnFilterDither() { ToggleFilter(ditherFilter); }
    void OnFilterHalf() { ToggleFilter(halfFilter); }
    void ToggleFilter(bool& filter);
    void OnUpdateFilterNearest(CCmdUI& state) const { UpdatePaletteFilter(state, nearestFilter); }
    void OnUpdateFilterDither(CCmdUI& state) const { UpdatePaletteFilter(state, ditherFilter); }
    void OnUpdateFilterHalf(CCmdUI& state) const { state.SetCheck(halfFilter); }
    void UpdatePaletteFilter(CCmdUI& state, bool filter) const;

    TavloDocument* shown = nullptr; // null only before the view is attached and while it is detached
    bool nearestFilter = false;
    bool ditherFilter = false;
    bool halfFilter = false;
    ConvertedPicture converted;
    QImage surface;           // the last painted screen pixels; kept to reuse the memory
    bool captured = false;    // during a stroke: the view has the mouse until the button is released
    bool endsStroke = false;  // during the update that ends a stroke, whose texels the view shows already
    unsigned shownCursor = 0; // the brush's number of the current cursor
    int wheelRemainder = 0;   // wheel movement too small for a zoom step so far
    QPoint scrollRemainder{}; // and too small for scrolling by a texel, in 1/120 of a screen pixel
};

} // namespace keltavlo
