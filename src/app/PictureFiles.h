#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace keltavlo {

class TavloDocument;
struct CRuntimeClass;

// Which files belong to the picture formats, and what is in them.

// The picture class of the type that has the path's extension; null for another type and for an unknown
// extension, although a file of that name opens as a bitmap.
const CRuntimeClass* PictureClassOf(const std::string& path);

// The extension of the only picture format among patterns such as "*.pak;*.tga"; empty for none or several.
std::string PictureExtensionIn(std::string_view patterns);

// The picture file of that path, which may lead into an archive, read into a document that no list of open
// documents knows. Null for a file that holds no picture. Throws what reading throws, and PictureSizeError
// for a file of more than 64 MiB.
std::unique_ptr<TavloDocument> ReadForPreview(const std::string& path);

} // namespace keltavlo
