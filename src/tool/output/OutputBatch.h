#pragma once

#include "tool/output/StagedFile.h"

#include <functional>
#include <map>

namespace keltavlo {

// Outputs that become durable together. Their bytes are written out by one sync of each file system before
// the first of them gets its name, and the names by another at the end. So after a crash of the system, too,
// each output is whole or absent, and a file that is overwritten is the old or the new one. An output on its
// own is synced alone.
class OutputBatch {
public:
    // Receives the path and the exception of each output that could not be published.
    using ReportFailure = std::function<void(const std::string&, const std::exception&)>;

    // Raises the process's limit of open files, because waiting outputs are open files.
    explicit OutputBatch(ReportFailure reportFailure);

    // Takes an output over; `shownPath` is for a report. Publishes what waits when that gets too much.
    void Add(StagedFile file, bool overwrite, std::string shownPath);
    // Publishes what waits if that is worth a sync. Call it while other threads make the next outputs.
    void UsePause();
    // The number of outputs that may wait.
    std::size_t GetCapacity() const { return capacity; }
    // Publishes what waits and makes all names durable.
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
