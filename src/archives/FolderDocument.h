#pragma once

#include "archives/Entry.h"
#include "framework/core/Path.h"
#include "resources/ReferenceDocument.h"

// What a folder holds.
struct FolderListing {
    std::vector<std::string> names; // in the order of the tree
    std::string path;
};

// A document that is a tree of named entries: an archive or the folder of built-in files. Its entries are
// reached by paths that go through the document's own path as if it were a folder.
class FolderDocument : public Dynamic<"FolderDocument", FolderDocument, ReferenceDocument> {
public:
    void ResetTree() { root.RemoveChildren(); }
    void SetRootName(const std::string& path) { root.rootName = path; }
    const std::string& GetRootName() const { return root.rootName; }

    // Appends the entry in the folder that the path names below the root; folders that are missing are made.
    // The entry's own name is not looked at, so several entries may have one name.
    void AddEntry(const std::string& path, std::unique_ptr<Entry> entry);
    // The first entry of that path without regard to case, or null.
    Entry* FindEntry(const std::string& path) const;
    // Resets the status when there is no such entry.
    void GetEntryStatus(const std::string& path, EntryStatus& status) const;
    std::unique_ptr<CFile> OpenEntry(const std::string& path, unsigned flags, CFileException* failure);
    // Empty names when the path is no folder.
    void ListFolder(const std::string& path, FolderListing& listing) const;
    // The path of the first file entry on the way to the path that `isArchive` accepts; empty when there is
    // none.
    template <class Predicate>
    std::string FindOnTheWay(const std::string& path, Predicate isArchive) const;

    // The file that the entries' bytes lie in, for reading an extent of it. CFileException when it was
    // changed since it was opened, or does not back the extent.
    CFile& GetSource(std::uint64_t offset, std::uint64_t length) const;

protected:
    // The first step of reading an archive: an empty tree under the name of what is read, whose bytes stay at
    // hand.
    void BeginReading(InputStream& in);
    // AddEntry for a name that stands in an archive's directory.
    void AddNamedEntry(std::string_view name, std::unique_ptr<Entry> entry);
    // The same for a name that is known to have no folder.
    void AddRootEntry(std::unique_ptr<Entry> entry) { root.Append(std::move(entry)); }
    // Before so many entries are added, most of them to the root.
    void ReserveRootEntries(std::size_t count) { root.Reserve(count); }
    void DeleteContents() override;

private:
    FolderEntry& MakeFolder(const std::vector<std::string>& components);

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
    const PathBelow below = SplitBelow(GetRootName(), path);
    for (const std::string& component : below.directories) {
        way = JoinPath(way, component);
        if (const FolderEntry* next = folder->FindFolder(component))
            folder = next;
        else
            return folder->FindChild(component) && isArchive(way) ? way : std::string();
    }
    return {};
}
