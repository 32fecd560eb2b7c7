#include "archives/WADDocument.h"

#include "archives/ProgressMeter.h"
#include "archives/WADEntry.h"
#include "res/StringIds.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>

namespace keltavlo {

namespace {

struct Header {
    char identification[4];
    std::int32_t lumpCount;
    std::uint32_t directoryOffset; // bytes from the start of the file
};
static_assert(sizeof(Header) == 12);

constexpr std::string_view identifications[] = {"WAD2", "WAD3"};

Header ReadHeader(InputStream& in) {
    Header header;
    in.Read(&header, sizeof header);
    const std::string_view found(header.identification, sizeof header.identification);
    if (std::ranges::find(identifications, found) == std::end(identifications))
        in.Fail(StreamError::badClass);
    if (header.lumpCount < 0) in.Fail(StreamError::badIndex);
    return header;
}

std::vector<WADRecord> ReadDirectory(InputStream& in, const Header& header) {
    const auto count = static_cast<std::size_t>(header.lumpCount);
    in.Seek(header.directoryOffset);
    if (count > in.GetRemaining() / sizeof(WADRecord)) in.Fail(StreamError::endOfFile);
    std::vector<WADRecord> records(count);
    in.Read(records.data(), count * sizeof(WADRecord));
    return records;
}

void CheckExtents(const InputStream& in, const std::vector<WADRecord>& records) {
    ProgressMeter meter(0, static_cast<std::int32_t>(records.size()));
    meter.SetText(IDS_READING_FILES);
    const std::uint64_t fileLength = in.GetLength();
    for (const WADRecord& record : records) {
        if (record.diskSize > 0 && std::uint64_t{record.offset} + record.diskSize > fileLength)
            in.Fail(StreamError::endOfFile);
        meter.Step();
    }
}

} // namespace

void WADDocument::ReadContents(InputStream& in) {
    BeginReading(in);
    const Header header = ReadHeader(in);
    std::vector<WADRecord> records;
    {
        ProgressMeter meter(0, header.lumpCount);
        meter.SetText(IDS_READING_DIRECTORY);
        records = ReadDirectory(in, header);
        ReserveRootEntries(records.size());
        std::int32_t i = 0;
        for (const WADRecord& record : records) {
            auto entry = std::make_unique<WADEntry>(record);
            if (record.MayHaveFolder())
                AddNamedEntry(record.GetPath(), std::move(entry));
            else
                AddRootEntry(std::move(entry));
            meter.SetPosition(i++);
        }
    }
    CheckExtents(in, records);
}

void WADDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
