#include "archives/Entry.h"

#include "framework/core/Text.h"

void FolderEntry::GetStatus(EntryStatus& status) const {
    status = {};
    status.exists = true;
    status.onDisk = false;
    status.attributes = CFileStatus::directoryAttribute;
}

std::unique_ptr<CFile> FolderEntry::OpenEntry(unsigned, CFileException* failure, FolderDocument&) {
    if (failure)
        *failure = CFileException(CFileException::accessDenied, CFileException::noOsError, GetName());
    return nullptr;
}

void FolderEntry::RemoveChildren() {
    index.clear();
    indexedCount = 0;
    children.clear();
}

Entry* FolderEntry::FindChild(std::string_view name) const {
    const Named* found = Find(name);
    return found ? found->first : nullptr;
}

FolderEntry* FolderEntry::FindFolder(std::string_view name) const {
    const Named* found = Find(name);
    return found ? found->firstFolder : nullptr;
}

const FolderEntry::Named* FolderEntry::Find(std::string_view name) const {
    for (; indexedCount < children.size(); ++indexedCount) {
        Entry* child = children[indexedCount].get();
        Named& named = index[FoldCase(child->GetName())];
        if (!named.first) named.first = child;
        if (!named.firstFolder) named.firstFolder = dynamic_cast<FolderEntry*>(child);
    }
    const auto place = index.find(FoldCase(name));
    return place == index.end() ? nullptr : &place->second;
}

void RootEntry::GetStatus(EntryStatus& status) const {
    FolderEntry::GetStatus(status);
    status.browsable = true;
    status.onDisk = true;
}
