#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace keltavlo {

class TavloDocument;
struct CRuntimeClass;

// Finds and reads files of the picture formats.

// Returns the picture class of the type with the path's extension. Returns null for another type and for an
// unknown extension, although such a file opens as a bitmap.
const CRuntimeClass* PictureClassOf(const std::string& path);

// Returns the extension of the only picture format among patterns such as "*.pak;*.tga", or an empty one for
// none or several.
std::string PictureExtensionIn(std::string_view patterns);

// Reads a picture file, which may be in an archive, into a document that is not in any list of open
// documents. Returns null for a file without a picture. Throws what reading throws, and PictureSizeError for
// a file of more than 64 MiB.
std::unique_ptr<TavloDocument> ReadForPreview(const std::string& path);

} // namespace keltavlo
