#pragma once

class QWidget;

namespace keltavlo {

// For paint events: clears the window and shows the string in its center, in place of a picture that cannot
// be painted.
void PaintSentence(QWidget& window, unsigned stringId);

} // namespace keltavlo
