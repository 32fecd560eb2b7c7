#pragma once

#include "tool/archives/ZipBytes.h"

#include <string>
#include <vector>

namespace keltavlo {

class InputStream;

// An entry in the directory of a ZIP file. The numbers are unchecked.
struct ZipMember {
    std::string name;             // as spelled in the file
    std::uint64_t size = 0;       // bytes
    std::uint64_t storedSize = 0; // bytes in the file
    std::uint16_t method = 0;
    bool isEncrypted = false;
};

// Reads the stored and deflated entries of a ZIP file.
class ZipReader {
public:
    // Reads the directory. Calls Fail(badClass) for a file that is not a ZIP archive, badIndex for a damaged
    // one and endOfFile for a short one.
    explicit ZipReader(InputStream& in);
    ~ZipReader();
    ZipReader(const ZipReader&) = delete;
    ZipReader& operator=(const ZipReader&) = delete;

    std::size_t GetCount() const;
    ZipMember GetMember(std::size_t index) const;
    // Returns the bytes of an entry. Throws CFileException, with a sentence, for an entry that is encrypted,
    // compressed by another method, damaged, or larger than 16 MiB plus 128 times its stored bytes.
    std::vector<std::byte> ReadMember(std::size_t index);

private:
    void CheckReadable(const ZipMember& member) const;

    ZipBytes bytes;
    zip_t* archive;
};

} // namespace keltavlo
