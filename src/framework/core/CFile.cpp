#include "framework/core/CFile.h"

#include "framework/core/DiskFile.h"
#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"

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

} // namespace

bool CFile::GetStatus(const std::string& path, CFileStatus& status) {
    const std::string native = FullPath(path); // a separator at the end makes no difference
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

void CFile::Remove(const std::string& path) {
    if (unlink(ToNativePath(path).c_str()) != 0) throw CFileException::FromErrno(errno, path);
}

std::unique_ptr<CFile> OpenDiskFile(const std::string& path, unsigned flags, CFileException* failure) {
    try {
        if (flags & CFile::modeCreate) return std::make_unique<ReplacingFile>(path);
        return std::make_unique<DiskFile>(path, flags);
    } catch (const CFileException& exception) {
        if (failure) *failure = exception;
        return nullptr;
    }
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

} // namespace keltavlo
