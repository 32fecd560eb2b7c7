#pragma once

#include <QWidget>

#include <array>
#include <vector>

class QScrollBar;

namespace keltavlo {

class CDocument;
struct CRuntimeClass;
class CView;
class SplitHandle;
class SplitTracker;

// The client area of a frame: a view that people split into up to 2 x 2 panes, with a scroll bar for each row
// and column at the splitter's edges. The panes of a row share its vertical bar, those of a column its
// horizontal one.
class CSplitterWnd : public QWidget {
public:
    // Rows lie above each other, columns side by side.
    enum Direction { rows, columns };
    static constexpr int maximumParts = 2;
    static constexpr int minimumPart = 10; // pixels; what would be smaller goes

    explicit CSplitterWnd(QWidget* parent = nullptr);

    // Makes the first view, on the document; those of further panes are of its class.
    CView& CreateView(int row, int column, const CRuntimeClass& viewClass, CDocument& document);
    // Null where the splitter has no such pane.
    CView* GetPane(int row, int column) const;
    int GetCount(Direction direction) const { return axes[direction].count; }
    // The bar of the column (horizontal) or row (vertical) in which the view stands.
    QScrollBar& GetScrollBar(const CView& view, Qt::Orientation orientation) const;

    // Makes the first row or column that many pixels high or wide. Where that leaves one of the two parts too
    // small there is only the other.
    void SetSplit(Direction direction, int extent);
    // Where the line between the two parts runs; 0 when there is one part.
    int GetSplit(Direction direction) const;
    // The room of all rows or columns.
    int GetExtent(Direction direction) const;
    // Lets the person place the lines with the keyboard or the mouse.
    void DoKeyboardSplit();
    // The pane behind or before the active one, row by row; the pane itself when it is the only one.
    CView* GetNextPane(const CView* active, bool previous) const;

    SplitTracker& GetTracker() const { return *tracker; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Axis {
        int count = 1;
        int split = 0; // pixels of the first part
        std::array<QScrollBar*, maximumParts> bars{};
        SplitHandle* box = nullptr;  // beside the bar, while there is one part
        SplitHandle* line = nullptr; // between two parts
    };
    struct Span {
        int start, length;
    };

    std::vector<CView*> GetPanes() const;
    CView& CreatePane(int row, int column, const CRuntimeClass& viewClass, CDocument& document);
    void AddPart(Direction direction);
    void RemovePart(Direction direction, int part);
    void RemovePane(CView* view);
    CView*& PaneAt(Direction direction, int part, int other);
    Span GetSpan(Direction direction, int part) const;
    void RecalcLayout();
    void LayOutBars(Direction direction);

    std::array<std::array<CView*, maximumParts>, maximumParts> panes{}; // by row; children of this window
    std::array<Axis, 2> axes;                                           // by Direction
    SplitTracker* tracker;
};

} // namespace keltavlo
