#pragma once

#include <span>

namespace keltavlo {

class OutputStream;
struct ArchiveItem;

// Writes a pack: the header, the items' bytes in their order, the directory. The same items give the same
// bytes. The names fit into the directory, and the items are no more than it can have. Fails as WriteItem
// does.
void WritePAK(OutputStream& out, std::span<const ArchiveItem> items);

} // namespace keltavlo
