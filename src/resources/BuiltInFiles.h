#pragma once

#include <string>

namespace keltavlo {

class ColorList;

// Numbers of the files that the program carries inside itself.
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
// The folder below the program's path that holds them.
inline constexpr const char* builtInFolder = "res";

// The name of the built-in file of that number; empty when there is none.
std::string GetBuiltInName(unsigned id);

// The path of the built-in file: the program's own path, "res", the name.
std::string GetBuiltInPath(unsigned id);

// The built-in palettes of the games, one list each for the whole run, filled on first use from the built-in
// documents. CArchiveException when the program's own file cannot be read.
const ColorList& GetQuakePalette();
const ColorList& GetQuakeIIPalette();

} // namespace keltavlo
