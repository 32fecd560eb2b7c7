#pragma once

#include "image/picture/Color.h"

#include <cstddef>
#include <vector>

namespace keltavlo {

// Remembers which list entry colours were matched to: one colour per slot, the newest replacing what the
// slot held. Valid only while the list's colours stay as they are.
class NearestColorCache {
public:
    // Throws std::invalid_argument when there is no slot.
    explicit NearestColorCache(std::size_t slotCount);

    // The entry stored for the colour, or null.
    const Color* Find(Color color) const {
        const Slot& slot = slots[color % slots.size()];
        return slot.key == color ? slot.match : nullptr;
    }

    void Store(Color color, const Color* match) { slots[color % slots.size()] = {color, match}; }

private:
    struct Slot {
        Color key = 0;
        // Null while the slot holds nothing.
        const Color* match = nullptr;
    };

    std::vector<Slot> slots;
};

} // namespace keltavlo
