#pragma once

#include <array>
#include <cstdint>

namespace keltavlo {

// How brightly pictures are shown, one value a channel; 1 shows them as they are.
struct GammaValues {
    double red = 1.0;
    double green = 1.0;
    double blue = 1.0;

    bool operator==(const GammaValues&) const = default;
};

// The largest value that the user can choose; the smallest is 0.
inline constexpr double largestGamma = 5.0;
// The positions of a slider, 0 to 100, over that scale.
inline constexpr int gammaPositions = 100;
double GammaAtPosition(int position);
int PositionOfGamma(double gamma); // rounded

// A channel value of 0 to 255 through a gamma of 0 or more.
int GammaChannel(int value, double gamma);
// Red, green and blue through their gammas; alpha stays.
std::uint32_t ApplyGamma(const GammaValues& values, std::uint32_t color);

// Gamma values with the channel table that they make.
class GammaSettings {
public:
    GammaSettings();

    void SetValues(const GammaValues& newValues);
    const GammaValues& GetValues() const { return values; }
    // 256 entries; entry v holds the outputs of the four channels for the input v.
    const std::uint32_t* GetTable() const { return table.data(); }

private:
    std::array<std::uint32_t, 256> table;
    GammaValues values;
};

} // namespace keltavlo
