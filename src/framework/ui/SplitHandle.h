#pragma once

#include "framework/ui/CSplitterWnd.h"

namespace keltavlo {

// What people drag to split a window, or to move the line between its parts. A double click splits in the
// middle, or takes the second part away.
class SplitHandle final : public QWidget {
public:
    static constexpr int thickness = 6; // pixels

    SplitHandle(CSplitterWnd& owner, CSplitterWnd::Direction dragged);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    CSplitterWnd& splitter;
    CSplitterWnd::Direction direction;
    QPoint grip; // where the mouse took hold of the handle
};

} // namespace keltavlo
