#include "tool/BatchRun.h"

#include "framework/core/CFile.h"
#include "framework/core/Path.h"
#include "tool/NewNames.h"
#include "tool/OutputPlace.h"
#include "tool/RunReport.h"
#include "tool/Tool.h"
#include "tool/ToolArguments.h"
#include "tool/output/Interruption.h"
#include "tool/output/OrderedWork.h"

#include <cerrno>
#include <mutex>

namespace keltavlo {

namespace {

// The result of a thread's work on a file.
struct Made {
    std::optional<StagedFile> staged;
    std::vector<std::string> notes;
    std::string failure;
    bool isTaken = false;    // the output must not be overwritten
    bool diskIsFull = false; // no further output can be written
};

class BatchRun {
public:
    BatchRun(Tool& reportingTool, const ToolArguments& arguments, BatchVerb batchVerb,
             std::vector<BatchFile> batchFiles, OutputPlace& outputPlace, const MakeOutput& makeFunction)
        : tool(reportingTool), verb(batchVerb), files(std::move(batchFiles)), outputs(outputPlace),
          makeOutput(makeFunction), report(reportingTool, arguments, batchVerb.past, files.size()) {}

    void Run(unsigned threadCount) {
        RenameClashes();
        OrderedWork<Made> work(files.size(), outputs.GetStagedLimit(),
                               [this](std::size_t i) { return Make(files[i]); });
        work.Run(
            threadCount, [this](std::size_t i, Made made) { return Take(files[i], std::move(made)); },
            [this] { outputs.UsePause(); });
        outputs.Finish();
        report.AddLost(outputs.GetLostCount());
        tool.ShowProgress({});
        if (files.size() > 1) report.Finish();
        if (const int signal = Interruption::GetSignal()) throw InterruptedError(signal);
    }

private:
    // Many disks ignore case in names. Equal names stay, and the second output is refused later.
    void RenameClashes() {
        std::vector<std::string> targets;
        for (const BatchFile& file : files) targets.push_back(file.target);
        NewNames names(targets);
        std::set<std::string> seen;
        for (BatchFile& file : files) {
            if (file.target.empty() || !seen.insert(file.target).second) continue;
            std::string target = names.Take(file.target);
            if (target != file.target)
                report.Note("Another output has the same name as \"" + ToDisplayPath(file.target) +
                            "\", ignoring case; this one becomes \"" + ToDisplayPath(target) + "\".");
            file.target = std::move(target);
        }
    }

    // Runs in any thread.
    Made Make(const BatchFile& file) {
        Made made;
        if (file.target.empty() || Interruption::GetSignal() != 0) return made;
        try {
            made.isTaken = outputs.IsTaken(file.target);
            if (!made.isTaken) Write(file, made);
        } catch (const std::exception& failure) {
            made.failure = "Cannot " + std::string(verb.infinitive) + " \"" +
                           ToDisplayPath(file.source.path) + "\". " + SentenceOf(failure);
        }
        return made;
    }

    void Write(const BatchFile& file, Made& made) {
        ConvertedFile converted = makeOutput(*Open(file.source), file);
        made.notes = std::move(converted.notes);
        try {
            made.staged.emplace(outputs.Stage(file.target, converted.bytes));
        } catch (const CException& failure) {
            made.failure = DescribeFailure(Direction::saving, file.target, failure);
            const auto* fileFailure = dynamic_cast<const CFileException*>(&failure);
            made.diskIsFull =
                fileFailure && (fileFailure->osError == ENOSPC || fileFailure->osError == EDQUOT);
        }
    }

    std::unique_ptr<CFile> Open(const TreeFile& source) {
        std::unique_lock lock(archives, std::defer_lock);
        if (source.entry) lock.lock();
        return OpenSource(source);
    }

    // Runs in the calling thread, in the order of the files.
    bool Take(const BatchFile& file, Made made) {
        const bool wasMade = made.staged || made.isTaken || !made.failure.empty() || file.target.empty();
        if (!wasMade) return false; // after a signal
        report.ShowProgress(file.source.name);
        if (file.target.empty())
            report.AddSkipped("Skipped \"" + ToDisplayPath(file.source.name) + "\": not a picture.");
        else if (WasWritten(file, made))
            report.AddDone(file.source.path, file.target);
        else
            report.AddFailed();
        if (made.diskIsFull) tool.Fail("The run ended early because the disk is full.");
        return !made.diskIsFull && Interruption::GetSignal() == 0;
    }

    bool WasWritten(const BatchFile& file, Made& made) {
        if (made.isTaken) outputs.RefuseTaken(file.target);
        if (!made.failure.empty()) tool.Fail(made.failure);
        if (!made.staged || !outputs.Accept(file.target, std::move(*made.staged))) return false;
        for (const std::string& note : made.notes)
            report.Note("\"" + ToDisplayPath(file.target) + "\" " + note);
        return true;
    }

    Tool& tool;
    const BatchVerb verb;
    std::vector<BatchFile> files;
    OutputPlace& outputs;
    const MakeOutput& makeOutput;
    RunReport report;
    std::mutex archives; // for all open archives, because only one thread may read them at a time
};

} // namespace

void RunBatch(Tool& tool, const ToolArguments& arguments, BatchVerb verb, std::vector<BatchFile> files,
              OutputPlace& outputs, const MakeOutput& makeOutput) {
    const Interruption interruption;
    BatchRun(tool, arguments, verb, std::move(files), outputs, makeOutput).Run(ThreadCount(arguments.jobs));
}

} // namespace keltavlo
