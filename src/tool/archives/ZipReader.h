#pragma once

#include "tool/archives/ZipBytes.h"

#include <string>
#include <vector>

namespace keltavlo {

class InputStream;

// What the directory of a ZIP file tells of an entry. The numbers are the file's and may be anything.
struct ZipMember {
    std::string name;             // as the file spells it
    std::uint64_t size = 0;       // bytes
    std::uint64_t storedSize = 0; // bytes that it takes in the file
    std::uint16_t method = 0;
    bool isEncrypted = false;
};

// Reads the entries of a ZIP file: stored and deflated ones.
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
    // The bytes of an entry. CFileException with a sentence for an entry that is encrypted, compressed by
    // another method, damaged, or of a size that its stored bytes do not back: more than 16 MiB and 128 times
    // as many.
    std::vector<std::byte> ReadMember(std::size_t index);

private:
    void CheckReadable(const ZipMember& member) const;

    ZipBytes bytes;
    zip_t* archive;
};

} // namespace keltavlo
