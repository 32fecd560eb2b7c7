#pragma once

#include "resources/FileSource.h"

namespace keltavlo {

class FolderDocument;
class FolderEntry;
struct FolderListing;

// A folder of an open archive; both null for what is none.
struct ArchiveFolder {
    FolderDocument* archive = nullptr;
    const FolderEntry* folder = nullptr;
};

// Resolves paths through archives, nested ones too: an archive counts as a folder. It has no state.
class FileSystem final : public FileSource {
public:
    // Whether files of that name open as archives.
    static bool IsArchiveName(const std::string& name);
    // The innermost archive that the path leads into; null for a path of the disk, an archive's own path
    // included. An archive that is not open yet is opened; when that fails (the user has been told) the
    // answer is null.
    FolderDocument* FindArchive(const std::string& path) const;

    void GetStatus(const std::string& path, EntryStatus& status) override;
    std::unique_ptr<CFile> OpenFile(const std::string& path, unsigned flags,
                                    CFileException* failure) override;
    std::optional<std::unique_ptr<CFile>> OpenExisting(const std::string& path, unsigned flags,
                                                       CFileException* failure) override;
    // The archive's folder that the path leads to; of an archive its root. To walk all entries of a folder,
    // go through its children instead of asking for the status of each path.
    ArchiveFolder FindFolder(const std::string& path);
    // Names in an archive's folder; none for folders of the disk and for what is no folder.
    void ListFolder(const std::string& path, FolderListing& listing);
};

} // namespace keltavlo
