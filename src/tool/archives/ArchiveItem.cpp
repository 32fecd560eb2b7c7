#include "tool/archives/ArchiveItem.h"

#include "resources/streams/OutputStream.h"

#include <limits>

namespace keltavlo {

ItemPlace WriteItem(OutputStream& out, const ArchiveItem& item) {
    const std::vector<std::byte> bytes = item.read();
    const std::uint64_t offset = out.GetPosition();
    // The games store offsets as signed numbers.
    if (offset + bytes.size() > std::numeric_limits<std::int32_t>::max())
        out.FailUnnamed(StreamError::badIndex, "The archive would be larger than 2 GiB.");
    out.Write(bytes.data(), bytes.size());
    return {static_cast<std::uint32_t>(offset), static_cast<std::uint32_t>(bytes.size())};
}

} // namespace keltavlo
