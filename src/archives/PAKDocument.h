#pragma once

#include "archives/FolderDocument.h"
#include "archives/PAKFormat.h"

namespace keltavlo {

// A Quake or Quake II pack (".pak") as a folder. Read only.
class PAKDocument final : public Dynamic<"PAKDocument", PAKDocument, FolderDocument> {
public:
    // Throws badClass without "PACK", badIndex if the directory's length is no multiple of 64 or above 4096
    // records, endOfFile for a record or an entry past the end.
    static std::vector<PAKRecord> ReadDirectory(InputStream& in);

    // Throws like ReadDirectory.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // throws readOnly
};

} // namespace keltavlo
