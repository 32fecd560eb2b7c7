#pragma once

#include "framework/core/SaveJournal.h"

#include <memory>
#include <mutex>

namespace keltavlo {

// Names a run's temporary files, all in one record of the save journal. Safe to call from several threads.
class TemporaryNames {
public:
    // Returns the path of a new temporary file in the folder of the target. From now on the journal lists it,
    // so that the next run removes it if this one is killed.
    std::string Next(const std::string& target);

private:
    std::mutex mutex;
    std::string runName;
    std::unique_ptr<SaveRecord> record; // created with the first name, because most runs need none
    unsigned count = 0;
};

} // namespace keltavlo
