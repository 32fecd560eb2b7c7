#pragma once

#include "framework/core/CMemFile.h"

namespace keltavlo {

// Whether files can be made in the folder of the path.
bool FolderIsWritable(const std::string& path);

// Makes the names in a folder durable.
void FlushFolder(const std::string& folder);

// A file that is being written anew. What is written gathers in memory; Close puts it in the target's place
// in one step: a temporary file beside the target, written and flushed whole, then renamed over it. A save
// that fails or is killed leaves the old file as it was. A link is followed and stays a link. Where the
// folder cannot be written but the file can, or the file has further hard links, the bytes go into the file
// itself, and come back out when that fails.
class ReplacingFile final : public CMemFile {
public:
    // CFileException when the target is no place to write to: a folder, a pipe, a file or folder without
    // permission.
    explicit ReplacingFile(const std::string& path);

    std::string GetFilePath() const override { return targetPath; }
    void Close() override;

private:
    std::string targetPath; // full, as the caller named it
};

// Opens a file of the disk; CFileException if that fails. Only ordinary files open, never a pipe or a device.
// With modeCreate the result is a ReplacingFile; without it the file must exist.
std::unique_ptr<CFile> OpenDiskFile(const std::string& path, unsigned flags);

} // namespace keltavlo
