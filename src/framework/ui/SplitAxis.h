#pragma once

#include "framework/ui/SplitTracker.h"

#include <array>

class QScrollBar;

namespace keltavlo {

class SplitHandle;

// The rows or columns of a splitter: their number and positions, their scroll bars at the splitter's edge and
// the handles that the user drags.
class SplitAxis {
public:
    static constexpr int maximumParts = 2;
    static constexpr int minimumPart = 10; // pixels; a smaller part is removed

    struct Span {
        int start, length;
    };

    // Makes the bars and the handles as children of `window`.
    SplitAxis(Splitter& splitter, SplitTracker& tracker, Splitter::Direction rowsOrColumns, QWidget* window);

    int GetCount() const { return count; }
    // Returns the pixels of the first part, or 0 if there is only one part.
    int GetSplit() const { return count > 1 ? split : 0; }
    // Makes two parts.
    void Split(int extentOfFirst);
    // Leaves one part, whose bar becomes the first one.
    void Remove(int part);

    QScrollBar& GetBar(int part) const { return *bars[static_cast<std::size_t>(part)]; }
    // Returns the position of a part within `extent`.
    Span GetSpan(int part, int extent) const;
    // Places the bars and the handles. `extent` is the space along the axis, `across` the space across it.
    void LayOut(int extent, int across, int barThickness);

private:
    Splitter::Direction direction;
    int count = 1;
    int split = 0;
    std::array<QScrollBar*, maximumParts> bars{};
    SplitHandle* box;  // beside the bar, while there is one part
    SplitHandle* line; // between two parts
};

} // namespace keltavlo
