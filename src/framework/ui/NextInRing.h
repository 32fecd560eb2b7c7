#pragma once

#include <algorithm>
#include <vector>

namespace keltavlo {

// Returns the item after or before another one; the last one is followed by the first. Returns null if the
// list does not contain the other one.
template <class Item>
Item* NextInRing(const std::vector<Item*>& list, const Item* item, bool previous) {
    const auto place = std::find(list.begin(), list.end(), item);
    if (place == list.end()) return nullptr;
    const auto index = static_cast<std::size_t>(place - list.begin());
    return list[(index + (previous ? list.size() - 1 : 1)) % list.size()];
}

} // namespace keltavlo
