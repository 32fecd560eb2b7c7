#pragma once

#include <string>

namespace keltavlo {

// Where a file dialog ended: the next one starts there.
struct FileDialogMemory {
    std::string folder;        // on the disk or in an archive; empty before the first dialog
    bool lowerDetails = false; // the lower list shows details
};

} // namespace keltavlo
