#pragma once

#include "framework/ui/CView.h"

namespace keltavlo {

// A view of a plane that repeats without end: scrolling past one end of a bar leads to the other.
class InfiniteScrollView : public Dynamic<"InfiniteScrollView", InfiniteScrollView, CView> {
public:
    // Wraps the position into the range and updates the bars and the picture.
    void SetScrollX(int position);
    void SetScrollY(int position);
    int GetScrollX() const { return horizontal.position; }
    int GetScrollY() const { return vertical.position; }
    // Sets the number of positions before the plane repeats. Does not wrap the position, which may exceed the
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
