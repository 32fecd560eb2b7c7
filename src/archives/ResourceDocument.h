#pragma once

#include "archives/FolderDocument.h"

namespace keltavlo {

// The files that the program contains, as a folder "res" below the program's own file. Empty for any other
// program's file. Read only.
class ResourceDocument final : public Dynamic<"ResourceDocument", ResourceDocument, FolderDocument> {
public:
    // Builds the tree without reading the opened file.
    bool OnDocumentReady() override;
    void ReadContents(InputStream&) override {}
    void WriteContents(OutputStream& out) override; // throws readOnly
};

} // namespace keltavlo
