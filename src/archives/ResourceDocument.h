#pragma once

#include "archives/FolderDocument.h"

namespace keltavlo {

// The files that the program carries inside itself, as a folder "res" below the program's own file. Empty for
// any other program's file. Read only.
class ResourceDocument final : public Dynamic<"ResourceDocument", ResourceDocument, FolderDocument> {
public:
    // Builds the tree; nothing of the file that was opened is looked at.
    bool OnDocumentReady() override;
    void ReadContents(InputStream&) override {}
    void WriteContents(OutputStream& out) override; // readOnly
};

} // namespace keltavlo
