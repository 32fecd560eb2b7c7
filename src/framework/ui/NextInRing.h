#pragma once

#include <algorithm>
#include <vector>

namespace keltavlo {

// The item behind or before another one; behind the last one comes the first. Null unless the list holds the
// other one.
template <class Item>
Item* NextInRing(const std::vector<Item*>& list, const Item* item, bool previous) {
    const auto place = std::find(list.begin(), list.end(), item);
    if (place == list.end()) return nullptr;
    const auto index = static_cast<std::size_t>(place - list.begin());
    return list[(index + (previous ? list.size() - 1 : 1)) % list.size()];
}

} // namespace keltavlo
