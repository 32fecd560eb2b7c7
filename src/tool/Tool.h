#pragma once

#include "app/HeadlessApplication.h"
#include "tool/archives/ArchiveNotes.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace keltavlo {

// The command-line companion: a thin face over the documents. Texts are UTF-8; results go to `output`,
// failures, one sentence each, to `errors`.
class Tool : private ArchiveNotes {
public:
    // `showProgress` writes the file at work over and over on one line of `errors`, for a terminal.
    Tool(std::ostream& outputStream, std::ostream& errorStream, bool showProgress);

    // 0 only when all went well; 2 when the arguments cannot be understood.
    int Run(const std::vector<std::string>& arguments);

    HeadlessApplication& GetApplication() { return application; }
    std::ostream& Output() { return output; }
    // Reports a failure and remembers that there was one.
    void Fail(const std::string& sentence);
    bool HasFailed() const { return failed; }
    // Reports that the file could not be saved.
    void FailSaving(const std::string& path, const std::exception& failure);
    // Names something that was done otherwise than asked, or left out.
    void Note(const std::string& sentence);
    // The file that is worked on; an empty name clears the line.
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
