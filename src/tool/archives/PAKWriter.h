#pragma once

#include <span>

namespace keltavlo {

class OutputStream;
struct ArchiveItem;

// Writes a pack: the header, the items' bytes in order, the directory. The same items give the same bytes.
// The directory must have room for all items and their names. Throws like WriteItem.
void WritePAK(OutputStream& out, std::span<const ArchiveItem> items);

} // namespace keltavlo
