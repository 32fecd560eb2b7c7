#pragma once

#include <cstdint>
#include <optional>

class QWidget;

// Asks the person for a colour, 0x00RRGGBB; the dialog starts from one. Nothing when the person cancelled.
std::optional<std::uint32_t> PromptColor(QWidget* owner, std::uint32_t rgb);
