#pragma once

#include "archives/StoredEntry.h"
#include "framework/core/Text.h"

namespace keltavlo {

// A record of a WAD file's directory, as it lies in the file; little-endian.
struct WADRecord {
    std::uint32_t offset;   // bytes from the start of the file
    std::uint32_t diskSize; // bytes that the lump takes in the file
    std::uint32_t size;     // bytes of its data
    std::uint8_t type;
    std::uint8_t compression; // never looked at
    std::uint8_t padding[2];
    char name[16]; // ended by a NUL when shorter

    std::string_view GetPath() const { return UpToNul({name, sizeof name}); }
    // False when the name has no folder. Looks at the whole field and not for its end: one step for all 16
    // characters, of which large files have tens of thousands.
    bool MayHaveFolder() const {
        unsigned found = 0;
        for (const char c : name) found |= unsigned{c == '/'} | unsigned{c == '\\'} | unsigned{c == ':'};
        return found != 0;
    }
};
static_assert(sizeof(WADRecord) == 32);

// A lump, its bytes as they lie in the file, cut or filled with zeros to the size that the record claims.
class WADEntry final : public StoredEntry {
public:
    explicit WADEntry(const WADRecord& directoryRecord) : record(directoryRecord) {}
    // The name with the extension of the document type that opens lumps of this kind.
    std::string GetName() const override;

protected:
    Extent GetExtent() const override;

private:
    WADRecord record;
};

} // namespace keltavlo
