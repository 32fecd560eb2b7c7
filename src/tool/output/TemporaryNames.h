#pragma once

#include "framework/core/SaveJournal.h"

#include <memory>
#include <mutex>

namespace keltavlo {

// Names for the temporary files of a run, all in one record of the save journal. Safe to call from several
// threads.
class TemporaryNames {
public:
    // The path of a new temporary file in the folder of the target. The journal lists it from now on, so that
    // the next run removes it if this one is killed.
    std::string Next(const std::string& target);

private:
    std::mutex mutex;
    std::string runName;
    std::unique_ptr<SaveRecord> record; // made with the first name: most runs need none
    unsigned count = 0;
};

} // namespace keltavlo
