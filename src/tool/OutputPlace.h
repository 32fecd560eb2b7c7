#pragma once

#include "tool/output/OutputBatch.h"
#include "tool/output/OutputFolders.h"
#include "tool/output/TemporaryNames.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace keltavlo {

class Tool;

// The files that one run of the tool writes. They get their names together, whole, when enough of them wait
// and in Finish. It refuses to overwrite what the run reads or has written, whatever name or link leads
// there. Failures are reported to the tool.
class OutputPlace {
public:
    // With `force`, other existing files are overwritten.
    OutputPlace(Tool& reportingTool, bool force);

    // Names a file that the run reads; of an entry, the archive on the disk counts. Call it for all of them
    // before the first output.
    void AddInput(const std::string& path);
    // Refuses outputs that links lead out of the folder. Call it before the first output.
    void KeepInside(const std::string& folder) { folders.KeepInside(folder); }

    // Takes the bytes for the file of that path, and makes the folders that lead to it. False, after
    // reporting why, if the file must not or cannot be written.
    bool Write(const std::string& path, std::span<const std::byte> bytes);
    // Publishes all outputs that still wait and makes them durable. Without it they vanish. False if an
    // output that was accepted could not be published.
    bool Finish();
    // Outputs that were accepted but could not be published.
    std::size_t GetLostCount() const { return lostCount; }

    // Write in two steps, of which the first may run in any thread. At most so many files may wait for
    // Accept.
    std::size_t GetStagedLimit() const { return std::max<std::size_t>(1, batch.GetCapacity() / 2); }
    StagedFile Stage(const std::string& path, std::span<const std::byte> bytes);
    bool Accept(const std::string& path, StagedFile file);
    // Publishes some of the outputs early. Call it while other threads make the next ones.
    void UsePause() { batch.UsePause(); }
    // Whether a file that must stay has the path, so that making its bytes is useless. May run in any thread.
    bool IsTaken(const std::string& path);
    // Reports a path that is taken.
    void RefuseTaken(const std::string& path);

private:
    using Identity = std::pair<std::uint64_t, std::uint64_t>; // device, inode

    bool MayWrite(const std::string& path, const std::string& target);
    // The identity is that of the file at the target, if there is one.
    std::string ReasonAgainst(const std::string& target, const std::optional<Identity>& identity) const;

    Tool& tool;
    bool overwrites;
    std::set<Identity> inputs;
    std::set<Identity> overwritten;
    std::set<std::string> targets; // outputs that were accepted
    std::size_t lostCount = 0;
    OutputFolders folders;
    TemporaryNames names; // outlives what waits in the batch
    OutputBatch batch;
};

} // namespace keltavlo
