#pragma once

#include "framework/core/CMemFile.h"

#include <functional>

namespace keltavlo {

// The bytes of an entry. An entry and the files over it share them: they go when the last file closes, unless
// they were changed, and a file may outlive the archive it came from.
using EntryBytes = std::vector<std::byte>;

// A file over an entry's bytes: reads them and can overwrite them, but cannot grow. It has no path.
class EntryFile final : public CMemFile {
public:
    // `length` may be less than the buffer's size. `noteWrite` runs before every change. The file counts as
    // unchanged while what `entryLife` points to exists.
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
