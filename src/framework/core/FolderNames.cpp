#include "framework/core/FolderNames.h"

#include <cerrno>
#include <dirent.h>
#include <memory>
#include <string_view>

namespace keltavlo {

std::vector<std::string> NamesInFolder(const std::string& folder, std::error_code& failure) {
    std::vector<std::string> names;
    errno = 0;
    const auto close = [](DIR* open) { closedir(open); };
    const std::unique_ptr<DIR, decltype(close)> open(opendir(folder.c_str()));
    while (const dirent* entry = open ? readdir(open.get()) : nullptr) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") names.emplace_back(name);
        errno = 0;
    }
    failure.assign(errno, std::generic_category());
    return names;
}

} // namespace keltavlo
