#include "framework/core/FileStamp.h"

#include "framework/core/CFile.h"
#include "framework/core/Path.h"

#include <array>
#include <functional>
#include <string_view>
#include <sys/stat.h>

namespace keltavlo {

FileState::FileState(const struct stat& info)
    : device(info.st_dev), inode(info.st_ino), size(static_cast<std::uint64_t>(info.st_size)),
      seconds(info.st_mtim.tv_sec), nanoseconds(info.st_mtim.tv_nsec) {}

std::optional<FileState> FileState::Of(const std::string& path) {
    struct stat info {};
    const bool isFile = stat(FullPath(path).c_str(), &info) == 0 && S_ISREG(info.st_mode);
    return isFile ? std::optional<FileState>(info) : std::nullopt;
}

std::optional<FileState> FileState::Find(const std::string& path) {
    for (std::string place = path; !place.empty(); place = ParentOf(place)) {
        struct stat info {};
        if (stat(ToNativePath(place).c_str(), &info) != 0) continue;
        return S_ISREG(info.st_mode) ? std::optional<FileState>(info) : std::nullopt;
    }
    return std::nullopt;
}

std::uint64_t DigestOf(CFile& file) {
    constexpr std::uint64_t multiplier = 0x9E3779B97F4A7C15; // odd, so that no digest is lost
    std::array<char, 16384> part;
    std::uint64_t digest = file.GetLength();
    file.Seek(0, CFile::From::begin);
    while (const std::size_t length = file.Read(part.data(), part.size()))
        digest = digest * multiplier ^ std::hash<std::string_view>()({part.data(), length});
    return digest;
}

} // namespace keltavlo
