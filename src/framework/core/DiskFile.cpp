#include "framework/core/DiskFile.h"

#include "framework/core/Path.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace keltavlo {

namespace {

int NativeFlags(unsigned flags) {
    if (flags & CFile::modeReadWrite) return O_RDWR;
    return flags & CFile::modeWrite ? O_WRONLY : O_RDONLY;
}

} // namespace

int Descriptor::Close() {
    return value < 0 ? 0 : ::close(std::exchange(value, -1));
}

void WriteAll(int descriptor, std::span<const std::byte> bytes, const std::string& path) {
    while (!bytes.empty()) {
        const ssize_t put = write(descriptor, bytes.data(), bytes.size());
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) throw CFileException::FromErrno(errno, path);
        bytes = bytes.subspan(static_cast<std::size_t>(put));
    }
}

DiskFile::DiskFile(const std::string& path, unsigned flags) : filePath(FullPath(path)) {
    // O_NONBLOCK, because opening a pipe must return at once, so that the pipe can be refused.
    descriptor = Descriptor(::open(ToNativePath(path).c_str(), NativeFlags(flags) | O_NONBLOCK | O_CLOEXEC));
    if (!descriptor.IsOpen()) ThrowErrno();
    struct stat info {};
    if (fstat(descriptor.Get(), &info) != 0) ThrowErrno();
    if (!S_ISREG(info.st_mode))
        throw CFileException(CFileException::invalidFile, CFileException::noOsError, filePath);
    state.emplace(info);
}

std::size_t DiskFile::Read(void* buffer, std::size_t count) {
    auto* bytes = static_cast<std::byte*>(buffer);
    std::size_t done = 0;
    while (done < count) {
        const ssize_t got = pread(descriptor.Get(), bytes + done, count - done, static_cast<off_t>(position));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) ThrowErrno();
        if (got == 0) break;
        done += static_cast<std::size_t>(got);
        position += static_cast<std::uint64_t>(got);
    }
    return done;
}

void DiskFile::Write(const void* buffer, std::size_t count) {
    const auto* bytes = static_cast<const std::byte*>(buffer);
    while (count > 0) {
        const ssize_t put = pwrite(descriptor.Get(), bytes, count, static_cast<off_t>(position));
        if (put < 0 && errno == EINTR) continue;
        if (put < 0) ThrowErrno();
        bytes += put;
        count -= static_cast<std::size_t>(put);
        position += static_cast<std::uint64_t>(put);
    }
}

std::uint64_t DiskFile::Seek(std::int64_t offset, From from) {
    position = SeekTarget(*this, offset, from);
    return position;
}

std::uint64_t DiskFile::GetLength() const {
    struct stat info {};
    if (fstat(descriptor.Get(), &info) != 0) ThrowErrno();
    return static_cast<std::uint64_t>(info.st_size);
}

void DiskFile::SetLength(std::uint64_t length) {
    if (ftruncate(descriptor.Get(), static_cast<off_t>(length)) != 0) ThrowErrno();
}

void DiskFile::Close() {
    // Some disks report lost bytes only when the file is closed.
    if (descriptor.Close() != 0) ThrowErrno();
}

std::unique_ptr<CFile> DiskFile::Duplicate() const {
    Descriptor copy(fcntl(descriptor.Get(), F_DUPFD_CLOEXEC, 0));
    if (!copy.IsOpen()) ThrowErrno();
    return std::unique_ptr<CFile>(new DiskFile(std::move(copy), filePath, *state));
}

bool DiskFile::IsUnchanged() const {
    struct stat info {};
    return stat(filePath.c_str(), &info) == 0 && FileState(info) == state;
}

void DiskFile::ThrowErrno() const {
    throw CFileException::FromErrno(errno, filePath);
}

} // namespace keltavlo
