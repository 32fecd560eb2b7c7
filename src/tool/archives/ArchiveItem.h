#pragma once

#include "archives/WADFormat.h"

#include <functional>
#include <string>
#include <vector>

namespace keltavlo {

class OutputStream;

// An entry of an archive that is to be written.
struct ArchiveItem {
    std::string name;           // in a pack a path with "/", in a WAD the name of a lump
    LumpType type = LumpType{}; // in a WAD
    // Returns the bytes. Called once, when they are written, so that a large archive is never in memory as
    // its parts, too. May throw.
    std::function<std::vector<std::byte>()> read;
};

// Where the bytes of an item are in the file.
struct ItemPlace {
    std::uint32_t offset, length; // bytes
};

// Writes the bytes of the item at the stream's position. Fails with a sentence when the archive becomes
// larger than the games can read: 2 GiB.
ItemPlace WriteItem(OutputStream& out, const ArchiveItem& item);

// Fills a zeroed field of an archive's directory with a name, which fits into it.
template <std::size_t size>
void PutItemName(char (&field)[size], const std::string& name) {
    name.copy(field, size);
}

} // namespace keltavlo
