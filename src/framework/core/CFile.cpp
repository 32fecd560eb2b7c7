#include "framework/core/CFile.h"

#include "framework/core/Path.h"
#include "framework/core/Text.h"

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace keltavlo {

namespace {

CTime ToTime(const timespec& time) {
    using namespace std::chrono;
    return system_clock::time_point(
        duration_cast<system_clock::duration>(seconds(time.tv_sec) + nanoseconds(time.tv_nsec)));
}

// Returns the length of the leading part of a native path that names an existing file and not a folder, or
// the whole length if there is no such part.
std::size_t DiskLength(const std::string& native) {
    for (std::size_t end = native.find('/', 1); end != std::string::npos; end = native.find('/', end + 1)) {
        CFileStatus status;
        if (!CFile::GetStatus(native.substr(0, end), status)) return native.size();
        if (!status.IsDirectory()) return end;
    }
    return native.size();
}

} // namespace

bool CFile::GetStatus(const std::string& path, CFileStatus& status) {
    const std::string native = FullPath(path); // without a separator at the end
    struct stat info {};
    if (native.empty() || stat(native.c_str(), &info) != 0) return false;
    status = {};
    status.fullName = native;
    if (S_ISDIR(info.st_mode))
        status.attributes |= CFileStatus::directoryAttribute;
    else
        status.size = static_cast<std::uint64_t>(info.st_size);
    if (!MayWrite(native, info)) status.attributes |= CFileStatus::readOnlyAttribute;
    status.created = ToTime(info.st_ctim);
    status.accessed = ToTime(info.st_atim);
    status.modified = ToTime(info.st_mtim);
    return true;
}

std::uint64_t SeekTarget(const CFile& file, std::int64_t offset, CFile::From from) {
    const std::uint64_t base = from == CFile::From::begin     ? 0
                               : from == CFile::From::current ? file.GetPosition()
                                                              : file.GetLength();
    std::int64_t target = 0;
    if (__builtin_add_overflow(base, offset, &target) || target < 0)
        throw CFileException(CFileException::badSeek, CFileException::noOsError, file.GetFilePath());
    return static_cast<std::uint64_t>(target);
}

std::vector<std::byte> ReadAll(CFile& file) {
    const std::uint64_t length = file.GetLength(), position = file.GetPosition();
    std::vector<std::byte> bytes(position < length ? length - position : 0);
    bytes.resize(file.Read(bytes.data(), bytes.size()));
    return bytes;
}

bool MayWrite(const std::string& path, const struct stat& info) {
    errno = EACCES;
    return (info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0 && access(path.c_str(), W_OK) == 0;
}

bool SamePath(const std::string& a, const std::string& b) {
    const std::string first = FullPath(a);
    const std::string second = FullPath(b);
    if (first == second) return true;
    if (!EqualNoCase(first, second)) return false;
    const std::size_t length = DiskLength(first);
    return length < first.size() && first.compare(0, length, second, 0, length) == 0;
}

} // namespace keltavlo
