#include "framework/ui/CSplitterWnd.h"
#include "framework/ui/CView.h"
#include "framework/ui/SplitHandle.h"
#include "framework/ui/SplitTracker.h"

#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace keltavlo {

namespace {

int BarThickness(const QWidget& widget) {
    return widget.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget);
}

} // namespace

int CSplitterWnd::GetExtent(Direction direction) const {
    const int whole = direction == rows ? height() : width();
    return std::max(0, whole - BarThickness(*this));
}

// In a window that became too small for both parts the second one keeps its least size.
CSplitterWnd::Span CSplitterWnd::GetSpan(Direction direction, int part) const {
    const Axis& axis = axes[direction];
    const int extent = GetExtent(direction);
    if (axis.count == 1) return {0, part == 0 ? extent : 0};
    const int room = extent - SplitHandle::thickness;
    const int first = std::clamp(axis.split, 0, std::max(0, room - minimumPart));
    if (part == 0) return {0, first};
    return {first + SplitHandle::thickness, std::max(0, room - first)};
}

void CSplitterWnd::RecalcLayout() {
    for (int row = 0; row < axes[rows].count; ++row)
        for (int column = 0; column < axes[columns].count; ++column) {
            const Span y = GetSpan(rows, row);
            const Span x = GetSpan(columns, column);
            if (CView* view = GetPane(row, column)) view->setGeometry(x.start, y.start, x.length, y.length);
        }
    LayOutBars(rows);
    LayOutBars(columns);
    tracker->setGeometry(rect());
    tracker->raise();
}

// The bars of the rows stand at the right edge, those of the columns at the lower one. The box from which
// people pull the second part lies at the start of the only bar.
void CSplitterWnd::LayOutBars(Direction direction) {
    Axis& axis = axes[direction];
    const int thickness = BarThickness(*this);
    const int across = GetExtent(direction == rows ? columns : rows);
    const auto place = [&](QWidget& widget, int start, int length, int edge, int depth) {
        widget.setGeometry(direction == rows ? QRect(edge, start, depth, length)
                                             : QRect(start, edge, length, depth));
    };
    const int boxLength = axis.count == 1 ? SplitHandle::thickness : 0;
    for (int part = 0; part < maximumParts; ++part) {
        const Span span = GetSpan(direction, part);
        QScrollBar& bar = *axis.bars[static_cast<std::size_t>(part)];
        place(bar, span.start + boxLength, std::max(0, span.length - boxLength), across, thickness);
        bar.setVisible(part < axis.count);
    }
    place(*axis.box, 0, SplitHandle::thickness, across, thickness);
    place(*axis.line, GetSpan(direction, 0).length, SplitHandle::thickness, 0, across + thickness);
    axis.box->setVisible(axis.count == 1);
    axis.line->setVisible(axis.count > 1);
}

void CSplitterWnd::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    RecalcLayout();
}

} // namespace keltavlo
