#include "image/picture/NearestColorCache.h"

#include <stdexcept>

namespace keltavlo {

NearestColorCache::NearestColorCache(std::size_t slotCount) : slots(slotCount) {
    if (slotCount == 0) throw std::invalid_argument("A nearest-color cache needs a slot.");
}

} // namespace keltavlo
