#include "framework/ui/SplitAxis.h"

#include "framework/ui/SplitHandle.h"

#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace keltavlo {

namespace {

constexpr int thickness = Splitter::lineThickness;

} // namespace

// Rows have vertical bars, columns horizontal ones.
SplitAxis::SplitAxis(Splitter& splitter, SplitTracker& tracker, Splitter::Direction rowsOrColumns,
                     QWidget* window)
    : direction(rowsOrColumns) {
    for (QScrollBar*& bar : bars)
        bar = new QScrollBar(direction == Splitter::rows ? Qt::Vertical : Qt::Horizontal, window);
    box = new SplitHandle(splitter, tracker, direction, window);
    line = new SplitHandle(splitter, tracker, direction, window);
}

void SplitAxis::Split(int extentOfFirst) {
    split = extentOfFirst;
    count = maximumParts;
}

void SplitAxis::Remove(int part) {
    count = 1;
    if (part == 0) std::swap(bars[0], bars[1]);
}

// If the window becomes too small for both parts, the second one keeps the minimum size.
SplitAxis::Span SplitAxis::GetSpan(int part, int extent) const {
    if (count == 1) return {0, part == 0 ? extent : 0};
    const int room = extent - thickness;
    const int first = std::clamp(split, 0, std::max(0, room - minimumPart));
    if (part == 0) return {0, first};
    return {first + thickness, std::max(0, room - first)};
}

// The bars of rows are at the right edge, those of columns at the lower one. If there is one part, the box at
// the start of its bar lets the user drag out the second one.
void SplitAxis::LayOut(int extent, int across, int barThickness) {
    const auto place = [&](QWidget& widget, int start, int length, int edge, int depth) {
        widget.setGeometry(direction == Splitter::rows ? QRect(edge, start, depth, length)
                                                       : QRect(start, edge, length, depth));
    };
    const int boxLength = count == 1 ? thickness : 0;
    for (int part = 0; part < maximumParts; ++part) {
        const Span span = GetSpan(part, extent);
        place(GetBar(part), span.start + boxLength, std::max(0, span.length - boxLength), across,
              barThickness);
        GetBar(part).setVisible(part < count);
    }
    place(*box, 0, thickness, across, barThickness);
    place(*line, GetSpan(0, extent).length, thickness, 0, across + barThickness);
    box->setVisible(count == 1);
    line->setVisible(count > 1);
}

} // namespace keltavlo
