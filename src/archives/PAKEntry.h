#pragma once

#include "archives/StoredEntry.h"
#include "framework/core/Path.h"
#include "framework/core/Text.h"

namespace keltavlo {

// A record of a pack's directory, as it lies in the file; little-endian.
struct PAKRecord {
    char name[56];        // relative path, ended by a NUL when shorter
    std::uint32_t offset; // bytes from the start of the file
    std::uint32_t length; // bytes

    std::string_view GetPath() const { return UpToNul({name, sizeof name}); }
};
static_assert(sizeof(PAKRecord) == 64);

class PAKEntry final : public StoredEntry {
public:
    explicit PAKEntry(const PAKRecord& directoryRecord) : record(directoryRecord) {}
    std::string GetName() const override { return std::string(FileNameOf(record.GetPath())); }

protected:
    Extent GetExtent() const override { return {record.offset, record.length, record.length}; }

private:
    PAKRecord record;
};

} // namespace keltavlo
