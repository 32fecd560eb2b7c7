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

    // Fails as ZipReader does; badIndex for names of more than 4,095 bytes or in more than 32 folders, and
    // for entries that together are larger than the file. Folders without files are left out.
    void ReadContents(InputStream& in) override;
    void WriteContents(OutputStream& out) override; // readOnly

    // As ZipReader::ReadMember; CFileException also when the archive was changed since it was opened.
    std::vector<std::byte> ReadMember(std::size_t index);

protected:
    void DeleteContents() override;

private:
    std::unique_ptr<ZipReader> reader;
};

// The same of Quake III Arena (".pk3").
class PK3Document final : public Dynamic<"PK3Document", PK3Document, ZIPDocument> {};

} // namespace keltavlo
