#pragma once

#include "framework/core/CMemFile.h"

namespace keltavlo {

// Whether the user may create files in the folder of the path.
bool FolderIsWritable(const std::string& path);

// Flushes the names in a folder to the disk. Ignores failure.
void FlushFolder(const std::string& folder);

// A file that is being written anew. It collects its bytes in memory. Close replaces the target in one step:
// it writes and flushes a temporary file beside the target, then renames it. A save that fails or is killed
// leaves the old file as it was. Links are followed and stay links. If the target has further hard links, or
// its folder cannot be written, Close overwrites the file itself and restores the old bytes if that fails.
class ReplacingFile final : public CMemFile {
public:
    // Throws CFileException if the target is a folder or a pipe or the user may not write it.
    explicit ReplacingFile(const std::string& path);

    std::string GetFilePath() const override { return targetPath; }
    void Close() override;

private:
    std::string targetPath; // full, as the caller named it
};

// Opens a file on the disk; throws CFileException on failure. Only ordinary files open, never a pipe or a
// device. With modeCreate the result is a ReplacingFile; without it the file must exist.
std::unique_ptr<CFile> OpenDiskFile(const std::string& path, unsigned flags);

} // namespace keltavlo
