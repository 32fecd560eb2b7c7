#include "archives/PAKDocument.h"

#include "archives/PAKEntry.h"
#include "resources/streams/OutputStream.h"

#include <cstring>

namespace keltavlo {

namespace {

struct Header {
    char identification[4];
    std::uint32_t directoryOffset; // bytes from the start of the file
    std::uint32_t directoryLength; // bytes
};
static_assert(sizeof(Header) == 12);

constexpr char identification[] = {'P', 'A', 'C', 'K'};
constexpr std::size_t maximumRecordCount = 4096;

std::vector<PAKRecord> ReadDirectory(InputStream& in) {
    Header header;
    in.Read(&header, sizeof header);
    if (std::memcmp(header.identification, identification, sizeof identification) != 0)
        in.Fail(StreamError::badClass);
    if (header.directoryLength % sizeof(PAKRecord) != 0) in.Fail(StreamError::badIndex);
    const std::size_t count = header.directoryLength / sizeof(PAKRecord);
    if (count > maximumRecordCount) in.Fail(StreamError::badIndex);
    in.Seek(header.directoryOffset);
    if (header.directoryLength > in.GetRemaining()) in.FailUnnamed(StreamError::endOfFile);
    std::vector<PAKRecord> records(count);
    in.Read(records.data(), header.directoryLength);
    return records;
}

bool IsBacked(const PAKRecord& record, std::uint64_t fileLength) {
    return record.length == 0 || std::uint64_t{record.offset} + record.length <= fileLength;
}

} // namespace

void PAKDocument::ReadContents(InputStream& in) {
    BeginReading(in);
    const std::vector<PAKRecord> records = ReadDirectory(in);
    const std::uint64_t fileLength = in.GetLength();
    for (const PAKRecord& record : records) {
        if (!IsBacked(record, fileLength)) in.FailUnnamed(StreamError::endOfFile);
        AddNamedEntry(record.GetPath(), std::make_unique<PAKEntry>(record));
    }
}

void PAKDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
