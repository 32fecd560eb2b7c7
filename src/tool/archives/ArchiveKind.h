#pragma once

#include "archives/WADFormat.h"

namespace keltavlo {

// The archives that can be written.
enum class ArchiveKind { pak, wad2, wad3 };

constexpr bool IsWAD(ArchiveKind kind) {
    return kind != ArchiveKind::pak;
}

// Returns the identification of a kind of WAD.
constexpr std::string_view IdentificationOf(ArchiveKind kind) {
    return kind == ArchiveKind::wad2 ? wad2Identification : wad3Identification;
}
constexpr LumpType TextureTypeOf(ArchiveKind kind) {
    return kind == ArchiveKind::wad2 ? LumpType::wad2Texture : LumpType::wad3Texture;
}

} // namespace keltavlo
