#include "image/picture/TexelRects.h"

#include <algorithm>

namespace keltavlo {

namespace {

struct Interval {
    int start;
    int length;
};

// Returns where `count` texels, starting with `first`, appear along one axis of the view: once per tile.
std::vector<Interval> FindIntervals(int first, int count, int side, int scroll, int zoom, int viewLength) {
    const int period = side * zoom;
    const int offset = (first - scroll) % side;
    std::vector<Interval> intervals;
    for (int start = (offset > 0 ? offset - side : offset) * zoom; start < viewLength; start += period) {
        const int visible = std::max(start, 0);
        const int end = std::min(start + count * zoom, viewLength);
        if (visible < end) intervals.push_back({visible, end - visible});
    }
    return intervals;
}

} // namespace

std::vector<ScreenRect> FindTexelRects(const TexelRun& run, PixelSize picture, const TileViewport& viewport,
                                       PixelSize view, std::size_t largestCount) {
    const std::vector<Interval> columns =
        FindIntervals(run.first, run.count, picture.width, viewport.scrollX, viewport.zoom, view.width);
    const std::vector<Interval> rows =
        FindIntervals(run.row, 1, picture.height, viewport.scrollY, viewport.zoom, view.height);
    if (columns.size() * rows.size() > largestCount) return {{0, 0, view.width, view.height}};
    std::vector<ScreenRect> rects;
    for (const Interval& y : rows)
        for (const Interval& x : columns) rects.push_back({x.start, y.start, x.length, y.length});
    return rects;
}

} // namespace keltavlo
