#include "tool/archives/ZIPDocument.h"

#include "archives/EntryFile.h"
#include "framework/core/FileFailure.h"
#include "resources/streams/OutputStream.h"
#include "tool/archives/ZipReader.h"

#include <algorithm>

namespace keltavlo {

namespace {

// Longer than any system's paths. Each folder in a name costs memory, so both are limited.
constexpr std::size_t longestName = 4095; // bytes
constexpr std::ptrdiff_t mostFolders = 32;

class ZIPEntry final : public Entry {
public:
    ZIPEntry(std::size_t memberIndex, const ZipMember& member)
        : index(memberIndex), size(member.size), name(FileNameOf(member.name)) {}

    std::string GetName() const override { return name; }

    void GetStatus(EntryStatus& status) const override {
        status = {};
        status.exists = true;
        status.onDisk = false;
        status.size = size;
        status.attributes = CFileStatus::readOnlyAttribute;
    }

    // Fails with accessDenied if the flags ask for writing.
    std::unique_ptr<CFile> OpenEntry(unsigned flags, CFileException* failure,
                                     FolderDocument& owner) override {
        return FileOrNull(failure, [&] {
            if (flags & (CFile::modeWrite | CFile::modeReadWrite))
                throw CFileException(CFileException::accessDenied, CFileException::noOsError, name);
            const auto bytes =
                std::make_shared<EntryBytes>(dynamic_cast<ZIPDocument&>(owner).ReadMember(index));
            return std::make_unique<EntryFile>(
                bytes, bytes->size(), [] {}, bytes);
        });
    }

private:
    std::size_t index;
    std::uint64_t size;
    std::string name;
};

bool IsFolderName(const std::string& name) {
    return name.empty() || IsSeparator(name.back());
}

bool IsAllowedName(const std::string& name) {
    return name.size() <= longestName && std::ranges::count_if(name, IsSeparator) <= mostFolders;
}

} // namespace

ZIPDocument::ZIPDocument() = default;
ZIPDocument::~ZIPDocument() = default;

void ZIPDocument::ReadContents(InputStream& in) {
    BeginReading(in);
    reader = std::make_unique<ZipReader>(in);
    std::uint64_t left = in.GetLength();
    for (std::size_t i = 0; i < reader->GetCount(); ++i) {
        const ZipMember member = reader->GetMember(i);
        // Otherwise entries that share bytes could make a small file arbitrarily large.
        if (member.storedSize > left || !IsAllowedName(member.name)) in.Fail(StreamError::badIndex);
        left -= member.storedSize;
        if (!IsFolderName(member.name)) AddNamedEntry(member.name, std::make_unique<ZIPEntry>(i, member));
    }
}

void ZIPDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::readOnly);
}

std::vector<std::byte> ZIPDocument::ReadMember(std::size_t index) {
    static_cast<void>(GetSource(0, 0));
    return reader->ReadMember(index);
}

void ZIPDocument::DeleteContents() {
    FolderDocument::DeleteContents();
    reader.reset();
}

} // namespace keltavlo
