#pragma once

#include "framework/core/CMemFile.h"

#include <functional>

namespace keltavlo {

// The bytes of an entry, shared by the entry and all files over it. They are freed when the last file closes,
// unless they were changed. A file may outlive its archive.
using EntryBytes = std::vector<std::byte>;

// A file over an entry's bytes that reads and overwrites them but cannot grow. It has no path.
class EntryFile final : public CMemFile {
public:
    // `length` may be less than the buffer's size. `noteWrite` runs before every change. The file counts as
    // unchanged until the object behind `entryLife` is deleted.
    EntryFile(std::shared_ptr<EntryBytes> entryBytes, std::size_t length, std::function<void()> noteWrite,
              std::weak_ptr<const void> entryLife);

    void Write(const void* buffer, std::size_t count) override;
    void SetLength(std::uint64_t length) override;
    std::unique_ptr<CFile> Duplicate() const override;
    bool IsUnchanged() const override { return !life.expired(); }

protected:
    const char* GetFullSentence() const override {
        return "The new contents are too large: files in an archive cannot grow.";
    }

private:
    std::shared_ptr<EntryBytes> bytes;
    std::function<void()> beforeWrite;
    std::weak_ptr<const void> life;
};

} // namespace keltavlo
