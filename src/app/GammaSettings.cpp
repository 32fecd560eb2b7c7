#include "app/GammaSettings.h"

#include "image/picture/Color.h"

#include <algorithm>
#include <cmath>

namespace keltavlo {

namespace {

std::uint32_t Channel(std::uint32_t value, double gamma) {
    return static_cast<std::uint32_t>(GammaChannel(static_cast<int>(value), gamma));
}

} // namespace

double GammaAtPosition(int position) {
    return largestGamma * position / gammaPositions;
}

int PositionOfGamma(double gamma) {
    return static_cast<int>(std::lround(gamma * gammaPositions / largestGamma));
}

int GammaChannel(int value, double gamma) {
    constexpr double steps = 256;
    const double shown = std::pow(value / steps, 1 / gamma) * steps + 0.5;
    return std::min(static_cast<int>(shown), 255);
}

std::uint32_t ApplyGamma(const GammaValues& values, std::uint32_t color) {
    return Compose(Channel(Red(color), values.red), Channel(Green(color), values.green),
                   Channel(Blue(color), values.blue), Alpha(color));
}

GammaSettings::GammaSettings() {
    SetValues({});
}

void GammaSettings::SetValues(const GammaValues& newValues) {
    values = newValues;
    for (std::uint32_t v = 0; v < table.size(); ++v) table[v] = ApplyGamma(values, Compose(v, v, v, v));
}

} // namespace keltavlo
