#include "archives/Entry.h"

#include "framework/core/Text.h"

namespace keltavlo {

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
    if (!found) return nullptr;
    return found->file ? found->file : found->folder;
}

FolderEntry* FolderEntry::FindFolder(std::string_view name) const {
    const Named* found = Find(name);
    return found ? found->folder : nullptr;
}

std::string FolderEntry::GetListedName(const Entry& child) const {
    std::string name = child.GetName();
    const bool isFolder = dynamic_cast<const FolderEntry*>(&child) != nullptr;
    if (isFolder && FindChild(name) != &child) name += '/';
    return name;
}

const FolderEntry::Named* FolderEntry::Find(std::string_view name) const {
    for (; indexedCount < children.size(); ++indexedCount) {
        Entry* child = children[indexedCount].get();
        Named& named = index[FoldCase(child->GetName())];
        auto* folder = dynamic_cast<FolderEntry*>(child);
        if (folder && !named.folder) named.folder = folder;
        if (!folder && !named.file) named.file = child;
    }
    const auto place = index.find(FoldCase(name));
    return place == index.end() ? nullptr : &place->second;
}

void RootEntry::GetStatus(EntryStatus& status) const {
    FolderEntry::GetStatus(status);
    status.browsable = true;
    status.onDisk = true;
}

} // namespace keltavlo
