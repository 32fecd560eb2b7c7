#include "Paint.h"

#include <algorithm>
#include <cmath>

namespace keltavlo {

Color Paint::operator()(const Ramp& ramp, double brightness, double grain) const {
    const double place = (1 - brightness) * (ramp.count - 1) + grain;
    const int step = std::clamp(static_cast<int>(std::floor(place)), 0, ramp.count - 1);
    return palette[static_cast<std::size_t>(ramp.first + step)];
}

} // namespace keltavlo
