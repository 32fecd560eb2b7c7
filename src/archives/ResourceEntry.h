#pragma once

#include "archives/Entry.h"

#include <span>

namespace keltavlo {

// A file inside the program; its bytes live as long as the process.
class ResourceEntry final : public Entry {
public:
    ResourceEntry(std::string fileName, std::span<const std::byte> bytes)
        : name(std::move(fileName)), data(bytes) {}

    std::string GetName() const override { return name; }
    void GetStatus(EntryStatus& status) const override;
    // accessDenied when the flags ask for writing.
    std::unique_ptr<CFile> OpenEntry(unsigned flags, CFileException* failure, FolderDocument& owner) override;

private:
    std::string name;
    std::span<const std::byte> data;
};

} // namespace keltavlo
