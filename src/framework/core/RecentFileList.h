#pragma once

#include <string>
#include <vector>

namespace keltavlo {

class ProfileStore;

// The files opened or saved last, newest first; kept in the user's settings. A change takes in what other
// programs have added to the list meanwhile.
class RecentFileList {
public:
    static constexpr std::size_t capacity = 4;

    explicit RecentFileList(ProfileStore& settings);

    const std::vector<std::string>& GetPaths() const { return paths; }
    void Add(const std::string& path);
    void Remove(const std::string& path);

private:
    void Change(const std::string& path, bool isAdded);

    ProfileStore& profile;
    std::vector<std::string> paths;
};

} // namespace keltavlo
