#include "archives/FolderDocument.h"

#include "framework/core/Text.h"
#include "resources/streams/InputStream.h"

namespace keltavlo {

namespace {

// Returns the folder with its last separator. Written by hand, because find_last_of takes a third of the time
// of opening an archive with thousands of names.
std::string_view FolderPartOf(std::string_view name) {
    std::size_t end = name.size();
    const auto endsFolder = [](char c) { return c == '/' || c == '\\' || c == ':'; };
    while (end > 0 && !endsFolder(name[end - 1])) --end;
    return name.substr(0, end);
}

} // namespace

void FolderDocument::AddEntry(const std::string& path, std::unique_ptr<Entry> entry) {
    MakeFolder(SplitBelow(GetRootName(), path).directories).Append(std::move(entry));
}

Entry* FolderDocument::FindEntry(const std::string& path) const {
    PathBelow below = SplitBelow(GetRootName(), path);
    if (!below.below) return nullptr;
    const bool folderFirst = below.fileName.empty();
    if (folderFirst) {
        below.fileName = std::move(below.directories.back());
        below.directories.pop_back();
    }
    const FolderEntry* folder = &root;
    for (const std::string& component : below.directories)
        if (folder) folder = folder->FindFolder(component);
    if (!folder) return nullptr;
    Entry* const named = folderFirst ? folder->FindFolder(below.fileName) : nullptr;
    return named ? named : folder->FindChild(below.fileName);
}

void FolderDocument::GetEntryStatus(const std::string& path, EntryStatus& status) const {
    status = {};
    const Entry* entry = FindEntry(path);
    if (!entry) return;
    entry->GetStatus(status);
    status.fullName = path;
    if (status.IsDirectory()) return;
    while (IsSeparator(status.fullName.back())) status.fullName.pop_back();
}

std::unique_ptr<CFile> FolderDocument::OpenEntry(const std::string& path, unsigned flags,
                                                 CFileException* failure) {
    Entry* entry = FindEntry(path);
    if (!entry) {
        if (failure) *failure = CFileException(CFileException::fileNotFound, CFileException::noOsError, path);
        return nullptr;
    }
    std::unique_ptr<CFile> file = entry->OpenEntry(flags, failure, *this);
    if (!file && failure) failure->fileName = path;
    return file;
}

const FolderEntry* FolderDocument::FindFolder(const std::string& path) const {
    const bool isRoot = EqualNoCase(FullPath(path), FullPath(GetRootName()));
    return isRoot ? &root : dynamic_cast<const FolderEntry*>(FindEntry(path));
}

void FolderDocument::ListFolder(const std::string& path, FolderListing& listing) const {
    listing = {{}, path};
    const FolderEntry* folder = FindFolder(path);
    if (!folder) return;
    listing.names.reserve(folder->GetChildren().size());
    for (const auto& child : folder->GetChildren()) listing.names.push_back(folder->GetListedName(*child));
}

bool FolderDocument::Refresh() {
    return ArchiveFreeze::Find() || !IsOutdated() || OnOpenDocument(GetPathName());
}

// An archive without a root name was not read, because its file was empty or, when last refreshed, damaged.
// The built-in files have no source.
bool FolderDocument::IsOutdated() const {
    if (IsModified()) return false;
    return source ? !source->IsUnchanged() : GetRootName().empty();
}

CFile& FolderDocument::GetSource(std::uint64_t offset, std::uint64_t length) const {
    if (!source->IsUnchanged()) ThrowChanged(GetRootName());
    const std::uint64_t size = source->GetLength();
    if (length > 0 && (offset > size || length > size - offset))
        throw CFileException(CFileException::endOfFile, CFileException::noOsError, GetRootName());
    return *source;
}

void FolderDocument::ThrowChanged(const std::string& archivePath) {
    throw CFileException(CFileException::generic, archivePath,
                         "The archive was changed or replaced after it was opened.");
}

void FolderDocument::BeginReading(InputStream& in) {
    ResetTree();
    SetRootName(in.GetName().empty() ? GetTransferPath() : in.GetName());
    source = in.DuplicateFile();
    lastFolder = nullptr;
}

void FolderDocument::AddNamedEntry(std::string_view name, std::unique_ptr<Entry> entry) {
    const std::string_view folderName = FolderPartOf(name);
    if (!lastFolder || folderName != lastFolderName) {
        lastFolder = &MakeFolder(SplitBelow(GetRootName(), JoinPath(GetRootName(), folderName)).directories);
        lastFolderName = folderName;
    }
    lastFolder->Append(std::move(entry));
}

void FolderDocument::DeleteContents() {
    ResetTree();
    SetRootName({});
    source.reset();
    lastFolder = nullptr;
}

FolderEntry& FolderDocument::MakeFolder(const std::vector<std::string>& components) {
    FolderEntry* folder = &root;
    for (const std::string& component : components) {
        FolderEntry* next = folder->FindFolder(component);
        if (!next) {
            auto made = std::make_unique<NamedFolderEntry>(component);
            next = made.get();
            folder->Append(std::move(made));
        }
        folder = next;
    }
    return *folder;
}

} // namespace keltavlo
