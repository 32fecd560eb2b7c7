#pragma once

#include "framework/core/DiskFile.h"

namespace keltavlo {

// A temporary file beside a file that is being saved. While it exists a record in the user's state folder
// names it, so that the next start can remove it if this process is killed; a lock on the record tells that
// the save still runs.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& target);
    ~TemporaryFile(); // removes the file, unless it was renamed, and the record

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int GetDescriptor() const { return descriptor.Get(); }
    void RenameTo(const std::string& target);

private:
    std::string path;
    Descriptor descriptor;
    std::string recordPath;
    Descriptor record; // not open when the state folder cannot be written
};

} // namespace keltavlo
