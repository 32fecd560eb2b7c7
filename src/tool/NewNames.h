#pragma once

#include <set>
#include <span>
#include <string>

namespace keltavlo {

// Names for new files in one place, where names that differ only in case may clash.
class NewNames {
public:
    // All names that are going to be asked for.
    explicit NewNames(std::span<const std::string> names);

    // The name itself if no earlier one was equal without regard to case, otherwise one with a number:
    // "a.wal", "A_2.wal".
    std::string Take(const std::string& name);

private:
    std::set<std::string> all, used; // folded
};

} // namespace keltavlo
