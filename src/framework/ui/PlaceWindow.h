#pragma once

#include "framework/core/WindowPlacement.h"

class QWidget;

namespace keltavlo {

// Returns the position and state of a top-level window.
WindowPlacement GetWindowPlacement(const QWidget& window);
// Moves the window to its normal position, on a screen that exists. Does not show it.
void SetWindowPlacement(QWidget& window, const WindowPlacement& placement);
// Shows the window as the WindowPlacement::ShowCommand requests.
void ShowWindow(QWidget& window, std::uint32_t showCommand);

} // namespace keltavlo
