#include "framework/core/RecentFileList.h"

#include "framework/core/Path.h"
#include "framework/core/ProfileStore.h"

#include <algorithm>

namespace {

constexpr const char* section = "Recent File List";
constexpr const char* value = "Files";

} // namespace

RecentFileList::RecentFileList(ProfileStore* settings)

    : profile(settings) {
    if (profile) paths = profile->ReadStrings(section, value);
    paths.resize(std::min(paths.size(), capacity));
}

void RecentFileList::Add(const std::string& path) {
    std::erase_if(paths, [&](const std::string& old) { return SamePath(old, path); });
    paths.insert(paths.begin(), path);
    paths.resize(std::min(paths.size(), capacity));
    Write();
}

void RecentFileList::Remove(const std::string& path) {
    std::erase_if(paths, [&](const std::string& old) { return SamePath(old, path); });
    Write();
}

void RecentFileList::Write() {
    if (profile) profile->WriteStrings(section, value, paths);
}
