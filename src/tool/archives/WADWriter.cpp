#include "tool/archives/WADWriter.h"

#include "resources/streams/OutputStream.h"
#include "tool/archives/ArchiveItem.h"

namespace keltavlo {

namespace {

// The games read numbers in place, so these must be aligned.
void AlignToNumbers(OutputStream& out) {
    constexpr std::byte zeros[sizeof(std::uint32_t)]{};
    const std::uint64_t surplus = out.GetPosition() % sizeof zeros;
    if (surplus > 0) out.Write(zeros, sizeof zeros - surplus);
}

} // namespace

void WriteWAD(OutputStream& out, std::string_view identification, std::span<const ArchiveItem> items) {
    WADHeader header{};
    out.Write(&header, sizeof header);
    std::vector<WADRecord> directory;
    for (const ArchiveItem& item : items) {
        const ItemPlace place = WriteItem(out, item);
        AlignToNumbers(out);
        WADRecord& record = directory.emplace_back();
        PutItemName(record.name, item.name);
        record.offset = place.offset;
        record.diskSize = record.size = place.length;
        record.type = item.type;
    }
    identification.copy(header.identification, sizeof header.identification);
    header.lumpCount = static_cast<std::int32_t>(directory.size());
    header.directoryOffset = static_cast<std::uint32_t>(out.GetPosition());
    out.Write(directory.data(), directory.size() * sizeof(WADRecord));
    out.Seek(0);
    out.Write(&header, sizeof header);
}

} // namespace keltavlo
