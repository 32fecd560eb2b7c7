#pragma once

#include "framework/core/Text.h"

#include <cstddef>
#include <cstdint>

namespace keltavlo {

// The layout of a texture archive (".wad"), little-endian: the header, and a directory of records anywhere
// after it.
struct WADHeader {
    char identification[4]; // one of wadIdentifications
    std::int32_t lumpCount;
    std::uint32_t directoryOffset; // bytes from the start of the file
};
static_assert(sizeof(WADHeader) == 12);

inline constexpr std::string_view wad2Identification = "WAD2", wad3Identification = "WAD3";

// The types of lumps that the program opens. Files may contain others.
enum class LumpType : std::uint8_t { palette = 64, wad3Texture = 67, wad2Texture = 68 };

struct WADRecord {
    std::uint32_t offset;   // bytes from the start of the file
    std::uint32_t diskSize; // bytes in the file
    std::uint32_t size;     // bytes of the data
    LumpType type;          // unchecked, may have other values
    std::uint8_t compression;
    std::uint8_t padding[2];
    char name[16]; // NUL-terminated unless full

    std::string_view GetPath() const { return UpToNul({name, sizeof name}); }
    // Returns false if the name has no folder. Checks all 16 characters, even those after the NUL, because
    // that is a single step; large files have tens of thousands of names.
    bool MayHaveFolder() const {
        unsigned found = 0;
        for (const char c : name) found |= unsigned{c == '/'} | unsigned{c == '\\'} | unsigned{c == ':'};
        return found != 0;
    }
};
static_assert(sizeof(WADRecord) == 32);

} // namespace keltavlo
