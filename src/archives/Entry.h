#pragma once

#include "framework/core/CFile.h"
#include "resources/FileSource.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace keltavlo {

class FolderDocument;

// A named folder or file in a folder document.
class Entry {
public:
    Entry() = default;
    Entry(const Entry&) = delete;
    Entry& operator=(const Entry&) = delete;
    virtual ~Entry() = default;

    virtual std::string GetName() const = 0;
    // Sets everything but the full name.
    virtual void GetStatus(EntryStatus& status) const = 0;
    // Opens a file over the entry's bytes with `flags` from CFile::OpenFlags. Returns null on failure and
    // fills `*failure` unless that is null.
    virtual std::unique_ptr<CFile> OpenEntry(unsigned flags, CFileException* failure,
                                             FolderDocument& owner) = 0;
};

// A folder, which owns its children and keeps their order.
class FolderEntry : public Entry {
public:
    void GetStatus(EntryStatus& status) const override;
    std::unique_ptr<CFile> OpenEntry(unsigned flags, CFileException* failure, FolderDocument& owner) override;

    const std::vector<std::unique_ptr<Entry>>& GetChildren() const { return children; }
    void Append(std::unique_ptr<Entry> child) { children.push_back(std::move(child)); }
    // Reserves memory for `count` children.
    void Reserve(std::size_t count) { children.reserve(count); }
    void RemoveChildren();

    // Returns the first file with that name, ignoring case; otherwise the folder; otherwise null.
    Entry* FindChild(std::string_view name) const;
    // Returns the folder with that name, even if a file has the same name, or null.
    FolderEntry* FindFolder(std::string_view name) const;
    // The child's name as listings show it: a folder that has the same name as a file beside it ends in "/",
    // so that joined to this folder's path the name leads to the folder.
    std::string GetListedName(const Entry& child) const;

private:
    struct Named {
        Entry* file = nullptr;
        FolderEntry* folder = nullptr;
    };
    const Named* Find(std::string_view name) const;

    std::vector<std::unique_ptr<Entry>> children;
    // By folded name; filled on the first lookup, so that reading a large archive does not take longer.
    mutable std::unordered_map<std::string, Named> index;
    mutable std::size_t indexedCount = 0;
};

// The root of a folder document's tree.
class RootEntry final : public FolderEntry {
public:
    std::string GetName() const override { return {}; }
    void GetStatus(EntryStatus& status) const override;

    std::string rootName; // path of the archive or of the folder's source
};

// A folder inside an archive.
class NamedFolderEntry final : public FolderEntry {
public:
    explicit NamedFolderEntry(std::string_view folderName) : name(folderName) {}
    std::string GetName() const override { return name; }

private:
    std::string name;
};

} // namespace keltavlo
