#pragma once

#include "framework/ui/SplitTracker.h"

namespace keltavlo {

// The handle that the user drags to split a window or to move the line between its parts. A double click
// splits in the middle, or removes the second part.
class SplitHandle final : public QWidget {
public:
    // A child of `window`, which is the splitter as a Qt widget.
    SplitHandle(Splitter& owner, SplitTracker& lineTracker, Splitter::Direction dragged, QWidget* window);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    Splitter& splitter;
    SplitTracker& tracker;
    Splitter::Direction direction;
    QPoint grip; // where the mouse grabbed the handle
};

} // namespace keltavlo
