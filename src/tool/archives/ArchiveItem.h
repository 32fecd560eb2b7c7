#pragma once

#include "archives/WADFormat.h"

#include <functional>
#include <string>
#include <vector>

namespace keltavlo {

class OutputStream;

// An entry of an archive to be written.
struct ArchiveItem {
    std::string name;           // in a pack a path with "/", in a WAD the name of a lump
    LumpType type = LumpType{}; // in a WAD
    // Returns the bytes. Called only when they are written, so that the parts of a large archive are not all
    // in memory. May throw.
    std::function<std::vector<std::byte>()> read;
};

// The position of an item's bytes in the file.
struct ItemPlace {
    std::uint32_t offset, length; // bytes
};

// Writes the bytes of the item at the stream's position. Fails with a sentence if the archive becomes larger
// than the games can read: 2 GiB.
ItemPlace WriteItem(OutputStream& out, const ArchiveItem& item);

// Copies a name into a zeroed field of an archive's directory. The name must fit.
template <std::size_t size>
void PutItemName(char (&field)[size], const std::string& name) {
    name.copy(field, size);
}

} // namespace keltavlo
