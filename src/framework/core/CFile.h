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

// A point in time, or null if unknown.
using CTime = std::optional<std::chrono::system_clock::time_point>;

// What the operating system reports about a path.
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

// A file on the disk, in memory or inside an archive: bytes that can be read and written at any position.
// Errors are thrown as CFileException.
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

    // Empty if the bytes have no path of their own.
    virtual std::string GetFilePath() const = 0;
    // Reads up to `count` bytes. Returns fewer only at the end of the file.
    virtual std::size_t Read(void* buffer, std::size_t count) = 0;
    virtual void Write(const void* buffer, std::size_t count) = 0;
    // Returns the new position from the start. Throws badSeek for a position before the start; a position
    // past the end is allowed.
    virtual std::uint64_t Seek(std::int64_t offset, From from) = 0;
    virtual std::uint64_t GetPosition() const = 0;
    virtual std::uint64_t GetLength() const = 0;
    virtual void SetLength(std::uint64_t length) = 0;
    // Returns only when every byte is in place; throws otherwise.
    virtual void Close() = 0;
    // Closes the file without making sure that the written bytes are kept.
    virtual void Abort() noexcept = 0;
    // Another file over the same bytes, with its own position. Both may be used and closed in any order.
    virtual std::unique_ptr<CFile> Duplicate() const = 0;

    // Returns false if the path now leads to other bytes than when it was opened, judging by
    // size, time and identity.
    virtual bool IsUnchanged() const { return true; }

    // Returns false and leaves `status` unchanged if nothing exists at the path.
    static bool GetStatus(const std::string& path, CFileStatus& status);
};

// Returns the position that a seek leads to. Throws badSeek before the start or past the largest position.
std::uint64_t SeekTarget(const CFile& file, std::int64_t offset, CFile::From from);

// Reads from the file's position to its end.
std::vector<std::byte> ReadAll(CFile& file);

// Returns whether this user may write the file, whose status is `info`; otherwise errno says why not. A file
// without any write bit is read-only even for root.
bool MayWrite(const std::string& path, const struct stat& info);

// Returns whether both paths lead to the same file. The part on the disk compares as the disk does; the part
// inside an archive ignores case. Both kinds of separator are equal.
bool SamePath(const std::string& a, const std::string& b);

} // namespace keltavlo
