#pragma once

#include <array>
#include <cstdint>
#include <optional>

class QWidget;

namespace keltavlo {

// Asks the user for a color, 0x00RRGGBB; the dialog starts from one. Nothing when the user cancelled.
std::optional<std::uint32_t> PromptColor(QWidget* owner, std::uint32_t rgb);

// The sixteen colors of their own that people keep in the color dialog, 0x00BBGGRR each.
std::array<std::uint32_t, 16> GetCustomColors();
void SetCustomColors(const std::array<std::uint32_t, 16>& colors);

} // namespace keltavlo
