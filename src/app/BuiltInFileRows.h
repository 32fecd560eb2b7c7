#pragma once

#include "framework/core/EmbeddedFiles.h"

namespace keltavlo {

// The nine files that the program contains, two rows each: the name under "DIR", the bytes
// under the name's extension. The build makes them with dev/generators/MakeBuiltInFiles.cpp,
// the palettes from the tables in res/palettes.
std::span<const EmbeddedFile> BuiltInFileRows();

} // namespace keltavlo
