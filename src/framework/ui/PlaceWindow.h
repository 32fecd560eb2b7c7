#pragma once

#include "framework/core/WindowPlacement.h"

class QWidget;

namespace keltavlo {

// Where a window on the desktop is and how it is shown.
WindowPlacement GetWindowPlacement(const QWidget& window);
// Moves the window to its place when it is neither minimized nor maximized, on a screen that exists; does not
// show it.
void SetWindowPlacement(QWidget& window, const WindowPlacement& placement);
// Shows the window as a WindowPlacement::ShowCommand says.
void ShowWindow(QWidget& window, std::uint32_t showCommand);

} // namespace keltavlo
