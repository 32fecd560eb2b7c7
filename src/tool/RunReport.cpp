#include "tool/RunReport.h"

#include "framework/core/Path.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"

#include <algorithm>
#include <cctype>

namespace keltavlo {

RunReport::RunReport(Tool& reportingTool, const ToolArguments& arguments, std::string verb,
                     std::size_t totalCount)
    : tool(reportingTool), isQuiet(arguments.quiet), isVerbose(arguments.verbose), pastVerb(std::move(verb)),
      total(totalCount) {}

void RunReport::AddDone(const std::string& from, const std::string& to) {
    ++done;
    if (isVerbose)
        Note("\"" + ToDisplayPath(from) + "\" was " + pastVerb + " to \"" + ToDisplayPath(to) + "\".");
}

void RunReport::AddSkipped(const std::string& sentence) {
    ++skipped;
    Note(sentence);
}

void RunReport::Note(const std::string& sentence) {
    if (!isQuiet) tool.Note(sentence);
}

void RunReport::ShowProgress(const std::string& name) {
    constexpr std::chrono::milliseconds pause(100);
    const Clock::time_point now = Clock::now();
    if (isQuiet || total < 2 || now - lastShown < pause) return;
    lastShown = now;
    const std::size_t count = done + skipped + failed + 1;
    tool.ShowProgress(std::to_string(count) + " of " + std::to_string(total) + " (" +
                      std::to_string(100 * count / total) + " %): " + ToDisplayPath(name));
}

void RunReport::AddLost(std::size_t count) {
    done -= std::min(done, count);
    failed += count;
}

void RunReport::Finish() {
    if (isQuiet) return;
    std::string verb = pastVerb;
    verb.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(verb.front())));
    const std::size_t left = total - std::min(total, done + skipped + failed);
    tool.Note(verb + " " + std::to_string(done) + ", skipped " + std::to_string(skipped) + ", failed " +
              std::to_string(failed) + (left > 0 ? ", not started " + std::to_string(left) : "") + ".");
}

} // namespace keltavlo
