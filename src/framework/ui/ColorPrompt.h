#pragma once

#include <array>
#include <cstdint>
#include <optional>

class QWidget;

namespace keltavlo {

// Asks the user for a color, 0x00RRGGBB, starting from the given one. Returns null if the user cancelled.
std::optional<std::uint32_t> PromptColor(QWidget* owner, std::uint32_t rgb);

// The sixteen custom colors of the color dialog, each 0x00BBGGRR.
std::array<std::uint32_t, 16> GetCustomColors();
void SetCustomColors(const std::array<std::uint32_t, 16>& colors);

} // namespace keltavlo
