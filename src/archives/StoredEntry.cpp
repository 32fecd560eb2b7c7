#include "archives/StoredEntry.h"

#include "archives/FolderDocument.h"
#include "framework/core/FileFailure.h"

namespace keltavlo {

namespace {

// Buffers consist of whole 32-bit words.
std::size_t RoundedUp(std::uint64_t length) {
    return (length + 3) / 4 * 4;
}

} // namespace

void StoredEntry::GetStatus(EntryStatus& status) const {
    status = {};
    status.exists = true;
    status.onDisk = false;
    status.size = GetExtent().length;
}

std::unique_ptr<CFile> StoredEntry::OpenEntry(unsigned, CFileException* failure, FolderDocument& owner) {
    return FileOrNull(failure, [&] { return MakeFile(owner); });
}

std::unique_ptr<CFile> StoredEntry::MakeFile(FolderDocument& owner) {
    const std::shared_ptr<EntryBytes> bytes = Load(owner);
    // The reference to the owner is valid as long as the entry exists.
    const auto noteWrite = [life = std::weak_ptr(use), weak = std::weak_ptr(bytes), &owner,
                            path = owner.GetRootName()] {
        const std::shared_ptr<Use> entry = life.lock();
        if (!entry) FolderDocument::ThrowChanged(path);
        entry->changed = weak.lock();
        owner.SetModifiedFlag();
    };
    return std::make_unique<EntryFile>(bytes, GetExtent().length, noteWrite, use);
}

std::shared_ptr<EntryBytes> StoredEntry::Load(FolderDocument& owner) {
    if (!use) use = std::make_shared<Use>();
    if (std::shared_ptr<EntryBytes> bytes = use->loaded.lock()) return bytes;
    const Extent extent = GetExtent();
    CFile& file = owner.GetSource(extent.offset, extent.stored);
    // The file must be at least `length` bytes long, so that a claim of gigabytes of zeros allocates nothing.
    if (extent.length > extent.stored) static_cast<void>(owner.GetSource(0, extent.length));
    auto bytes = std::make_shared<EntryBytes>(RoundedUp(extent.length));
    file.Seek(static_cast<std::int64_t>(extent.offset), CFile::From::begin);
    if (file.Read(bytes->data(), extent.stored) != extent.stored)
        throw CFileException(CFileException::endOfFile, CFileException::noOsError, GetName());
    use->loaded = bytes;
    return bytes;
}

} // namespace keltavlo
