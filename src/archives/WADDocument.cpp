#include "archives/WADDocument.h"

#include "archives/ProgressMeter.h"
#include "archives/StoredEntry.h"
#include "framework/core/CWinApp.h"
#include "framework/core/Text.h"
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

// A record of a WAD file's directory, as it lies in the file; little-endian.
struct WADRecord {
    std::uint32_t offset;   // bytes from the start of the file
    std::uint32_t diskSize; // bytes that the lump takes in the file
    std::uint32_t size;     // bytes of its data
    std::uint8_t type;
    std::uint8_t compression; // never looked at
    std::uint8_t padding[2];
    char name[16]; // ended by a NUL when shorter

    std::string_view GetPath() const { return UpToNul({name, sizeof name}); }
    // False when the name has no folder. Looks at the whole field and not for its end: one step for all 16
    // characters, of which large files have tens of thousands.
    bool MayHaveFolder() const {
        unsigned found = 0;
        for (const char c : name) found |= unsigned{c == '/'} | unsigned{c == '\\'} | unsigned{c == ':'};
        return found != 0;
    }
};
static_assert(sizeof(WADRecord) == 32);

constexpr struct {
    std::uint8_t lumpType;
    std::string_view documentClass; // by name: pictures are documents of a higher layer
} kinds[] = {{64, "LMPDocument"}, {67, "MIPDocument"}, {68, "MIPDocument"}};

std::string ExtensionOfClass(std::string_view className) {
    for (const CDocTemplate* type : CWinApp::Get().GetTemplates())
        if (type->GetDocumentClass().name == className) return type->GetDocString(CDocTemplate::filterExt);
    return {};
}

// A lump, its bytes as they lie in the file, cut or filled with zeros to the size that the record claims.
class WADEntry final : public StoredEntry {
public:
    WADEntry(const WADRecord& directoryRecord, const WADDocument& document)
        : record(directoryRecord), owner(document) {}
    // The name with the extension of the document type that opens lumps of this kind.
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
    extensions.clear();
    for (const auto& [lumpType, documentClass] : kinds)
        extensions.emplace_back(lumpType, ExtensionOfClass(documentClass));
    const Header header = ReadHeader(in);
    std::vector<WADRecord> records;
    {
        ProgressMeter meter(0, header.lumpCount);
        meter.SetText(IDS_READING_DIRECTORY);
        records = ReadDirectory(in, header);
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

std::string_view WADDocument::GetExtension(std::uint8_t lumpType) const {
    const auto place = std::ranges::find(extensions, lumpType, [](const auto& row) { return row.first; });
    return place == extensions.end() ? std::string_view() : place->second;
}

void WADDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

} // namespace keltavlo
