#pragma once

#include <string>
#include <vector>

namespace keltavlo {

class ProfileStore;

// The most recently opened or saved files, newest first, stored in the user's settings.
class RecentFileList {
public:
    static constexpr std::size_t capacity = 4;

    explicit RecentFileList(ProfileStore& settings);

    const std::vector<std::string>& GetPaths() const { return paths; }
    void Add(const std::string& path);
    void Remove(const std::string& path);

private:
    void Write();

    ProfileStore& profile;
    std::vector<std::string> paths;
};

} // namespace keltavlo
