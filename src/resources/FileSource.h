#pragma once

#include "framework/core/CFile.h"
#include "framework/core/Service.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace keltavlo {

// The status of a path, which may lead into an archive.
struct EntryStatus {
    bool exists = false;
    bool browsable = false; // can be entered like a folder but is not one on the disk
    bool onDisk = true;     // on the disk itself, or the root of an archive
    std::string fullName;
    std::uint64_t size = 0;       // bytes
    std::uint32_t attributes = 0; // as in CFileStatus
    CTime created, accessed, modified;

    bool IsDirectory() const { return (attributes & CFileStatus::directoryAttribute) != 0; }
};

// The source of documents' files: the disk, with archives as folders.
class FileSource : public Service<FileSource> {
public:
    // Resets the status if nothing exists at the path.
    virtual void GetStatus(const std::string& path, EntryStatus& status) = 0;
    // Opens a file with `flags` from CFile::OpenFlags. Returns null on failure and fills `*failure` unless
    // that is null.
    virtual std::unique_ptr<CFile> OpenFile(const std::string& path, unsigned flags,
                                            CFileException* failure) = 0;
    // Does the same if something exists at the path; returns nothing otherwise.
    virtual std::optional<std::unique_ptr<CFile>> OpenExisting(const std::string& path, unsigned flags,
                                                               CFileException* failure) = 0;
};

} // namespace keltavlo
