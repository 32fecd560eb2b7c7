#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

struct CRuntimeClass;

// Which names belong to the picture formats.

// The picture class of the type that has the path's extension; null for another type and for an unknown
// extension, although a file of that name opens as a bitmap.
const CRuntimeClass* PictureClassOf(const std::string& path);

// The extension of the only picture format among patterns such as "*.pak;*.tga"; empty for none or several.
std::string PictureExtensionIn(std::string_view patterns);

} // namespace keltavlo
