#pragma once

namespace keltavlo {

class ColorList;

// The built-in palettes of the games, one list each for the whole run, filled on first use from the built-in
// documents. CArchiveException when the program's own file cannot be read.
const ColorList& GetQuakePalette();
const ColorList& GetQuakeIIPalette();

} // namespace keltavlo
