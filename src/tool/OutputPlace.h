#pragma once

#include <cstddef>
#include <set>
#include <span>
#include <string>
#include <utility>

namespace keltavlo {

class Tool;

// The files that one run of the tool writes. It refuses to overwrite what the run reads or has written,
// whatever name or link leads there. Failures are reported to the tool.
class OutputPlace {
public:
    // With `force`, other existing files are overwritten.
    OutputPlace(Tool& reportingTool, bool force) : tool(reportingTool), overwrites(force) {}

    // Names a file that the run reads; of an entry, the archive on the disk counts. Call it for all of them
    // before the first output.
    void AddInput(const std::string& path);
    // Whether the file may be written; makes the folders that lead to it.
    bool Prepare(const std::string& path);
    // The file was written by other means than Write.
    void AddWritten(const std::string& path);
    // Prepares the file and writes the bytes to it. False, after reporting why, if it was not written.
    bool Write(const std::string& path, std::span<const std::byte> bytes);

private:
    using Identity = std::pair<std::uint64_t, std::uint64_t>; // device, inode

    bool MayOverwrite(const std::string& path);

    Tool& tool;
    bool overwrites;
    std::set<Identity> inputs, outputs;
};

} // namespace keltavlo
