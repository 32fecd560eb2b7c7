#pragma once

#include <memory>
#include <string>

class TavloDocument;

// The picture file of that path, which may lead into an archive, read into a document that no list of open
// documents knows. Null for a file that holds no picture, and for one that is too large to be read while a
// person only looks around. Throws what reading throws.
std::unique_ptr<TavloDocument> ReadForPreview(const std::string& path);
