#pragma once

#include "tool/pictures/TextureFields.h"

#include <string_view>
#include <vector>

namespace keltavlo {

class Texture;

// Whether index 255 is transparent in textures of that name or path: the file name begins with "{".
bool IsCutoutName(std::string_view path);

// Fills in missing names from the texture's path below the folder of textures, then sets the given fields. A
// Quake II name is the path without its first folder "textures"; a Quake name is the file name. Adds a note,
// as in ConvertedFile, for a name that `format` ("wal" or "mip") will cut.
void NameTexture(Texture& texture, std::string_view texturePath, const TextureFields& fields,
                 std::string_view format, std::vector<std::string>& notes);

} // namespace keltavlo
