#include "archives/FileSystem.h"

#include "archives/FolderDocument.h"
#include "framework/core/CDocTemplate.h"
#include "framework/core/FileFailure.h"
#include "framework/core/FileStamp.h"
#include "framework/core/ReplacingFile.h"
#include "resources/DocTemplateRegistry.h"

namespace keltavlo {

namespace {

// Limits archives inside archives, because a pack may contain itself.
constexpr int maximumDepth = 8;

// Looks only at the name, so that open documents do not slow the listing of a large archive.
const CRuntimeClass* FolderTypeOf(const std::string& path) {
    const CRuntimeClass* type = DocTemplateRegistry::Get().GetDocumentClassOfName(path);
    return type && type->IsDerivedFrom(FolderDocument::runtimeClass) ? type : nullptr;
}

CDocument* FindOpenFolder(const CRuntimeClass& type, const std::string& path) {
    for (CDocument* document : DocTemplateRegistry::Get().FindTemplate(type)->GetDocuments())
        if (document->GetPathName() == path || SamePath(document->GetPathName(), path)) return document;
    return nullptr;
}

FolderDocument* OpenFolder(const std::string& path) {
    const CRuntimeClass* type = FolderTypeOf(path);
    if (!type) return nullptr;
    CDocument* document = FindOpenFolder(*type, path);
    if (!document) return dynamic_cast<FolderDocument*>(DocTemplateRegistry::Get().OpenDocument(path));
    auto* archive = dynamic_cast<FolderDocument*>(document);
    return archive->Refresh() ? archive : nullptr;
}

// Returns the archive on the disk that the path leads into, or null.
FolderDocument* FindDiskArchive(const std::string& path) {
    for (std::string folder = path; !folder.empty(); folder = ParentOf(folder)) {
        // The disk takes "x.wad/." for the archive itself; here it is an entry called ".".
        if (FileNameOf(folder) == "." || !FileState::Of(folder)) continue;
        return folder == path ? nullptr : OpenFolder(FullPath(folder));
    }
    return nullptr;
}

// Opens a file in the archive, or on the disk if `archive` is null.
std::unique_ptr<CFile> OpenIn(FolderDocument* archive, const std::string& path, unsigned flags,
                              CFileException* failure) {
    if (archive) return archive->OpenEntry(path, flags, failure);
    return FileOrNull(failure, [&] { return OpenDiskFile(path, flags); });
}

} // namespace

bool FileSystem::IsArchiveName(const std::string& name) {
    return FolderTypeOf(name) != nullptr;
}

FolderDocument* FileSystem::FindArchive(const std::string& path) const {
    FolderDocument* archive = FindDiskArchive(path);
    for (int depth = 1; archive && depth < maximumDepth; ++depth) {
        const std::string inner = archive->FindOnTheWay(path, IsArchiveName);
        if (inner.empty()) return archive;
        archive = OpenFolder(inner);
    }
    return archive;
}

void FileSystem::GetStatus(const std::string& path, EntryStatus& status) {
    status = {};
    CFileStatus disk;
    if (const FolderDocument* archive = FindArchive(path)) {
        archive->GetEntryStatus(path, status);
    } else if (CFile::GetStatus(path, disk)) {
        status = {true,         false,         true,         disk.fullName, disk.size, disk.attributes,
                  disk.created, disk.accessed, disk.modified};
    }
    const bool isFile = status.exists && !status.IsDirectory();
    // Only a file on the disk can be the program itself. Checking the full name of each entry would make
    // listings slow.
    const std::string name = status.onDisk ? status.fullName : std::string(FileNameOf(status.fullName));
    if (isFile && IsArchiveName(name)) status.browsable = true;
}

std::unique_ptr<CFile> FileSystem::OpenFile(const std::string& path, unsigned flags,
                                            CFileException* failure) {
    return OpenIn(FindArchive(path), path, flags, failure);
}

std::optional<std::unique_ptr<CFile>> FileSystem::OpenExisting(const std::string& path, unsigned flags,
                                                               CFileException* failure) {
    CFileStatus status;
    FolderDocument* archive = FindArchive(path);
    const bool exists = archive ? archive->FindEntry(path) != nullptr : CFile::GetStatus(path, status);
    return exists ? std::optional(OpenIn(archive, path, flags, failure)) : std::nullopt;
}

ArchiveFolder FileSystem::FindFolder(const std::string& path) {
    EntryStatus status;
    GetStatus(path, status);
    FolderDocument* archive = status.browsable ? OpenFolder(status.fullName) : FindArchive(path);
    const FolderEntry* folder = archive ? archive->FindFolder(path) : nullptr;
    return folder ? ArchiveFolder{archive, folder} : ArchiveFolder{};
}

void FileSystem::ListFolder(const std::string& path, FolderListing& listing) {
    listing = {{}, path};
    if (const ArchiveFolder found = FindFolder(path); found.archive) found.archive->ListFolder(path, listing);
}

} // namespace keltavlo
