#pragma once

#include <chrono>
#include <string>

namespace keltavlo {

class Tool;
struct ToolArguments;

// What a run over many files tells: notes, failures, how far it is on a terminal, and a line that sums up.
class RunReport {
public:
    // `verb` is what happens to files, in the past: "converted". `totalCount` files will be worked on.
    RunReport(Tool& reportingTool, const ToolArguments& arguments, std::string verb, std::size_t totalCount);

    // Each file ends in one of these.
    void AddDone(const std::string& from, const std::string& to);
    void AddSkipped(const std::string& sentence);
    void AddFailed() { ++failed; } // the tool was told why

    // Something that was done otherwise than asked; not with --quiet.
    void Note(const std::string& sentence);
    // The file that is worked on. The terminal's line changes at most ten times a second.
    void ShowProgress(const std::string& name);
    // Of the files done, so many could not be published after all; the tool was told why.
    void AddLost(std::size_t count);
    // Sums up; not with --quiet.
    void Finish();

private:
    using Clock = std::chrono::steady_clock;

    Tool& tool;
    const bool isQuiet, isVerbose;
    const std::string pastVerb;
    const std::size_t total;
    std::size_t done = 0, skipped = 0, failed = 0;
    Clock::time_point lastShown;
};

} // namespace keltavlo
