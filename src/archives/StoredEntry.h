#pragma once

#include "archives/Entry.h"
#include "archives/EntryFile.h"

namespace keltavlo {

// A file entry whose bytes are part of its archive's file, read on first use. Changes stay in memory.
class StoredEntry : public Entry {
public:
    void GetStatus(EntryStatus& status) const override;
    std::unique_ptr<CFile> OpenEntry(unsigned flags, CFileException* failure, FolderDocument& owner) override;

protected:
    // The position of the bytes: `stored` of them at `offset` in the archive's file, followed by zeros up to
    // `length`. An entry longer than the whole file cannot be opened.
    struct Extent {
        std::uint64_t offset = 0;
        std::uint64_t stored = 0;
        std::uint64_t length = 0;
    };
    virtual Extent GetExtent() const = 0;

private:
    std::unique_ptr<CFile> MakeFile(FolderDocument& owner);
    std::shared_ptr<EntryBytes> Load(FolderDocument& owner);

    struct Use {
        std::weak_ptr<EntryBytes> loaded;    // while a file over them is open
        std::shared_ptr<EntryBytes> changed; // set by the first write
    };
    // Created when the entry is first opened, because most entries of a large archive never are. Files over
    // the entry use it to check whether the entry still exists.
    std::shared_ptr<Use> use;
};

} // namespace keltavlo
