#pragma once

#include <QCursor>

namespace keltavlo {

// Returns the pointer with the number that brushes use: a pencil, a pipette, or otherwise the standard arrow.
// Its hot spot is the tip. `ratio` is the number of screen pixels per unit of the window.
QCursor LoadBrushCursor(unsigned id, double ratio);

} // namespace keltavlo
