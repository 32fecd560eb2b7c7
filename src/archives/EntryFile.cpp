#include "archives/EntryFile.h"

namespace keltavlo {

EntryFile::EntryFile(std::shared_ptr<EntryBytes> entryBytes, std::size_t length,
                     std::function<void()> noteWrite, std::weak_ptr<const void> entryLife)
    : CMemFile(std::span(*entryBytes).first(length)), bytes(std::move(entryBytes)),
      beforeWrite(std::move(noteWrite)), life(std::move(entryLife)) {}

void EntryFile::Write(const void* buffer, std::size_t count) {
    beforeWrite();
    CMemFile::Write(buffer, count);
}

void EntryFile::SetLength(std::uint64_t length) {
    beforeWrite();
    CMemFile::SetLength(length);
}

std::unique_ptr<CFile> EntryFile::Duplicate() const {
    return std::make_unique<EntryFile>(bytes, GetLength(), beforeWrite, life);
}

} // namespace keltavlo
