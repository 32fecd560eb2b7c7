#pragma once

#include "archives/FolderDocument.h"

namespace keltavlo {

// A Quake or Half-Life texture archive (".wad") as a folder. Read only.
class WADDocument final : public Dynamic<"WADDocument", WADDocument, FolderDocument> {
public:
    // badClass without "WAD2" or "WAD3"; badIndex for a negative number of lumps; endOfFile for a record or a
    // lump past the end. A lump that claims more data than the file is long fails only when it is opened.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // readOnly
};

} // namespace keltavlo
