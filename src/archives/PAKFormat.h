#pragma once

#include "framework/core/Text.h"

#include <cstddef>
#include <cstdint>

namespace keltavlo {

// The layout of a pack (".pak"), little-endian: the header, and a directory of records anywhere after it.
struct PAKHeader {
    static constexpr char expectedIdentification[4] = {'P', 'A', 'C', 'K'};

    char identification[4];
    std::uint32_t directoryOffset; // bytes from the start of the file
    std::uint32_t directoryLength; // bytes
};
static_assert(sizeof(PAKHeader) == 12);

struct PAKRecord {
    char name[56];        // relative path, NUL-terminated unless full
    std::uint32_t offset; // bytes from the start of the file
    std::uint32_t length; // bytes

    std::string_view GetPath() const { return UpToNul({name, sizeof name}); }
};
static_assert(sizeof(PAKRecord) == 64);

inline constexpr std::size_t maximumPAKRecords = 4096;

} // namespace keltavlo
