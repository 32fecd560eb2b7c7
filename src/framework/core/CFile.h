#pragma once

#include "framework/core/Exceptions.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

struct stat;

namespace keltavlo {

// A point in time, or none when it is not known.
using CTime = std::optional<std::chrono::system_clock::time_point>;

// What the operating system tells about a path.
struct CFileStatus {
    static constexpr std::uint32_t readOnlyAttribute = 1;
    static constexpr std::uint32_t hiddenAttribute = 2;
    static constexpr std::uint32_t directoryAttribute = 16;

    std::string fullName;
    std::uint64_t size = 0; // bytes
    std::uint32_t attributes = 0;
    CTime created, accessed, modified;

    bool IsDirectory() const { return (attributes & directoryAttribute) != 0; }
    bool IsReadOnly() const { return (attributes & readOnlyAttribute) != 0; }
};

// A seekable run of bytes: a file on disk, in memory or inside an archive. Errors are CFileException.
class CFile {
public:
    enum OpenFlags : unsigned {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        modeCreate = 0x1000
    };
    enum class From { begin, current, end };

    CFile() = default;
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    virtual ~CFile() = default;

    // Empty when the bytes have no path of their own.
    virtual std::string GetFilePath() const = 0;
    // Reads up to `count` bytes; fewer only at the end of the file.
    virtual std::size_t Read(void* buffer, std::size_t count) = 0;
    virtual void Write(const void* buffer, std::size_t count) = 0;
    // The new position from the start. A position before the start is badSeek; one past the end is allowed.
    virtual std::uint64_t Seek(std::int64_t offset, From from) = 0;
    virtual std::uint64_t GetPosition() const = 0;
    virtual std::uint64_t GetLength() const = 0;
    virtual void SetLength(std::uint64_t length) = 0;
    // Every byte written is where it is to stay, or an exception tells.
    virtual void Close() = 0;
    // Gives the file up: what was written need not stay.
    virtual void Abort() noexcept = 0;
    // Another file over the same bytes with a position of its own; both may be used and closed in any order.
    virtual std::unique_ptr<CFile> Duplicate() const = 0;

    // False when the file's path now leads to other bytes than when it was opened, as far as size, time and
    // identity tell.
    virtual bool IsUnchanged() const { return true; }

    // Returns false, with `status` untouched, when nothing is there.
    static bool GetStatus(const std::string& path, CFileStatus& status);
};

// Where a seek of this file leads; badSeek before the start or past the largest position.
std::uint64_t SeekTarget(const CFile& file, std::int64_t offset, CFile::From from);

// The bytes from the file's position to its end.
std::vector<std::byte> ReadAll(CFile& file);

// Whether this user may write the file with that status; errno says why not. A file without any write bit is
// read-only even for root.
bool MayWrite(const std::string& path, const struct stat& info);

// One rule for "is this the same file": the part on the disk as the disk compares it, the part inside an
// archive without regard to case, both kinds of separator alike.
bool SamePath(const std::string& a, const std::string& b);

} // namespace keltavlo
