#include "framework/ui/CSplitterWnd.h"

#include "framework/core/RuntimeClass.h"
#include "framework/ui/NextInRing.h"
#include "framework/ui/WindowClasses.h"

#include <QScrollBar>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

constexpr CSplitterWnd::Direction Across(CSplitterWnd::Direction direction) {
    return direction == CSplitterWnd::rows ? CSplitterWnd::columns : CSplitterWnd::rows;
}

int BarThickness(const QWidget& widget) {
    return widget.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget);
}

} // namespace

CSplitterWnd::CSplitterWnd(QWidget* parent) : QWidget(parent) {}

CView& CSplitterWnd::CreateView(int row, int column, const CRuntimeClass& viewClass, CDocument& document) {
    Q_ASSERT(row == 0 && column == 0 && !panes[0][0]);
    CView& view = CreatePane(row, column, viewClass, document);
    RecalcLayout();
    return view;
}

CView& CSplitterWnd::CreatePane(int row, int column, const CRuntimeClass& viewClass, CDocument& document) {
    CView* view = CreateWindowOf<CView>(viewClass).release();
    view->setParent(this);
    panes[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = view;
    view->Attach(document, this);
    return *view;
}

CView* CSplitterWnd::GetPane(int row, int column) const {
    const bool there = row >= 0 && row < GetCount(rows) && column >= 0 && column < GetCount(columns);
    return there ? panes[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] : nullptr;
}

std::vector<CView*> CSplitterWnd::GetPanes() const {
    std::vector<CView*> list;
    for (const auto& row : panes)
        for (CView* view : row)
            if (view) list.push_back(view);
    return list;
}

QScrollBar& CSplitterWnd::GetScrollBar(const CView& view, Qt::Orientation orientation) const {
    int row = 0, column = 0;
    for (int i = 0; i < SplitAxis::maximumParts; ++i)
        for (int j = 0; j < SplitAxis::maximumParts; ++j)
            if (panes[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)] == &view) row = i, column = j;
    return orientation == Qt::Horizontal ? axes[columns].GetBar(column) : axes[rows].GetBar(row);
}

void CSplitterWnd::SetSplit(Direction direction, int extent) {
    const bool firstFits = extent >= SplitAxis::minimumPart;
    const bool secondFits = extent <= GetExtent(direction) - lineThickness - SplitAxis::minimumPart;
    const bool isSplit = GetCount(direction) > 1;
    if (firstFits && secondFits) {
        axes[direction].Split(extent);
        if (!isSplit) AddPart(direction);
    } else if (isSplit) {
        RemovePart(direction, firstFits ? 1 : 0);
    }
    RecalcLayout();
}

CView*& CSplitterWnd::PaneAt(Direction direction, int part, int other) {
    const auto row = static_cast<std::size_t>(direction == rows ? part : other);
    const auto column = static_cast<std::size_t>(direction == rows ? other : part);
    return panes[row][column];
}

// A new view resets the scroll bars beside it. Each shared bar is moved back to its old position, and all its
// views follow, including the new one.
void CSplitterWnd::AddPart(Direction direction) {
    const CView& first = *panes[0][0];
    for (int other = 0; other < GetCount(Across(direction)); ++other) {
        QScrollBar& shared = axes[Across(direction)].GetBar(other);
        const int position = shared.sliderPosition();
        const int row = direction == rows ? 1 : other;
        const int column = direction == rows ? other : 1;
        CView& view = CreatePane(row, column, first.GetRuntimeClass(), *first.GetDocument());
        view.OnInitialUpdate();
        view.show();
        shared.setSliderPosition(position);
    }
}

// The remaining part moves into the first row or column, together with its bar.
void CSplitterWnd::RemovePart(Direction direction, int part) {
    axes[direction].Remove(part);
    for (int other = 0; other < GetCount(Across(direction)); ++other) {
        if (part == 0) std::swap(PaneAt(direction, 0, other), PaneAt(direction, 1, other));
        RemovePane(std::exchange(PaneAt(direction, 1, other), nullptr));
    }
}

void CSplitterWnd::RemovePane(CView* view) {
    ViewFrame* frame = view->GetParentFrame();
    if (frame && frame->GetActiveView() == view) frame->SetActiveView(panes[0][0]);
    view->Detach();
    delete view;
}

CView* CSplitterWnd::GetNextPane(const CView* active, bool previous) const {
    const std::vector<CView*> list = GetPanes();
    CView* next = NextInRing(list, active, previous);
    return next ? next : list.front();
}

void CSplitterWnd::DoKeyboardSplit() {
    tracker->BeginByKeyboard();
}

int CSplitterWnd::GetExtent(Direction direction) const {
    const int whole = direction == rows ? height() : width();
    return std::max(0, whole - BarThickness(*this));
}

void CSplitterWnd::RecalcLayout() {
    const int high = GetExtent(rows), wide = GetExtent(columns);
    for (int row = 0; row < GetCount(rows); ++row)
        for (int column = 0; column < GetCount(columns); ++column) {
            const SplitAxis::Span y = axes[rows].GetSpan(row, high);
            const SplitAxis::Span x = axes[columns].GetSpan(column, wide);
            if (CView* view = GetPane(row, column)) view->setGeometry(x.start, y.start, x.length, y.length);
        }
    axes[rows].LayOut(high, wide, BarThickness(*this));
    axes[columns].LayOut(wide, high, BarThickness(*this));
    tracker->setGeometry(rect());
    tracker->raise();
}

void CSplitterWnd::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    RecalcLayout();
}

} // namespace keltavlo
