#pragma once

#include <string>

class QWidget;

namespace keltavlo {

// The visible controls of a window row by row, as a screen reader reads them, with their ids.
std::string ReadingOf(const QWidget& window);

} // namespace keltavlo
