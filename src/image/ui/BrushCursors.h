#pragma once

#include <QCursor>

namespace keltavlo {

// The pointer of that number, as brushes name them: a pencil, a pipette, or else the standard arrow. Its hot
// spot is the tip. `ratio` is the number of screen pixels in a unit of the window.
QCursor LoadBrushCursor(unsigned id, double ratio);

} // namespace keltavlo
