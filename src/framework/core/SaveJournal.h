#pragma once

#include "framework/core/DiskFile.h"

namespace keltavlo {

// The journal of running saves, a folder among the user's data.

// The end of every temporary file's name.
inline constexpr const char* temporarySuffix = ".keltavlo-save";

// Names a temporary file in the journal for as long as it lives. A lock on the record shows that the save
// still runs.
class SaveRecord {
public:
    // `name` differs from that of every other record. Without effect if the journal cannot be written.
    SaveRecord(const std::string& name, const std::string& temporary);
    ~SaveRecord();

    SaveRecord(const SaveRecord&) = delete;
    SaveRecord& operator=(const SaveRecord&) = delete;

private:
    std::string path;
    Descriptor file; // open while there is a record
};

// Removes the temporary files that killed saves of this user left; running saves keep theirs. Call once at
// start.
void RemoveAbandonedSaves();

} // namespace keltavlo
