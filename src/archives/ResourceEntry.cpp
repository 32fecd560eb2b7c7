#include "archives/ResourceEntry.h"

#include "archives/EntryFile.h"

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
    return std::make_unique<EntryFile>(std::make_shared<EntryBytes>(data.begin(), data.end()), data.size(),
                                       [] {});
}
