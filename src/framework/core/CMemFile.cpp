#include "framework/core/CMemFile.h"

#include <algorithm>
#include <cstring>

namespace keltavlo {

std::size_t CMemFile::Read(void* buffer, std::size_t count) {
    const std::span<const std::byte> bytes = Bytes();
    if (position >= bytes.size() || count == 0) return 0;
    const std::size_t length = std::min<std::uint64_t>(count, bytes.size() - position);
    std::memcpy(buffer, bytes.data() + position, length);
    position += length;
    return length;
}

void CMemFile::Write(const void* buffer, std::size_t count) {
    if (count == 0) return;
    if (!fixed && position + count > own.size()) own.resize(position + count);
    std::byte* bytes = fixed ? attached.data() : own.data();
    const std::uint64_t length = GetLength();
    const std::size_t room = position < length ? static_cast<std::size_t>(length - position) : 0;
    const std::size_t fitting = std::min(count, room);
    std::memcpy(bytes + position, buffer, fitting);
    position += fitting;
    if (fitting < count) throw CMemoryException(GetFullSentence());
}

std::uint64_t CMemFile::Seek(std::int64_t offset, From from) {
    position = SeekTarget(*this, offset, from);
    return position;
}

void CMemFile::SetLength(std::uint64_t length) {
    if (length == GetLength()) return;
    if (fixed) throw CMemoryException(GetFullSentence());
    own.resize(length);
}

std::unique_ptr<CFile> CMemFile::Duplicate() const {
    if (fixed) return std::make_unique<CMemFile>(attached);
    auto copy = std::make_unique<CMemFile>();
    copy->own = own;
    return copy;
}

} // namespace keltavlo
