#pragma once

#include <string>

namespace keltavlo {

// The state in which a file dialog closed; the next one starts from it.
struct FileDialogMemory {
    std::string folder;        // on the disk or in an archive; empty before the first dialog
    bool lowerDetails = false; // whether the lower list shows details
};

} // namespace keltavlo
