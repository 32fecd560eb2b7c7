#include "framework/core/ReplacingFile.h"

#include "framework/core/DiskFile.h"
#include "framework/core/FileAttributes.h"
#include "framework/core/Path.h"
#include "framework/core/TemporaryFile.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace keltavlo {

namespace {

[[noreturn]] void ThrowErrno(const std::string& path) {
    throw CFileException::FromErrno(errno, path);
}

// Follows links. Returns the path itself if nothing is there yet.
std::string BehindLinks(const std::string& path) {
    char resolved[PATH_MAX];
    return realpath(path.c_str(), resolved) ? resolved : path;
}

// Overwrites the file itself. Reserves the room before the first old byte goes, and puts the old bytes back
// if writing fails nevertheless.
void WriteInPlace(const std::string& target, std::span<const std::byte> bytes) {
    DiskFile oldFile(target, CFile::modeRead);
    const std::vector<std::byte> old = ReadAll(oldFile);
    Descriptor file(open(target.c_str(), O_WRONLY | O_CLOEXEC));
    if (!file.IsOpen()) ThrowErrno(target);
    const auto length = static_cast<off_t>(bytes.size());
    if (length > 0 && fallocate(file.Get(), FALLOC_FL_KEEP_SIZE, 0, length) != 0 && errno == ENOSPC)
        ThrowErrno(target);
    try {
        WriteAll(file.Get(), bytes, target);
        if (ftruncate(file.Get(), length) != 0 || fsync(file.Get()) != 0) ThrowErrno(target);
    } catch (const CFileException&) {
        if (lseek(file.Get(), 0, SEEK_SET) == 0) WriteAll(file.Get(), old, target);
        if (ftruncate(file.Get(), static_cast<off_t>(old.size())) != 0) ThrowErrno(target);
        throw;
    }
    if (file.Close() != 0) ThrowErrno(target);
}

} // namespace

void FlushFolder(const std::string& folder) {
    // The rename has happened; a folder that cannot be flushed is no reason to report a failed save.
    Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.IsOpen()) static_cast<void>(fsync(descriptor.Get()));
}

bool FolderIsWritable(const std::string& target) {
    const std::string folder = ParentOf(target);
    return access(folder.empty() ? "." : folder.c_str(), W_OK | X_OK) == 0;
}

ReplacingFile::ReplacingFile(const std::string& path) : targetPath(FullPath(path)) {
    struct stat info {};
    if (stat(targetPath.c_str(), &info) != 0) {
        if (errno != ENOENT) ThrowErrno(targetPath);
        if (!FolderIsWritable(targetPath)) {
            if (errno == ENOENT) throw CFileException(CFileException::badPath, errno, targetPath);
            ThrowErrno(targetPath);
        }
        return;
    }
    if (!S_ISREG(info.st_mode))
        throw CFileException(CFileException::invalidFile, CFileException::noOsError, targetPath);
    if (!MayWrite(targetPath, info)) ThrowErrno(targetPath);
}

void ReplacingFile::Close() {
    const std::string target = BehindLinks(targetPath);
    struct stat old {};
    const bool existed = stat(target.c_str(), &old) == 0;
    if (existed && (old.st_nlink > 1 || !FolderIsWritable(target))) {
        WriteInPlace(target, Bytes());
        return;
    }
    TemporaryFile temporary(target);
    if (existed) TakeOverAttributes(temporary.GetDescriptor(), old, target);
    WriteAll(temporary.GetDescriptor(), Bytes(), target);
    if (fsync(temporary.GetDescriptor()) != 0) ThrowErrno(target);
    const std::string folder = ParentOf(target);
    temporary.RenameTo(target); // nothing may fail after this
    FlushFolder(folder);
}

std::unique_ptr<CFile> OpenDiskFile(const std::string& path, unsigned flags) {
    if (flags & CFile::modeCreate) return std::make_unique<ReplacingFile>(path);
    return std::make_unique<DiskFile>(path, flags);
}

} // namespace keltavlo
