#include "tool/archives/PAKWriter.h"

#include "archives/PAKFormat.h"
#include "resources/streams/OutputStream.h"
#include "tool/archives/ArchiveItem.h"

namespace keltavlo {

void WritePAK(OutputStream& out, std::span<const ArchiveItem> items) {
    PAKHeader header{};
    out.Write(&header, sizeof header);
    std::vector<PAKRecord> directory;
    for (const ArchiveItem& item : items) {
        const ItemPlace place = WriteItem(out, item);
        PAKRecord& record = directory.emplace_back();
        PutItemName(record.name, item.name);
        record.offset = place.offset;
        record.length = place.length;
    }
    std::ranges::copy(PAKHeader::expectedIdentification, header.identification);
    header.directoryOffset = static_cast<std::uint32_t>(out.GetPosition());
    header.directoryLength = static_cast<std::uint32_t>(directory.size() * sizeof(PAKRecord));
    out.Write(directory.data(), header.directoryLength);
    out.Seek(0);
    out.Write(&header, sizeof header);
}

} // namespace keltavlo
