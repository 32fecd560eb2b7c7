#pragma once

#include "archives/FolderDocument.h"
#include "archives/PAKFormat.h"

namespace keltavlo {

// A Quake or Quake II pack (".pak") as a folder. Read only.
class PAKDocument final : public Dynamic<"PAKDocument", PAKDocument, FolderDocument> {
public:
    // badClass without "PACK"; badIndex for a directory length that is no multiple of 64 or above 4096
    // records; endOfFile for a record or an entry past the end.
    static std::vector<PAKRecord> ReadDirectory(InputStream& in);

    // Fails as ReadDirectory does.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // readOnly
};

} // namespace keltavlo
