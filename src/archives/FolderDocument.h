#pragma once

#include "archives/Entry.h"
#include "framework/core/Path.h"
#include "framework/core/Service.h"
#include "resources/ReferenceDocument.h"

namespace keltavlo {

// The contents of a folder.
struct FolderListing {
    std::vector<std::string> names; // from FolderEntry::GetListedName, in the order of the tree
    std::string path;
};

// While one exists, no archive is read again, even if its file has changed. Code that runs while the screen
// is painted creates one, because reading may show a message.
class ArchiveFreeze : public Service<ArchiveFreeze> {};

// A document that is a tree of named entries: an archive or the folder of built-in files. The path of an
// entry goes through the document's own path as if that were a folder.
class FolderDocument : public Dynamic<"FolderDocument", FolderDocument, ReferenceDocument> {
public:
    void ResetTree() { root.RemoveChildren(); }
    void SetRootName(const std::string& path) { root.rootName = path; }
    const std::string& GetRootName() const { return root.rootName; }

    // Whether the entries are lumps, whose names may contain characters that file systems refuse.
    virtual bool HasLumps() const { return false; }

    // Appends the entry to the folder that the path names below the root. Creates missing folders. Ignores
    // the entry's own name, so several entries may have the same one.
    void AddEntry(const std::string& path, std::unique_ptr<Entry> entry);
    // Returns the first file with that path, ignoring case; otherwise the folder; otherwise null. If the path
    // ends in a separator, the folder comes first.
    Entry* FindEntry(const std::string& path) const;
    // Resets the status if there is no such entry. The full name of a file does not end in a separator.
    void GetEntryStatus(const std::string& path, EntryStatus& status) const;
    std::unique_ptr<CFile> OpenEntry(const std::string& path, unsigned flags, CFileException* failure);
    // Returns the folder with that path, or null. The root's path needs no separator at its end.
    const FolderEntry* FindFolder(const std::string& path) const;
    // Lists no names if the path is not a folder.
    void ListFolder(const std::string& path, FolderListing& listing) const;
    // Reads the archive again if its file has changed, unless entries were written to. If that fails, tells
    // the user and returns false; the archive then stays empty until a later call succeeds.
    bool Refresh();
    // Returns the path of the first file entry on the way to the path, if `isArchive` accepts it; otherwise
    // an empty string.
    template <class Predicate>
    std::string FindOnTheWay(const std::string& path, Predicate isArchive) const;

    // Returns the file that contains the entries' bytes, for reading an extent of it. Throws CFileException
    // if the file has changed since it was opened or ends before the extent does.
    CFile& GetSource(std::uint64_t offset, std::uint64_t length) const;
    // Throws the CFileException for an archive that has changed.
    [[noreturn]] static void ThrowChanged(const std::string& archivePath);

protected:
    // Call this first when reading an archive. It empties the tree, gives it the name of the file and keeps
    // the file open for the entries.
    void BeginReading(InputStream& in);
    // Adds an entry under a name from an archive's directory.
    void AddNamedEntry(std::string_view name, std::unique_ptr<Entry> entry);
    // Adds an entry whose name is known to contain no folder.
    void AddRootEntry(std::unique_ptr<Entry> entry) { root.Append(std::move(entry)); }
    // Reserves memory for `count` entries of the root.
    void ReserveRootEntries(std::size_t count) { root.Reserve(count); }
    void DeleteContents() override;

private:
    FolderEntry& MakeFolder(const std::vector<std::string>& components);
    bool IsOutdated() const;

    RootEntry root;
    std::unique_ptr<CFile> source;
    // The folder of the entry added last, because archives list the entries of a folder together.
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
