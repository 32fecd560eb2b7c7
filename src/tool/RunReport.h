#pragma once

#include <chrono>
#include <string>

namespace keltavlo {

class Tool;
struct ToolArguments;

// Reports on a run over many files: notes, failures, progress on a terminal, and a summary.
class RunReport {
public:
    // `verb` is what happens to files, in the past tense: "converted". The run has `totalCount` files.
    RunReport(Tool& reportingTool, const ToolArguments& arguments, std::string verb, std::size_t totalCount);

    // Call one of these for each file.
    void AddDone(const std::string& from, const std::string& to);
    void AddSkipped(const std::string& sentence);
    void AddFailed() { ++failed; } // after reporting why

    // Reports something that was done in another way than asked, unless --quiet is given.
    void Note(const std::string& sentence);
    // Shows the current file on the terminal, at most ten times a second.
    void ShowProgress(const std::string& name);
    // Counts `count` files as failed instead of done, because they could not be published. The reason has
    // been reported.
    void AddLost(std::size_t count);
    // Prints the summary, unless --quiet is given.
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
