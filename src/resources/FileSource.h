#pragma once

#include "framework/core/CFile.h"
#include "framework/core/Service.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace keltavlo {

// What is known of a path, which may lead into an archive.
struct EntryStatus {
    bool exists = false;
    bool browsable = false; // can be entered like a folder although it is none on the disk
    bool onDisk = true;     // a file or folder of the disk, or the root of an archive
    std::string fullName;
    std::uint64_t size = 0;       // bytes
    std::uint32_t attributes = 0; // as in CFileStatus
    CTime created, accessed, modified;

    bool IsDirectory() const { return (attributes & CFileStatus::directoryAttribute) != 0; }
};

// Where documents get their files: the disk, and archives as if they were folders.
class FileSource : public Service<FileSource> {
public:
    // Resets the status when nothing is there.
    virtual void GetStatus(const std::string& path, EntryStatus& status) = 0;
    // Null on failure, with `*failure` filled when it is given. Flags: CFile::OpenFlags.
    virtual std::unique_ptr<CFile> OpenFile(const std::string& path, unsigned flags,
                                            CFileException* failure) = 0;
    // What OpenFile returns for a path where something is; nothing for any other path.
    virtual std::optional<std::unique_ptr<CFile>> OpenExisting(const std::string& path, unsigned flags,
                                                               CFileException* failure) = 0;
};

} // namespace keltavlo
