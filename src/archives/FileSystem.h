#pragma once

#include "resources/FileSource.h"

namespace keltavlo {

class FolderDocument;
struct FolderListing;

// Resolves paths through archives, nested ones too: an archive counts as a folder. It has no state.
class FileSystem final : public FileSource {
public:
    // The innermost archive that the path leads into; null for a path of the disk, an archive's own path
    // included. An archive that is not open yet is opened; when that fails (the user has been told) the
    // answer is null.
    FolderDocument* FindArchive(const std::string& path) const;

    void GetStatus(const std::string& path, EntryStatus& status) override;
    std::unique_ptr<CFile> OpenFile(const std::string& path, unsigned flags,
                                    CFileException* failure) override;
    std::optional<std::unique_ptr<CFile>> OpenExisting(const std::string& path, unsigned flags,
                                                       CFileException* failure) override;
    // Names in an archive's folder; none for folders of the disk and for what is no folder.
    void ListFolder(const std::string& path, FolderListing& listing);
};

} // namespace keltavlo
