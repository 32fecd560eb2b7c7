#pragma once

#include <algorithm>
#include <cstddef>
#include <span>

namespace keltavlo {

// A rectangle of values, rows top first, without padding.
template <class T>
struct ValueRows {
    std::span<T> values;
    int width, height;

    std::span<T> Row(int y) const {
        const auto length = static_cast<std::size_t>(width);
        return values.subspan(static_cast<std::size_t>(y) * length, length);
    }
};

// Fills the target with the source's top-left corner. Where the target is larger, it repeats the source's
// right and bottom edges. The source has at least one value, and the target's rows have one, too.
template <class T>
void CopyResized(ValueRows<const T> source, ValueRows<T> target) {
    const auto kept = static_cast<std::size_t>(std::min(source.width, target.width));
    for (int y = 0; y < target.height; ++y) {
        const std::span<const T> from = source.Row(std::min(y, source.height - 1)).first(kept);
        const auto edge = std::ranges::copy(from, target.Row(y).begin()).out;
        std::fill(edge, target.Row(y).end(), from.back());
    }
}

} // namespace keltavlo
