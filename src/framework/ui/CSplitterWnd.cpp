#include "framework/ui/CSplitterWnd.h"

#include "framework/core/RuntimeClass.h"
#include "framework/ui/CMDIChildWnd.h"
#include "framework/ui/CView.h"
#include "framework/ui/SplitHandle.h"
#include "framework/ui/SplitTracker.h"
#include "framework/ui/WindowClasses.h"

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

constexpr CSplitterWnd::Direction Across(CSplitterWnd::Direction direction) {
    return direction == CSplitterWnd::rows ? CSplitterWnd::columns : CSplitterWnd::rows;
}

} // namespace

// Rows have vertical bars, columns horizontal ones.
CSplitterWnd::CSplitterWnd(QWidget* parent) : QWidget(parent) {
    for (const Direction direction : {rows, columns}) {
        Axis& axis = axes[direction];
        for (QScrollBar*& bar : axis.bars)
            bar = new QScrollBar(direction == rows ? Qt::Vertical : Qt::Horizontal, this);
        axis.box = new SplitHandle(*this, direction);
        axis.line = new SplitHandle(*this, direction);
    }
    tracker = new SplitTracker(*this);
}

CView& CSplitterWnd::CreateView(int row, int column, const CRuntimeClass& viewClass, CDocument& document) {
    Q_ASSERT(row == 0 && column == 0 && !panes[0][0]);
    CView& view = CreatePane(row, column, viewClass, document);
    RecalcLayout();
    return view;
}

CView& CSplitterWnd::CreatePane(int row, int column, const CRuntimeClass& viewClass, CDocument& document) {
    CView* view = CreateViewWindow(viewClass).release();
    view->setParent(this);
    panes[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = view;
    view->Attach(document, this);
    return *view;
}

CView* CSplitterWnd::GetPane(int row, int column) const {
    const bool there = row >= 0 && row < axes[rows].count && column >= 0 && column < axes[columns].count;
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
    std::size_t row = 0, column = 0;
    for (std::size_t i = 0; i < maximumParts; ++i)
        for (std::size_t j = 0; j < maximumParts; ++j)
            if (panes[i][j] == &view) row = i, column = j;
    return orientation == Qt::Horizontal ? *axes[columns].bars[column] : *axes[rows].bars[row];
}

int CSplitterWnd::GetSplit(Direction direction) const {
    return axes[direction].count > 1 ? axes[direction].split : 0;
}

void CSplitterWnd::SetSplit(Direction direction, int extent) {
    Axis& axis = axes[direction];
    const bool firstFits = extent >= minimumPart;
    const bool secondFits = extent <= GetExtent(direction) - SplitHandle::thickness - minimumPart;
    if (firstFits && secondFits) {
        axis.split = extent;
        if (axis.count == 1) AddPart(direction);
    } else if (axis.count > 1) {
        RemovePart(direction, firstFits ? 1 : 0);
    }
    RecalcLayout();
}

CView*& CSplitterWnd::PaneAt(Direction direction, int part, int other) {
    const auto row = static_cast<std::size_t>(direction == rows ? part : other);
    const auto column = static_cast<std::size_t>(direction == rows ? other : part);
    return panes[row][column];
}

// A view sets its bars back when it is made. The bars that it shares go back to where they were, and take
// every view beside them along, the new one too.
void CSplitterWnd::AddPart(Direction direction) {
    const CView& first = *panes[0][0];
    axes[direction].count = 2;
    for (int other = 0; other < axes[Across(direction)].count; ++other) {
        QScrollBar& shared = *axes[Across(direction)].bars[static_cast<std::size_t>(other)];
        const int position = shared.sliderPosition();
        const int row = direction == rows ? 1 : other;
        const int column = direction == rows ? other : 1;
        CView& view = CreatePane(row, column, first.GetRuntimeClass(), *first.GetDocument());
        view.OnInitialUpdate();
        view.show();
        shared.setSliderPosition(position);
    }
}

// What stays moves into the first row or column, with its bar.
void CSplitterWnd::RemovePart(Direction direction, int part) {
    Axis& axis = axes[direction];
    axis.count = 1;
    if (part == 0) std::swap(axis.bars[0], axis.bars[1]);
    for (int other = 0; other < axes[Across(direction)].count; ++other) {
        if (part == 0) std::swap(PaneAt(direction, 0, other), PaneAt(direction, 1, other));
        RemovePane(std::exchange(PaneAt(direction, 1, other), nullptr));
    }
}

void CSplitterWnd::RemovePane(CView* view) {
    CMDIChildWnd* frame = view->GetParentFrame();
    if (frame && frame->GetActiveView() == view) frame->SetActiveView(panes[0][0]);
    view->Detach();
    delete view;
}

CView* CSplitterWnd::GetNextPane(const CView* active, bool previous) const {
    const std::vector<CView*> list = GetPanes();
    const auto place = std::find(list.begin(), list.end(), active);
    if (place == list.end()) return list.front();
    const auto index = static_cast<std::size_t>(place - list.begin());
    return list[(index + (previous ? list.size() - 1 : 1)) % list.size()];
}

void CSplitterWnd::DoKeyboardSplit() {
    tracker->BeginByKeyboard();
}

} // namespace keltavlo
