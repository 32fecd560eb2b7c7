#include "tool/Tool.h"

#include "formats/Codec.h"
#include "framework/core/Exceptions.h"
#include "framework/core/Text.h"
#include "tool/ToolCommands.h"
#include "tool/archives/ArchiveTypes.h"

#include <algorithm>
#include <ostream>

namespace keltavlo {

namespace {

struct CommandRow {
    const char* name;
    const char* arguments;
    const char* help;
    std::size_t pathCount;
    void (*run)(Tool&, const ToolArguments&);
};

constexpr CommandRow commands[] = {
    {"list", "PATH", "Lists an archive, a folder inside it or the built-in folder: size, type, name.", 1,
     ListFolder},
    {"info", "PATH", "Describes a file: format, size, names, flags, palette, counts.", 1, ShowInfo},
    {"convert", "IN OUT", "Writes the picture IN in the format of OUT's extension.", 2, Convert},
    {"convert", "TREE OUTDIR --to FORMAT",
     "Converts every picture in a folder or archive and keeps the folders.", 2, Convert},
    {"extract", "PATH OUTDIR", "Writes the files of an archive, and the textures of an MDL model as Targa.",
     2, Extract},
};

void PrintHelp(std::ostream& out) {
    out << "Usage: keltavlo-tool COMMAND ...\n\n";
    for (const CommandRow& row : commands)
        out << "  " << row.name << " " << row.arguments << "\n      " << row.help << "\n";
    out << "\nOptions:\n"
           "  --to FORMAT   "
        << ListFormats()
        << "\n"
           "  --force       overwrite existing files\n"
           "  --help        show this text\n"
           "  --version     show the version\n"
           "\nPaths may lead into archives as if these were folders. The exit code is 0 on success.\n";
}

const CommandRow& FindCommand(const ToolArguments& arguments) {
    if (arguments.command.empty()) throw UsageError("No command given; see --help.");
    const CommandRow* row =
        std::find_if(std::begin(commands), std::end(commands),
                     [&](const CommandRow& candidate) { return arguments.command == candidate.name; });
    if (row == std::end(commands)) throw UsageError("Unknown command: " + arguments.command + ".");
    if (arguments.paths.size() != row->pathCount)
        throw UsageError(arguments.command + " requires " + row->arguments + ".");
    return *row;
}

} // namespace

Tool::Tool(std::ostream& outputStream, std::ostream& errorStream, bool showProgress)
    : output(outputStream), errors(errorStream), isTerminal(showProgress),
      application([this](const std::string& text) {
          failed = true; // also when there is no memory to say so
          std::string sentence = text;
          std::replace(sentence.begin(), sentence.end(), '\n', ' ');
          Fail(sentence);
      }) {
    RegisterArchiveTypes(application);
}

int Tool::Run(const std::vector<std::string>& arguments) {
    try {
        const ToolArguments taken = ParseToolArguments(arguments);
        if (taken.help)
            PrintHelp(output);
        else if (taken.version)
            output << "keltavlo-tool " KELTAVLO_VERSION "\n";
        else
            FindCommand(taken).run(*this, taken);
    } catch (const UsageError& error) {
        Fail(error.what());
        return 2;
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

void Tool::Note(const std::string& sentence) {
    ShowProgress({});
    errors << "keltavlo-tool: " << ToUtf8(sentence) << "\n";
}

void Tool::ShowProgress(const std::string& name) {
    constexpr const char* clearLine = "\r\x1B[K";
    if (isTerminal) errors << clearLine << ToUtf8(name) << std::flush;
}

} // namespace keltavlo
