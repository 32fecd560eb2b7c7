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
    // Throws like ReadContents, except for lumps past the end.
    static WADDirectory ReadDirectory(InputStream& in);

    // Throws badClass without "WAD2" or "WAD3", badIndex for a negative number of lumps, endOfFile for a
    // record or a lump past the end. If a lump claims more data than the whole file has, only opening the
    // lump fails.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // throws readOnly
    bool HasLumps() const override { return true; }

    // Returns the extension of the document type that opens lumps of the type; empty if there is none.
    std::string_view GetExtension(LumpType lumpType) const;

private:
    // By lump type, looked up once for all lumps of the file.
    std::vector<std::pair<LumpType, std::string>> extensions;
};

} // namespace keltavlo
