#pragma once

#include "framework/core/EmbeddedFiles.h"

namespace keltavlo {

// The nine files that the program carries, two rows each: the name under "DIR", the bytes under the name's
// extension. The build makes them from the palette tables in res/palettes and the rules in
// dev/generators/MakeBuiltInFiles.cpp.
std::span<const EmbeddedFile> BuiltInFileRows();

} // namespace keltavlo
