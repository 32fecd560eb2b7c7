#pragma once

#include "framework/core/DiskFile.h"

namespace keltavlo {

// The journal of running saves, a folder among the user's data.

// The end of every temporary file's name.
inline constexpr const char* temporarySuffix = ".keltavlo-save";

// A name that differs from that of any other save, even of a process that was killed and had the same number.
std::string UniqueSaveName();

// Lists the temporary files of a save in the journal for as long as it lives. A lock on the record shows that
// the save still runs.
class SaveRecord {
public:
    // `name` differs from that of every other record. Has no effect if the journal cannot be written.
    explicit SaveRecord(const std::string& name);
    ~SaveRecord();

    // Call it before the file is made. Safe to call from several threads.
    void Add(const std::string& temporary);

    SaveRecord(const SaveRecord&) = delete;
    SaveRecord& operator=(const SaveRecord&) = delete;

private:
    std::string path;
    Descriptor file; // open while there is a record
};

// Removes the temporary files that killed saves of this user left behind. Call this once at the start.
void RemoveAbandonedSaves();

} // namespace keltavlo
