#pragma once

#include "image/ui/InfiniteScrollView.h"

#include <QImage>

class TavloDocument;
class TavloViewFrame;

// Shows an image document's picture tiled without end, so that its seams show.
class TavloView final : public Dynamic<"TavloView", TavloView, InfiniteScrollView> {
public:
    TavloView();

    // The texel under a point of the screen, from the top left corner of the view; not wrapped.
    QPointF TexelAt(const QPointF& devicePoint) const;

    void OnUpdate(DocumentView* sender, std::intptr_t hint, CObject* hintObject) override;
    void OnActivateView(bool activate, CView* activated, CView* deactivated) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // Null while the view ends.
    TavloDocument* GetTavloDocument() const;
    TavloViewFrame* GetViewFrame() const;
    int GetZoom() const;
    void ShowTexel(const QPointF& texel) const;
    void ZoomByWheel(int delta);
    void ScrollByWheel(const QPoint& delta, bool sideways);

    QImage surface;           // what was painted last, in screen pixels; kept for its memory
    int wheelRemainder = 0;   // wheel movement that was not enough for a zoom step yet
    QPoint scrollRemainder{}; // and for scrolling by a texel, in 1/120 of a screen pixel
};
