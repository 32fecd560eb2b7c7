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

// Shows an image document's picture tiled without end, so that its seams show, and hands strokes of the mouse
// to the document's brush.
class TavloView final : public Dynamic<"TavloView", TavloView, InfiniteScrollView> {
public:
    TavloView();

    // The texel under a point of the screen, from the top left corner of the view; not wrapped.
    TexelPoint TexelAt(const QPointF& devicePoint) const;

    void OnCreate() override;
    void OnDestroy() override { shown = nullptr; }
    // A changed texel is repainted at once in the view whose stroke it is, with the next events in others.
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

    TavloDocument* shown = nullptr; // null only before the view is attached and while it ends
    bool nearestFilter = false;
    bool ditherFilter = false;
    bool halfFilter = false;
    ConvertedPicture converted;
    QImage surface;           // what was painted last, in screen pixels; kept for its memory
    bool captured = false;    // a stroke is under way: the mouse is ours until the button is released
    unsigned shownCursor = 0; // number of the brush's cursor that the pointer shows
    int wheelRemainder = 0;   // wheel movement that was not enough for a zoom step yet
    QPoint scrollRemainder{}; // and for scrolling by a texel, in 1/120 of a screen pixel
};

} // namespace keltavlo
