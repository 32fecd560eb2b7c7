#pragma once

#include <QPointer>
#include <QWidget>

#include <array>

namespace keltavlo {

// A window with up to two parts in each direction, as what moves the lines between them sees it.
class Splitter {
public:
    // Rows lie above each other, columns side by side.
    enum Direction { rows, columns };
    static constexpr int lineThickness = 6; // pixels

    virtual ~Splitter() = default;
    virtual int GetCount(Direction direction) const = 0;
    // The room of all rows or columns.
    virtual int GetExtent(Direction direction) const = 0;
    // Where the line between the two parts runs; 0 when there is one part.
    virtual int GetSplit(Direction direction) const = 0;
    // Makes the first row or column that many pixels high or wide. Where that leaves one of the two parts too
    // small there is only the other.
    virtual void SetSplit(Direction direction, int extent) = 0;
};

// Shows over a splitter where its lines would be while the user drags one, or places both with the
// keyboard: arrow keys move (with Ctrl by a pixel), Enter or a click splits, Escape leaves things as they
// were.
class SplitTracker final : public QWidget {
public:
    // Covers `window`, which is the splitter as the toolkit sees it.
    SplitTracker(Splitter& owner, QWidget* window);

    void BeginByKeyboard();
    // Tracks the one line while a mouse button is held on its handle.
    void BeginByMouse(Splitter::Direction direction);
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
    void SetPosition(Splitter::Direction direction, int position);

    Splitter& splitter;
    std::array<Line, 2> lines; // by Splitter::Direction
    bool changed = false;
    QPointer<QWidget> focused; // before the keyboard came here
};

} // namespace keltavlo
