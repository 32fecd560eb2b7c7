#pragma once

#include "framework/core/SaveJournal.h"

namespace keltavlo {

// A temporary file beside a file that is being saved. While it exists, the save journal lists it, so that the
// next start removes it if this process is killed.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& target);
    ~TemporaryFile(); // removes the file unless it was renamed

    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int GetDescriptor() const { return descriptor.Get(); }
    void RenameTo(const std::string& target);

private:
    TemporaryFile(const std::string& target, const std::string& name);

    std::string path;
    SaveRecord record;
    Descriptor descriptor;
};

} // namespace keltavlo
