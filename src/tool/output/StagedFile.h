#pragma once

#include "framework/core/DiskFile.h"

#include <vector>

namespace keltavlo {

class TemporaryNames;

// All bytes of an output that does not have its name yet. They are in an unnamed file in the target's folder,
// so nothing is left if the process is killed. If the file system has no unnamed files, they are in a
// temporary file; if the folder cannot be written but the target can, in memory.
class StagedFile {
public:
    // `target` is a full native path. Throws CFileException if the bytes cannot be written.
    StagedFile(std::string target, std::span<const std::byte> bytes, TemporaryNames& names);
    StagedFile(StagedFile&& other) noexcept;
    StagedFile& operator=(StagedFile&&) = delete;
    ~StagedFile(); // removes the file unless it was published

    const std::string& GetTarget() const { return target; }
    std::uint64_t GetSize() const { return size; } // bytes
    // Returns the file that contains the bytes; not open if they wait in memory.
    const Descriptor& GetDescriptor() const { return descriptor; }

    // Gives the bytes their name in one step. With `overwrite`, replaces an existing file: keeps its
    // permissions, and writes into it if it has further names. Throws CFileException on failure.
    void Publish(bool overwrite);

private:
    void Open(TemporaryNames& names);
    bool GiveNewName();
    void Replace();
    std::vector<std::byte> ReadBack() const;

    std::string target;
    TemporaryNames* temporaryNames;
    std::uint64_t size;
    Descriptor descriptor;
    std::string temporary; // path of the temporary file, if there is one
    std::vector<std::byte> held;
};

} // namespace keltavlo
