#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

struct stat;

namespace keltavlo {

class CFile;

// Identifies a file on the disk and the state of its contents.
struct FileState {
    std::uint64_t device = 0, inode = 0, size = 0;
    std::int64_t seconds = 0, nanoseconds = 0; // of the last change of the contents

    FileState() = default;
    explicit FileState(const struct stat& info);
    // Returns the state of the file at the path, or null if there is no ordinary file.
    static std::optional<FileState> Of(const std::string& path);
    // Returns the state of the file that the path leads to, or of the archive that it leads into. Returns
    // null if there is no such file.
    static std::optional<FileState> Find(const std::string& path);

    bool operator==(const FileState&) const = default;
};

// What a file contained when it was read or written. The state can be compared without reading the file; the
// digest tells whether a file in another state still has the same contents.
struct FileStamp {
    std::optional<FileState> state;
    std::uint64_t digest = 0;
};

// Returns a number that depends on all bytes of the file. Moves the file's position.
std::uint64_t DigestOf(CFile& file);

} // namespace keltavlo
