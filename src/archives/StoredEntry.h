#pragma once

#include "archives/Entry.h"
#include "archives/EntryFile.h"

namespace keltavlo {

// A file entry whose bytes lie in its archive's file. They are read when the entry is first used; changed
// ones stay.
class StoredEntry : public Entry {
public:
    void GetStatus(EntryStatus& status) const override;
    std::unique_ptr<CFile> OpenEntry(unsigned flags, CFileException* failure, FolderDocument& owner) override;

protected:
    // Where the bytes lie: `stored` of them at `offset` of the archive's file, followed by zeros up to
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
        std::weak_ptr<EntryBytes> loaded;    // for as long as a file is open over them
        std::shared_ptr<EntryBytes> changed; // set by the first write
    };
    // Made when the entry is first opened: most of a large archive's never are. Files over the entry see by
    // it whether the entry still exists.
    std::shared_ptr<Use> use;
};

} // namespace keltavlo
