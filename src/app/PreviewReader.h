#pragma once

#include <memory>
#include <string>

namespace keltavlo {

class TavloDocument;

// The picture file of that path, which may lead into an archive, read into a document that no list of open
// documents knows. Null for a file that holds no picture. Throws what reading throws, and PictureSizeError
// for a file of more than 64 MiB.
std::unique_ptr<TavloDocument> ReadForPreview(const std::string& path);

} // namespace keltavlo
