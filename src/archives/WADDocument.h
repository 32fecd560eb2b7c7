#pragma once

#include "archives/FolderDocument.h"
#include "archives/WADFormat.h"

namespace keltavlo {

struct WADDirectory {
    WADHeader header;
    std::vector<WADRecord> records;
};

// A Quake or Half-Life texture archive (".wad") as a folder. Read only.
class WADDocument final : public Dynamic<"WADDocument", WADDocument, FolderDocument> {
public:
    // Fails as ReadContents does, except for lumps past the end.
    static WADDirectory ReadDirectory(InputStream& in);

    // badClass without "WAD2" or "WAD3"; badIndex for a negative number of lumps; endOfFile for a record or a
    // lump past the end. A lump that claims more data than the file is long fails only when it is opened.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // readOnly
    bool HasLumps() const override { return true; }

    // The extension of the document type that opens lumps of the type; empty for a type that none opens.
    std::string_view GetExtension(LumpType lumpType) const;

private:
    // By lump type, looked up once for all lumps of the file.
    std::vector<std::pair<LumpType, std::string>> extensions;
};

} // namespace keltavlo
