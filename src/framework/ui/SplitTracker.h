#pragma once

#include "framework/ui/CSplitterWnd.h"

#include <QPointer>

#include <array>

namespace keltavlo {

// Shows over a splitter where its lines would come to lie while a person drags one, or places both with the
// keyboard: arrow keys move (with Ctrl by a pixel), Enter or a click splits, Escape leaves things as they
// were.
class SplitTracker final : public QWidget {
public:
    explicit SplitTracker(CSplitterWnd& owner);

    void BeginByKeyboard();
    // Tracks the one line while a mouse button is held on its handle.
    void BeginByMouse(CSplitterWnd::Direction direction);
    // A point of the splitter.
    void MoveTo(const QPoint& point);
    // Splits along the lines if they were moved or placed; does nothing unless tracking.
    void End(bool accepted);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    struct Line {
        bool tracked = false;
        int position = 0; // pixels from the splitter's edge
    };
    void Begin(bool byMouse);
    void SetPosition(CSplitterWnd::Direction direction, int position);

    CSplitterWnd& splitter;
    std::array<Line, 2> lines; // by CSplitterWnd::Direction
    bool changed = false;
    QPointer<QWidget> focused; // before the keyboard came here
};

} // namespace keltavlo
