#include "archives/WADDocument.h"

#include "archives/ProgressMeter.h"
#include "archives/StoredEntry.h"
#include "framework/core/CWinApp.h"
#include "res/StringIds.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>

namespace keltavlo {

namespace {

constexpr struct {
    LumpType lumpType;
    std::string_view documentClass; // a name, because pictures belong to a higher layer
} kinds[] = {{LumpType::palette, "LMPDocument"},
             {LumpType::wad3Texture, "MIPDocument"},
             {LumpType::wad2Texture, "MIPDocument"}};

std::string ExtensionOfClass(std::string_view className) {
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (type->GetDocumentClass().name == className) return type->GetDocString(CDocTemplate::filterExt);
    return {};
}

// A lump: its bytes in the file, cut or filled with zeros to the size that the record claims.
class WADEntry final : public StoredEntry {
public:
    WADEntry(const WADRecord& directoryRecord, const WADDocument& document)
        : record(directoryRecord), owner(document) {}
    // Returns the name with the extension of the document type that opens lumps of this type.
    std::string GetName() const override {
        return std::string(FileNameOf(record.GetPath())).append(owner.GetExtension(record.type));
    }

protected:
    Extent GetExtent() const override {
        return {record.offset, std::min(record.diskSize, record.size), record.size};
    }

private:
    WADRecord record;
    const WADDocument& owner;
};

WADHeader ReadHeader(InputStream& in) {
    WADHeader header;
    in.Read(&header, sizeof header);
    const std::string_view found(header.identification, sizeof header.identification);
    if (found != wad2Identification && found != wad3Identification) in.Fail(StreamError::badClass);
    if (header.lumpCount < 0) in.Fail(StreamError::badIndex);
    return header;
}

std::vector<WADRecord> ReadRecords(InputStream& in, const WADHeader& header) {
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

WADDirectory WADDocument::ReadDirectory(InputStream& in) {
    const WADHeader header = ReadHeader(in);
    return {header, ReadRecords(in, header)};
}

void WADDocument::ReadContents(InputStream& in) {
    BeginReading(in);
    extensions.clear();
    for (const auto& [lumpType, documentClass] : kinds)
        extensions.emplace_back(lumpType, ExtensionOfClass(documentClass));
    const WADHeader header = ReadHeader(in);
    std::vector<WADRecord> records;
    {
        ProgressMeter meter(0, header.lumpCount);
        meter.SetText(IDS_READING_DIRECTORY);
        records = ReadRecords(in, header);
        ReserveRootEntries(records.size());
        std::int32_t i = 0;
        for (const WADRecord& record : records) {
            auto entry = std::make_unique<WADEntry>(record, *this);
            if (record.MayHaveFolder())
                AddNamedEntry(record.GetPath(), std::move(entry));
            else
                AddRootEntry(std::move(entry));
            meter.SetPosition(i++);
        }
    }
    CheckExtents(in, records);
}

std::string_view WADDocument::GetExtension(LumpType lumpType) const {
    const auto place = std::ranges::find(extensions, lumpType, [](const auto& row) { return row.first; });
    return place == extensions.end() ? std::string_view() : place->second;
}

void WADDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
