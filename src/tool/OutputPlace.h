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

// Writes the files of one run. They are published whole and in batches, the last of them by Finish. Refuses
// to overwrite what the run reads or has written, whatever name or link leads there. Reports all failures to
// the tool.
class OutputPlace {
public:
    // With `force`, overwrites other existing files.
    OutputPlace(Tool& reportingTool, bool force);

    // Protects a file that the run reads; for an entry, the archive on the disk. Call it for all of them
    // before the first output.
    void AddInput(const std::string& path);
    // Refuses outputs if links lead out of the folder. Call it before the first output.
    void KeepInside(const std::string& folder) { folders.KeepInside(folder); }

    // Accepts the bytes of the file at that path and creates the folders that lead to it. If the file must
    // not or cannot be written, reports why and returns false.
    bool Write(const std::string& path, std::span<const std::byte> bytes);
    // Publishes all outputs that still wait and makes them durable; without this call they vanish. Returns
    // false if an accepted output could not be published.
    bool Finish();
    // Returns how many accepted outputs could not be published.
    std::size_t GetLostCount() const { return lostCount; }

    // These are Write in two steps. The first may run in any thread. At most `GetStagedLimit()` files may
    // wait for the second.
    std::size_t GetStagedLimit() const { return std::max<std::size_t>(1, batch.GetCapacity() / 2); }
    StagedFile Stage(const std::string& path, std::span<const std::byte> bytes);
    bool Accept(const std::string& path, StagedFile file);
    // Publishes some of the outputs early. Call it while other threads make the next ones.
    void UsePause() { batch.UsePause(); }
    // Whether the path belongs to a file that must not be overwritten, so that its bytes need not be made.
    // May run in any thread.
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
    TemporaryNames names; // outlives the files that wait in the batch
    OutputBatch batch;
};

} // namespace keltavlo
