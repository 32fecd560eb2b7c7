#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace keltavlo {

// Labels of the bits of a Quake II surface, from bit 0 up. A bit without a meaning is labeled by its number.
extern const std::array<std::string_view, 32> surfaceFlagLabels;
extern const std::array<std::string_view, 32> contentsFlagLabels;

// Returns the labels of the set bits, from bit 0 up, separated by ", "; empty for 0.
std::string DescribeFlags(std::uint32_t flags, const std::array<std::string_view, 32>& labels);

} // namespace keltavlo
