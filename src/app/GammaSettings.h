#pragma once

#include <array>
#include <cstdint>

namespace keltavlo {

// The gamma of each channel of displayed pictures; 1 leaves the channel unchanged.
struct GammaValues {
    double red = 1.0;
    double green = 1.0;
    double blue = 1.0;

    bool operator==(const GammaValues&) const = default;
};

// The largest value that the user can choose. The smallest is 0.
inline constexpr double largestGamma = 5.0;
// A slider's positions, 0 to 100, cover the values from 0 to largestGamma.
inline constexpr int gammaPositions = 100;
double GammaAtPosition(int position);
int PositionOfGamma(double gamma); // rounded

// Applies a gamma of 0 or more to a channel value from 0 to 255.
int GammaChannel(int value, double gamma);
// Applies the gammas to red, green and blue. Alpha stays.
std::uint32_t ApplyGamma(const GammaValues& values, std::uint32_t color);

// Gamma values and the channel table made from them.
class GammaSettings {
public:
    GammaSettings();

    void SetValues(const GammaValues& newValues);
    const GammaValues& GetValues() const { return values; }
    // Returns 256 entries. Entry v contains the outputs of the four channels for input v.
    const std::uint32_t* GetTable() const { return table.data(); }

private:
    std::array<std::uint32_t, 256> table;
    GammaValues values;
};

} // namespace keltavlo
