#pragma once

#include "framework/core/DiskFile.h"

// A temporary file beside a file that is being saved. While it exists a record in the user's state folder
// names it, so that the next start can remove it if this process is killed; a lock on the file tells that its
// save still runs.
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
    std::string record; // a symbolic link to the file; empty when the state folder cannot be written
    Descriptor descriptor;
};
