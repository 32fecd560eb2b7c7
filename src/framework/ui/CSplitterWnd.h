#pragma once

#include "framework/ui/CView.h"
#include "framework/ui/SplitAxis.h"

#include <array>
#include <vector>

namespace keltavlo {

// The client area of a frame: a view that the user can split into up to 2 x 2 panes, with a scroll bar for
// each row and column at the splitter's edges. The panes of a row share its vertical bar, those of a column
// its horizontal one.
class CSplitterWnd : public QWidget, public Splitter, public ViewPanes {
public:
    explicit CSplitterWnd(QWidget* parent = nullptr);

    // Makes the first view of the document. Later panes get views of the same class.
    CView& CreateView(int row, int column, const CRuntimeClass& viewClass, CDocument& document);
    // Returns null if the splitter has no such pane.
    CView* GetPane(int row, int column) const;
    QScrollBar& GetScrollBar(const CView& view, Qt::Orientation orientation) const override;

    int GetCount(Direction direction) const override { return axes[direction].GetCount(); }
    int GetExtent(Direction direction) const override;
    int GetSplit(Direction direction) const override { return axes[direction].GetSplit(); }
    void SetSplit(Direction direction, int extent) override;
    // Lets the user place the lines with the keyboard or the mouse.
    void DoKeyboardSplit();
    // Returns the pane after or before the active one, row by row, or the active one itself if there
    // is no other.
    CView* GetNextPane(const CView* active, bool previous) const;

    SplitTracker& GetTracker() const { return *tracker; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    std::vector<CView*> GetPanes() const;
    CView& CreatePane(int row, int column, const CRuntimeClass& viewClass, CDocument& document);
    void AddPart(Direction direction);
    void RemovePart(Direction direction, int part);
    void RemovePane(CView* view);
    CView*& PaneAt(Direction direction, int part, int other);
    void RecalcLayout();

    std::array<std::array<CView*, SplitAxis::maximumParts>, SplitAxis::maximumParts> panes{}; // by row
    SplitTracker* tracker = new SplitTracker(*this, this); // a child of this window, as the panes are
    std::array<SplitAxis, 2> axes{SplitAxis(*this, *tracker, rows, this),
                                  SplitAxis(*this, *tracker, columns, this)}; // by Direction
};

} // namespace keltavlo
