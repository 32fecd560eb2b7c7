#include "tool/output/OrderedWork.h"

#include <algorithm>

namespace keltavlo {

unsigned ThreadCount(unsigned jobs) {
    return jobs > 0 ? jobs : std::max(1U, std::thread::hardware_concurrency());
}

} // namespace keltavlo
