#include "framework/core/CArchive.h"

#include <utility>

namespace keltavlo {

void CArchive::Flush() {
    if (IsStoring()) {
        const std::size_t count = std::exchange(used, 0);
        file.Write(buffer.data(), count);
    } else if (used < filled) {
        file.Seek(-static_cast<std::int64_t>(filled - used), CFile::From::current);
    }
    used = filled = 0;
}

std::size_t CArchive::ReadThrough(std::byte* target, std::size_t count) {
    const std::size_t ahead = filled - used;
    std::memcpy(target, buffer.data() + used, ahead);
    used = filled = 0;
    target += ahead;
    count -= ahead;
    // A large read skips the buffer and fills the caller's memory directly.
    if (count >= buffer.size()) return ahead + file.Read(target, count);
    filled = file.Read(buffer.data(), buffer.size());
    used = std::min(count, filled);
    std::memcpy(target, buffer.data(), used);
    return ahead + used;
}

void CArchive::WriteThrough(const void* source, std::size_t count) {
    Flush();
    if (count >= buffer.size()) {
        file.Write(source, count);
    } else {
        std::memcpy(buffer.data(), source, count);
        used = count;
    }
}

} // namespace keltavlo
