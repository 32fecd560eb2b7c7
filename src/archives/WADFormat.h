#pragma once

#include "framework/core/Text.h"

#include <cstddef>
#include <cstdint>

namespace keltavlo {

// A texture archive (".wad") as it lies in the file: the header, and a directory of records anywhere behind
// it. Little-endian.
struct WADHeader {
    char identification[4]; // one of wadIdentifications
    std::int32_t lumpCount;
    std::uint32_t directoryOffset; // bytes from the start of the file
};
static_assert(sizeof(WADHeader) == 12);

inline constexpr std::string_view wad2Identification = "WAD2", wad3Identification = "WAD3";

// What a lump is.
enum class LumpType : std::uint8_t { palette = 64, wad3Texture = 67, wad2Texture = 68 };

struct WADRecord {
    std::uint32_t offset;   // bytes from the start of the file
    std::uint32_t diskSize; // bytes that the lump takes in the file
    std::uint32_t size;     // bytes of its data
    LumpType type;          // the file's; it may have another value
    std::uint8_t compression;
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

} // namespace keltavlo
