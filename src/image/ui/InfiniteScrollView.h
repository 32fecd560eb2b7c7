#pragma once

#include "framework/ui/CView.h"

namespace keltavlo {

// A view over a plane that repeats without end: scrolling past one end of a bar comes round to the other.
class InfiniteScrollView : public Dynamic<"InfiniteScrollView", InfiniteScrollView, CView> {
public:
    // Positions are wrapped into the range; the bars and the picture follow.
    void SetScrollX(int position);
    void SetScrollY(int position);
    int GetScrollX() const { return horizontal.position; }
    int GetScrollY() const { return vertical.position; }
    // The number of positions of one turn. The position is not wrapped again by it: it may lie beyond the
    // range until the next scrolling.
    void SetRangeX(int count);
    void SetRangeY(int count);

    void OnCreate() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Axis {
        Qt::Orientation orientation;
        int position = 0;
        int range = 256;
    };
    void FollowBar(Axis& axis);
    void OnScroll(Axis& axis, int action);
    void SetScroll(Axis& axis, int position);
    void SetRange(Axis& axis, int count);

    Axis horizontal{Qt::Horizontal};
    Axis vertical{Qt::Vertical};
};

} // namespace keltavlo
