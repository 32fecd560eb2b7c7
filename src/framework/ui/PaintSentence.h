#pragma once

class QWidget;

namespace keltavlo {

// Called in a paint event: fills the window and shows the string in its middle, in place of a picture that
// cannot be painted.
void PaintSentence(QWidget& window, unsigned stringId);

} // namespace keltavlo
