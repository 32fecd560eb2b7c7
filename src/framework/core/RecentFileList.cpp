#include "framework/core/RecentFileList.h"

#include "framework/core/CFile.h"
#include "framework/core/ProfileStore.h"

#include <algorithm>
#include <iterator>

namespace keltavlo {

namespace {

constexpr const char* section = "Recent File List";

// "File1" is the newest.
std::string ValueName(std::size_t n) {
    return "File" + std::to_string(n + 1);
}

ProfileStore::Bytes ToBytes(const std::string& path) {
    const auto* first = reinterpret_cast<const std::byte*>(path.data());
    return {first, first + path.size()};
}

} // namespace

RecentFileList::RecentFileList(ProfileStore& settings) : profile(settings) {
    for (std::size_t n = 0; n < capacity; ++n) {
        const auto bytes = profile.ReadBinary(section, ValueName(n));
        if (bytes && !bytes->empty())
            paths.emplace_back(reinterpret_cast<const char*>(bytes->data()), bytes->size());
    }
}

void RecentFileList::Add(const std::string& path) {
    std::vector<std::string> updated{path}; // a copy, so that running out of memory loses no entry
    std::ranges::copy_if(paths, std::back_inserter(updated),
                         [&](const std::string& old) { return !SamePath(old, path); });
    updated.resize(std::min(updated.size(), capacity));
    paths = std::move(updated);
    Write();
}

void RecentFileList::Remove(const std::string& path) {
    std::erase_if(paths, [&](const std::string& old) { return SamePath(old, path); });
    Write();
}

void RecentFileList::Write() {
    ProfileStore::Section values;
    for (std::size_t n = 0; n < paths.size(); ++n) values[ValueName(n)] = ToBytes(paths[n]);
    profile.WriteSection(section, values);
}

} // namespace keltavlo
