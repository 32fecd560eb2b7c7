#pragma once

#include "framework/ui/SplitTracker.h"

#include <array>

class QScrollBar;

namespace keltavlo {

class SplitHandle;

// The rows or the columns of a splitter: how many there are and where, their scroll bars at the splitter's
// edge and the handles that people drag.
class SplitAxis {
public:
    static constexpr int maximumParts = 2;
    static constexpr int minimumPart = 10; // pixels; what would be smaller goes

    struct Span {
        int start, length;
    };

    // The bars and the handles become children of `window`.
    SplitAxis(Splitter& splitter, SplitTracker& tracker, Splitter::Direction rowsOrColumns, QWidget* window);

    int GetCount() const { return count; }
    // Pixels of the first part; 0 when there is one part.
    int GetSplit() const { return count > 1 ? split : 0; }
    // Makes two parts.
    void Split(int extentOfFirst);
    // Leaves one part; its bar becomes the first one.
    void Remove(int part);

    QScrollBar& GetBar(int part) const { return *bars[static_cast<std::size_t>(part)]; }
    // Where a part lies in the room for all of them.
    Span GetSpan(int part, int extent) const;
    // Puts the bars and the handles in their places. `extent` is the room along the axis, `across` the one
    // across it.
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
