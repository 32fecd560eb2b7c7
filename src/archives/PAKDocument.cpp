#include "archives/PAKDocument.h"

#include "archives/PAKEntry.h"
#include "resources/streams/OutputStream.h"

#include <cstring>

namespace keltavlo {

namespace {

bool IsBacked(const PAKRecord& record, std::uint64_t fileLength) {
    return record.length == 0 || std::uint64_t{record.offset} + record.length <= fileLength;
}

} // namespace

std::vector<PAKRecord> PAKDocument::ReadDirectory(InputStream& in) {
    PAKHeader header;
    in.Read(&header, sizeof header);
    if (std::memcmp(header.identification, PAKHeader::expectedIdentification, sizeof header.identification) !=
        0)
        in.Fail(StreamError::badClass);
    if (header.directoryLength % sizeof(PAKRecord) != 0) in.Fail(StreamError::badIndex);
    const std::size_t count = header.directoryLength / sizeof(PAKRecord);
    if (count > maximumPAKRecords) in.Fail(StreamError::badIndex);
    in.Seek(header.directoryOffset);
    if (header.directoryLength > in.GetRemaining()) in.FailUnnamed(StreamError::endOfFile);
    std::vector<PAKRecord> records(count);
    in.Read(records.data(), header.directoryLength);
    const std::uint64_t fileLength = in.GetLength();
    for (const PAKRecord& record : records)
        if (!IsBacked(record, fileLength)) in.FailUnnamed(StreamError::endOfFile);
    return records;
}

void PAKDocument::ReadContents(InputStream& in) {
    BeginReading(in);
    for (const PAKRecord& record : ReadDirectory(in))
        AddNamedEntry(record.GetPath(), std::make_unique<PAKEntry>(record));
}

void PAKDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
