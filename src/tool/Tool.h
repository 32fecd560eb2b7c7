#pragma once

#include "app/HeadlessApplication.h"
#include "tool/archives/ArchiveNotes.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace keltavlo {

// The command-line tool, which uses the program's documents. Texts are UTF-8. Prints results to `output` and
// failures, one sentence each, to `errors`.
class Tool : private ArchiveNotes {
public:
    // With `showProgress`, shows the current file on the last line of `errors`, which must be a terminal.
    Tool(std::ostream& outputStream, std::ostream& errorStream, bool showProgress);

    // Returns the exit code: 0 if everything succeeded, 2 if the arguments cannot be understood, 128 plus the
    // number of a signal that ended the run, otherwise 1.
    int Run(const std::vector<std::string>& arguments);

    HeadlessApplication& GetApplication() { return application; }
    std::ostream& Output() { return output; }
    // Reports a failure and remembers that there was one.
    void Fail(const std::string& sentence);
    bool HasFailed() const { return failed; }
    // Reports that the file could not be saved.
    void FailSaving(const std::string& path, const std::exception& failure);
    // Reports something that was skipped or done in another way than asked.
    void Note(const std::string& sentence);
    // Shows the current file; an empty name clears the line.
    void ShowProgress(const std::string& name);

private:
    void NoteArchive(const std::string& sentence) override { Note(sentence); }

    std::ostream& output;
    std::ostream& errors;
    bool isTerminal;
    bool failed = false;
    HeadlessApplication application;
};

} // namespace keltavlo
