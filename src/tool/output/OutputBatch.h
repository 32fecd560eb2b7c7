#pragma once

#include "tool/output/StagedFile.h"

#include <functional>
#include <map>

namespace keltavlo {

// Makes outputs durable together. One sync of each file system writes their bytes before the first of them
// gets its name, and another writes the names at the end. So even after a crash of the system, each output is
// whole or absent, and an overwritten file is the old or the new one. A single output is synced alone.
class OutputBatch {
public:
    // Receives the path and the exception of each output that could not be published.
    using ReportFailure = std::function<void(const std::string&, const std::exception&)>;

    // Raises the process's limit of open files, because outputs that wait are open files.
    explicit OutputBatch(ReportFailure reportFailure);

    // Takes over an output; `shownPath` is for error reports. Publishes the waiting outputs when they become
    // too many at once.
    void Add(StagedFile file, bool overwrite, std::string shownPath);
    // Publishes what waits if that is worth a sync. Call it while other threads make the next outputs.
    void UsePause();
    // Returns the number of outputs that may wait.
    std::size_t GetCapacity() const { return capacity; }
    // Publishes the waiting outputs and makes all names durable.
    void Finish();

private:
    struct Waiting {
        StagedFile file;
        bool overwrite;
        std::string shownPath;
        std::uint64_t device;
    };

    void Publish();
    void PublishSingle();
    void GiveName(Waiting& output);

    ReportFailure report;
    std::size_t capacity; // outputs
    std::vector<Waiting> waiting;
    std::uint64_t waitingBytes = 0;
    std::map<std::uint64_t, Descriptor> devices; // an open file on each file system
    bool isSingle = true;                        // nothing was published yet
};

} // namespace keltavlo
