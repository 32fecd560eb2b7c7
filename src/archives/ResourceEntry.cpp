#include "archives/ResourceEntry.h"

#include "archives/EntryFile.h"

namespace keltavlo {

void ResourceEntry::GetStatus(EntryStatus& status) const {
    status = {};
    status.exists = true;
    status.onDisk = false;
    status.size = data.size();
    status.attributes = CFileStatus::readOnlyAttribute | CFileStatus::hiddenAttribute;
}

std::unique_ptr<CFile> ResourceEntry::OpenEntry(unsigned flags, CFileException* failure, FolderDocument&) {
    if (flags & (CFile::modeWrite | CFile::modeReadWrite)) {
        if (failure) *failure = CFileException(CFileException::accessDenied, 0, name);
        return nullptr;
    }
    const auto bytes = std::make_shared<EntryBytes>(data.begin(), data.end());
    return std::make_unique<EntryFile>(
        bytes, data.size(), [] {}, bytes);
}

} // namespace keltavlo
