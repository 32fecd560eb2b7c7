#pragma once

#include <array>
#include <cstdint>
#include <optional>

class QWidget;

namespace keltavlo {

// Asks the person for a colour, 0x00RRGGBB; the dialog starts from one. Nothing when the person cancelled.
std::optional<std::uint32_t> PromptColor(QWidget* owner, std::uint32_t rgb);

// The sixteen colours of their own that people keep in the colour dialog, 0x00BBGGRR each.
std::array<std::uint32_t, 16> GetCustomColors();
void SetCustomColors(const std::array<std::uint32_t, 16>& colors);

} // namespace keltavlo
