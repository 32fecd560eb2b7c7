#pragma once

#include <span>
#include <string_view>

namespace keltavlo {

class OutputStream;
struct ArchiveItem;

// Writes a WAD file of the kind `identification` ("WAD2" or "WAD3"): the header, the lumps in their order,
// each at a multiple of four bytes, the directory. The same items give the same bytes. The names fit into the
// directory. Fails as WriteItem does.
void WriteWAD(OutputStream& out, std::string_view identification, std::span<const ArchiveItem> items);

} // namespace keltavlo
