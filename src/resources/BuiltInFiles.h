#pragma once

#include <string>

namespace keltavlo {

class ColorList;

// Numbers of the files that the program contains.
enum BuiltInFile : unsigned {
    quakePalette = 139,
    quake2Palette = 140,
    hexen2Palette = 141,
    texelBrushFile = 162,
    colorPickerFile = 163,
    rgbaColorSpace = 168,
    internetSafeColors = 184,
    grayScaleColors = 185,
    alphaScaleColors = 186
};

// The resource type of the files' names.
inline constexpr const char* builtInNameType = "DIR";
// The folder below the program's path that contains them.
inline constexpr const char* builtInFolder = "res";

// Returns the name of the built-in file with that number, or an empty one if there is none.
std::string GetBuiltInName(unsigned id);

// Returns the path of the built-in file: the program's own path, "res", the name.
std::string GetBuiltInPath(unsigned id);

// The built-in palettes of the games. Each is loaded once, on first use, from its built-in document. Throws
// CArchiveException if the program's own file cannot be read.
const ColorList& GetQuakePalette();
const ColorList& GetQuakeIIPalette();

} // namespace keltavlo
