#include "tool/output/StagedFile.h"

#include "framework/core/FileAttributes.h"
#include "framework/core/Path.h"
#include "framework/core/ReplacingFile.h"
#include "tool/output/TemporaryNames.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace keltavlo {

namespace {

[[noreturn]] void ThrowErrno(const std::string& path) {
    throw CFileException::FromErrno(errno, path);
}

// Returns the path by which an open file without a name can be linked.
std::string LinkPath(const Descriptor& file) {
    return "/proc/self/fd/" + std::to_string(file.Get());
}

// Links an unnamed file. Returns false, with errno set, if that fails.
bool LinkUnnamed(const Descriptor& file, const std::string& path) {
    // Faster, but older systems allow it only to the superuser.
    if (linkat(file.Get(), "", AT_FDCWD, path.c_str(), AT_EMPTY_PATH) == 0) return true;
    return errno == ENOENT &&
           linkat(AT_FDCWD, LinkPath(file).c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW) == 0;
}

// Whether this error of open() means that the file system, or a system without /proc, has no unnamed files.
bool MeansNoUnnamedFiles(int error) {
    return error == EOPNOTSUPP || error == EISDIR || error == ENOENT || error == EINVAL;
}

bool HasProcess() {
    static const bool has = access("/proc/self/fd", X_OK) == 0;
    return has;
}

// The disk already works on a large file while the next one is made, which shortens the sync. For a small
// file that costs more than it saves.
constexpr std::uint64_t largeSize = 64 << 10; // bytes

void StartWriting(const Descriptor& file) {
    static_cast<void>(sync_file_range(file.Get(), 0, 0, SYNC_FILE_RANGE_WRITE)); // the sync reports errors
}

bool IsMissing(const std::string& path) {
    struct stat info {};
    return lstat(path.c_str(), &info) != 0;
}

} // namespace

StagedFile::StagedFile(std::string targetPath, std::span<const std::byte> bytes, TemporaryNames& names)
    : target(std::move(targetPath)), temporaryNames(&names), size(bytes.size()) {
    Open(names);
    try {
        if (descriptor.IsOpen()) {
            WriteAll(descriptor.Get(), bytes, target);
            if (size >= largeSize) StartWriting(descriptor);
        } else {
            held.assign(bytes.begin(), bytes.end());
        }
    } catch (...) { // because the destructor does not run
        if (!temporary.empty()) unlink(temporary.c_str());
        throw;
    }
}

StagedFile::StagedFile(StagedFile&& other) noexcept
    : target(std::move(other.target)), temporaryNames(other.temporaryNames), size(other.size),
      descriptor(std::move(other.descriptor)), temporary(std::exchange(other.temporary, {})),
      held(std::move(other.held)) {}

StagedFile::~StagedFile() {
    if (!temporary.empty()) unlink(temporary.c_str());
}

void StagedFile::Open(TemporaryNames& names) {
    constexpr mode_t mode = 0666;
    if (HasProcess()) {
        descriptor = Descriptor(open(ParentOf(target).c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, mode));
        if (descriptor.IsOpen()) return;
        if (!MeansNoUnnamedFiles(errno)) {
            if (errno == EACCES && !IsMissing(target)) return;
            ThrowErrno(target);
        }
    }
    std::string path = names.Next(target);
    descriptor = Descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (descriptor.IsOpen())
        temporary = std::move(path); // a copy could fail and leave the file
    else if (errno != EACCES || IsMissing(target))
        ThrowErrno(target);
}

void StagedFile::Publish(bool overwrite) {
    if (descriptor.IsOpen() && GiveNewName()) return;
    if (descriptor.IsOpen() && errno != EEXIST) ThrowErrno(target);
    if (!overwrite)
        throw CFileException(CFileException::accessDenied, target, "A file with that name already exists.");
    Replace();
}

// Returns false and sets errno on failure; EEXIST if the target exists.
bool StagedFile::GiveNewName() {
    if (temporary.empty()) return LinkUnnamed(descriptor, target);
    int result = renameat2(AT_FDCWD, temporary.c_str(), AT_FDCWD, target.c_str(), RENAME_NOREPLACE);
    if (result != 0 && (errno == EINVAL || errno == ENOSYS)) { // the file system does not know the flag
        errno = EEXIST;
        if (IsMissing(target)) result = rename(temporary.c_str(), target.c_str());
    }
    if (result == 0) temporary.clear();
    return result == 0;
}

void StagedFile::Replace() {
    ReplacingFile file(target); // throws if the target must not be overwritten
    struct stat old {};
    const bool existed = stat(target.c_str(), &old) == 0;
    if (!descriptor.IsOpen() || (existed && (old.st_nlink > 1 || !FolderIsWritable(target)))) {
        const std::vector<std::byte> bytes = descriptor.IsOpen() ? ReadBack() : std::move(held);
        file.Write(bytes.data(), bytes.size());
        return file.Close();
    }
    if (existed) TakeOverAttributes(descriptor.Get(), old, target);
    if (temporary.empty()) {
        std::string path = temporaryNames->Next(target);
        if (!LinkUnnamed(descriptor, path)) ThrowErrno(target);
        temporary = std::move(path);
    }
    if (rename(temporary.c_str(), target.c_str()) != 0) ThrowErrno(target);
    temporary.clear();
}

std::vector<std::byte> StagedFile::ReadBack() const {
    std::vector<std::byte> bytes(size);
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t got =
            pread(descriptor.Get(), bytes.data() + done, bytes.size() - done, static_cast<off_t>(done));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) ThrowErrno(target);
        done += static_cast<std::size_t>(got);
    }
    return bytes;
}

} // namespace keltavlo
