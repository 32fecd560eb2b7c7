#pragma once

#include <set>
#include <span>
#include <string>

namespace keltavlo {

// Finds names for new files in one place, where names that differ only in case may clash.
class NewNames {
public:
    // `names` are all names that Take will be called with.
    explicit NewNames(std::span<const std::string> names);

    // Returns the name itself. If an earlier name was equal, ignoring case, returns one with a number:
    // "a.wal", "A_2.wal".
    std::string Take(const std::string& name);

private:
    std::set<std::string> all, used; // folded
};

} // namespace keltavlo
