#pragma once

#include <span>
#include <string_view>

namespace keltavlo {

class OutputStream;
struct ArchiveItem;

// Writes a WAD file with `identification` "WAD2" or "WAD3": the header, the lumps in order, each at a
// multiple of four bytes, the directory. The same items give the same bytes. The names must fit into the
// directory. Throws like WriteItem.
void WriteWAD(OutputStream& out, std::string_view identification, std::span<const ArchiveItem> items);

} // namespace keltavlo
