#pragma once

#include "resources/FileSource.h"

namespace keltavlo {

class FolderDocument;
class FolderEntry;
struct FolderListing;

// A folder of an open archive, or two null pointers.
struct ArchiveFolder {
    FolderDocument* archive = nullptr;
    const FolderEntry* folder = nullptr;
};

// Resolves paths through archives, nested ones, too: an archive counts as a folder. It has no state.
class FileSystem final : public FileSource {
public:
    // Whether files with that name open as archives.
    static bool IsArchiveName(const std::string& name);
    // Returns the innermost archive that the path leads into, or null for a path on the disk, such as an
    // archive's own path. Opens the archive if necessary; on failure, tells the user and returns null.
    FolderDocument* FindArchive(const std::string& path) const;

    void GetStatus(const std::string& path, EntryStatus& status) override;
    std::unique_ptr<CFile> OpenFile(const std::string& path, unsigned flags,
                                    CFileException* failure) override;
    std::optional<std::unique_ptr<CFile>> OpenExisting(const std::string& path, unsigned flags,
                                                       CFileException* failure) override;
    // Returns the archive's folder that the path leads to; for an archive's own path, its root. To walk
    // through all entries of a folder, use its children: asking for the status of each path is slow.
    ArchiveFolder FindFolder(const std::string& path);
    // Lists the names in an archive's folder. Lists none for anything else, such as a folder on the disk.
    void ListFolder(const std::string& path, FolderListing& listing);
};

} // namespace keltavlo
