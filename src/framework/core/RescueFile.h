#pragma once

#include "framework/core/DiskFile.h"

#include <span>

namespace keltavlo {

// A file in a folder that the user's programs share. It is locked as long as this object lives, so that other
// programs can tell it from the files of a program that has ended.
class RescueFile {
public:
    // Writes a new file to the folder, whole or not at all. Throws CFileException if that fails.
    RescueFile(const std::string& folder, std::span<const std::byte> bytes);
    // Locks and returns the files whose programs have ended, in the order of writing.
    static std::vector<RescueFile> TakeAbandoned(const std::string& folder);

    const std::string& GetPath() const { return path; }
    // Deletes the file.
    void Remove() const noexcept;

private:
    RescueFile(std::string filePath, Descriptor lockedFile)
        : path(std::move(filePath)), file(std::move(lockedFile)) {}

    std::string path;
    Descriptor file;
};

} // namespace keltavlo
