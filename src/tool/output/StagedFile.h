#pragma once

#include "framework/core/DiskFile.h"

#include <vector>

namespace keltavlo {

class TemporaryNames;

// The whole bytes of an output that does not have its name yet. They lie in an unnamed file of the target's
// folder, so nothing of them stays if the process is killed. Where the file system has no unnamed files, a
// temporary file takes their place; where the folder cannot be written but the target can, the bytes wait in
// memory.
class StagedFile {
public:
    // `target` is a full native path. CFileException if the bytes cannot be written.
    StagedFile(std::string target, std::span<const std::byte> bytes, TemporaryNames& names);
    StagedFile(StagedFile&& other) noexcept;
    StagedFile& operator=(StagedFile&&) = delete;
    ~StagedFile(); // removes what was not published

    const std::string& GetTarget() const { return target; }
    std::uint64_t GetSize() const { return size; } // bytes
    // Of the file that holds the bytes; not open if they wait in memory.
    const Descriptor& GetDescriptor() const { return descriptor; }

    // Gives the bytes their name in one step. Overwrites an existing file only with `overwrite`: keeps its
    // permissions, and writes into it if it has further names. CFileException if that fails.
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
