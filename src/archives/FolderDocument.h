#pragma once

#include "archives/Entry.h"
#include "framework/core/Path.h"
#include "framework/core/Service.h"
#include "resources/ReferenceDocument.h"

namespace keltavlo {

// What a folder contains.
struct FolderListing {
    std::vector<std::string> names; // of FolderEntry::GetListedName, in the order of the tree
    std::string path;
};

// While one exists, an archive whose file has changed is not read again, so that no message can appear: for
// code that runs while the screen is being painted.
class ArchiveFreeze : public Service<ArchiveFreeze> {};

// A document that is a tree of named entries: an archive or the folder of built-in files. Its entries are
// reached by paths that go through the document's own path as if it were a folder.
class FolderDocument : public Dynamic<"FolderDocument", FolderDocument, ReferenceDocument> {
public:
    void ResetTree() { root.RemoveChildren(); }
    void SetRootName(const std::string& path) { root.rootName = path; }
    const std::string& GetRootName() const { return root.rootName; }

    // Whether the entries are lumps, whose names may contain characters that file systems refuse.
    virtual bool HasLumps() const { return false; }

    // Appends the entry in the folder that the path names below the root; folders that are missing are made.
    // The entry's own name is not looked at, so several entries may have one name.
    void AddEntry(const std::string& path, std::unique_ptr<Entry> entry);
    // The first file of that path without regard to case, else the folder, else null. If the path ends in a
    // separator, the folder comes first.
    Entry* FindEntry(const std::string& path) const;
    // Resets the status when there is no such entry. A file's full name has no separator at its end.
    void GetEntryStatus(const std::string& path, EntryStatus& status) const;
    std::unique_ptr<CFile> OpenEntry(const std::string& path, unsigned flags, CFileException* failure);
    // The folder of that path, or null. The root itself needs no separator at its end.
    const FolderEntry* FindFolder(const std::string& path) const;
    // Empty names when the path is no folder.
    void ListFolder(const std::string& path, FolderListing& listing) const;
    // Reads the archive again if its file has changed since it was read, unless entries were written to.
    // False when that failed: the user was told, and the archive is empty until a later call succeeds.
    bool Refresh();
    // The path of the first file entry on the way to the path that `isArchive` accepts; empty when there is
    // none.
    template <class Predicate>
    std::string FindOnTheWay(const std::string& path, Predicate isArchive) const;

    // The file that the entries' bytes lie in, for reading an extent of it. CFileException when it was
    // changed since it was opened, or does not back the extent.
    CFile& GetSource(std::uint64_t offset, std::uint64_t length) const;
    // CFileException for an entry that is out of date.
    [[noreturn]] static void ThrowChanged(const std::string& archivePath);

protected:
    // The first step of reading an archive: an empty tree under the name of what is read, whose bytes stay at
    // hand.
    void BeginReading(InputStream& in);
    // AddEntry for a name from an archive's directory.
    void AddNamedEntry(std::string_view name, std::unique_ptr<Entry> entry);
    // The same for a name that is known to have no folder.
    void AddRootEntry(std::unique_ptr<Entry> entry) { root.Append(std::move(entry)); }
    // Before so many entries are added, most of them to the root.
    void ReserveRootEntries(std::size_t count) { root.Reserve(count); }
    void DeleteContents() override;

private:
    FolderEntry& MakeFolder(const std::vector<std::string>& components);
    bool IsOutdated() const;

    RootEntry root;
    std::unique_ptr<CFile> source;
    // The folder of the entry added last: archives list their folders one after the other.
    std::string lastFolderName;
    FolderEntry* lastFolder = nullptr;
};

template <class Predicate>
std::string FolderDocument::FindOnTheWay(const std::string& path, Predicate isArchive) const {
    std::string way = GetRootName();
    const FolderEntry* folder = &root;
    PathBelow below = SplitBelow(GetRootName(), path);
    if (below.below && below.fileName.empty()) below.directories.pop_back();
    for (const std::string& component : below.directories) {
        way = JoinPath(way, component);
        if (const FolderEntry* next = folder->FindFolder(component))
            folder = next;
        else
            return folder->FindChild(component) && isArchive(way) ? way : std::string();
    }
    return {};
}

} // namespace keltavlo
