#include "tool/Tool.h"

#include "framework/core/Exceptions.h"
#include "framework/core/Text.h"
#include "tool/CommandLine.h"
#include "tool/CommandTable.h"
#include "tool/NameEscapes.h"
#include "tool/archives/ArchiveTypes.h"
#include "tool/output/Interruption.h"

#include <algorithm>
#include <ostream>

namespace keltavlo {

Tool::Tool(std::ostream& outputStream, std::ostream& errorStream, bool showProgress)
    : output(outputStream), errors(errorStream), isTerminal(showProgress),
      application([this](const std::string& text) {
          failed = true; // even if there is no memory for the text
          Fail(text);
      }) {
    RegisterArchiveTypes(application);
}

int Tool::Run(const std::vector<std::string>& arguments) {
    try {
        const CommandLine line = ParseCommandLine(arguments);
        if (line.command)
            line.command->run(*this, line.arguments);
        else
            output << line.text;
    } catch (const UsageError& error) {
        Fail(error.what());
        return 2;
    } catch (const InterruptedError& end) {
        Fail(end.what());
        return end.GetExitCode();
    } catch (const std::exception& failure) {
        Fail(SentenceOf(failure));
    }
    ShowProgress({});
    output.flush();
    if (!output) Fail("The output cannot be written.");
    return failed ? 1 : 0;
}

void Tool::Fail(const std::string& sentence) {
    failed = true;
    Note(sentence);
}

void Tool::FailSaving(const std::string& path, const std::exception& failure) {
    failed = true;
    Fail(DescribeFailure(Direction::saving, path, failure));
}

// The application's messages can have several lines.
void Tool::Note(const std::string& sentence) {
    std::string line = ToUtf8(sentence);
    std::replace(line.begin(), line.end(), '\n', ' ');
    ShowProgress({});
    errors << "keltavlo-tool: " << EscapeText(line) << "\n";
}

void Tool::ShowProgress(const std::string& name) {
    constexpr const char* clearLine = "\r\x1B[K";
    if (isTerminal) errors << clearLine << EscapeText(ToUtf8(name)) << std::flush;
}

} // namespace keltavlo
