#include "framework/core/RecentFileList.h"

#include "framework/core/CFile.h"
#include "framework/core/ProfileStore.h"

#include <algorithm>

namespace keltavlo {

namespace {

constexpr const char* section = "Recent File List";

// "File1" is the newest. Paths may hold bytes that are no text.
std::string ValueName(std::size_t n) {
    return "File" + std::to_string(n + 1);
}

ProfileStore::Bytes ToBytes(const std::string& path) {
    const auto* first = reinterpret_cast<const std::byte*>(path.data());
    return {first, first + path.size()};
}

std::vector<std::string> PathsIn(const ProfileStore::Section& values) {
    std::vector<std::string> paths;
    for (std::size_t n = 0; n < RecentFileList::capacity; ++n) {
        const auto value = values.find(ValueName(n));
        if (value != values.end() && !value->second.empty())
            paths.emplace_back(reinterpret_cast<const char*>(value->second.data()), value->second.size());
    }
    return paths;
}

ProfileStore::Section ToValues(const std::vector<std::string>& paths) {
    ProfileStore::Section values;
    for (std::size_t n = 0; n < paths.size(); ++n) values[ValueName(n)] = ToBytes(paths[n]);
    return values;
}

} // namespace

RecentFileList::RecentFileList(ProfileStore& settings)
    : profile(settings), paths(PathsIn(settings.GetSection(section))) {}

void RecentFileList::Add(const std::string& path) {
    Change(path, true);
}

void RecentFileList::Remove(const std::string& path) {
    Change(path, false);
}

void RecentFileList::Change(const std::string& path, bool isAdded) {
    std::vector<std::string> changed; // apart, so that running out of memory loses no entry
    const auto append = [&](const std::string& other) {
        const bool isKnown =
            SamePath(other, path) ||
            std::ranges::any_of(changed, [&](const std::string& old) { return SamePath(old, other); });
        if (!isKnown && changed.size() < capacity) changed.push_back(other);
    };
    if (isAdded) changed.push_back(path);
    profile.EditSection(section, [&](ProfileStore::Section& values) {
        std::ranges::for_each(PathsIn(values), append);
        std::ranges::for_each(paths, append); // that could not be written
        values = ToValues(changed);
    });
    paths = std::move(changed);
}

} // namespace keltavlo
