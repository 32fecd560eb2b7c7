#pragma once

#include "archives/FolderDocument.h"

#include <cstddef>
#include <vector>

namespace keltavlo {

class ZipReader;

// A ZIP archive (".zip") as a folder. Read only.
class ZIPDocument : public Dynamic<"ZIPDocument", ZIPDocument, FolderDocument> {
public:
    ZIPDocument();
    ~ZIPDocument() override;

    // Throws like ZipReader; also badIndex for names of more than 4,095 bytes or in more than 32 folders, and
    // for entries that together are larger than the file. Skips folders without files.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // throws readOnly

    // Works like ZipReader::ReadMember. Throws CFileException also for an archive that changed while open.
    std::vector<std::byte> ReadMember(std::size_t index);

protected:
    void DeleteContents() override;

private:
    std::unique_ptr<ZipReader> reader;
};

// The same archive for Quake III Arena (".pk3").
class PK3Document final : public Dynamic<"PK3Document", PK3Document, ZIPDocument> {};

} // namespace keltavlo
