#pragma once

#include <QPointer>
#include <QWidget>

#include <array>

namespace keltavlo {

// A window with up to two parts in each direction, as the code that moves the lines between them sees it.
class Splitter {
public:
    // Rows are above each other, columns side by side.
    enum Direction { rows, columns };
    static constexpr int lineThickness = 6; // pixels

    virtual ~Splitter() = default;
    virtual int GetCount(Direction direction) const = 0;
    // Returns the space for all rows or columns.
    virtual int GetExtent(Direction direction) const = 0;
    // Returns the position of the line between the two parts, or 0 if there is one part.
    virtual int GetSplit(Direction direction) const = 0;
    // Makes the first row or column that many pixels high or wide. If one of the two parts becomes too small,
    // only the other one remains.
    virtual void SetSplit(Direction direction, int extent) = 0;
};

// Shows on top of a splitter where its lines would be, while the user drags one or places both with the
// keyboard: arrow keys move (with Ctrl by a pixel), Enter or a click splits, Escape changes nothing.
class SplitTracker final : public QWidget {
public:
    // Covers `window`, which is the splitter as a Qt widget.
    SplitTracker(Splitter& owner, QWidget* window);

    void BeginByKeyboard();
    // Tracks one line while a mouse button is held on its handle.
    void BeginByMouse(Splitter::Direction direction);
    // Moves the tracked lines to a point in the splitter's coordinates.
    void MoveTo(const QPoint& point);
    // If `accepted`, splits along the lines that were moved. Does nothing if nothing is tracked.
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
    void SetPosition(Splitter::Direction direction, int position);

    Splitter& splitter;
    std::array<Line, 2> lines; // by Splitter::Direction
    bool changed = false;
    QPointer<QWidget> focused; // had the focus before the tracker took it
};

} // namespace keltavlo
