#include "tool/ToolOptions.h"

#include "formats/Codec.h"
#include "tool/ToolArguments.h"

#include <CLI/CLI.hpp>

namespace keltavlo {

namespace {

void AddFlag(CLI::App& command, const char* names, bool& flag, const char* help) {
    command.add_flag(names, flag, help)->disable_flag_override();
}

} // namespace

void AddFormatOption(CLI::App& command, ToolArguments& arguments) {
    command
        .add_option_function<std::string>(
            "--to", [&arguments](const std::string& format) { arguments.format = "." + format; },
            "The format of the outputs: " + ListFormats() + ". A folder or an archive requires it.")
        ->type_name("FORMAT");
}

void AddBatchOptions(CLI::App& command, ToolArguments& arguments) {
    command
        .add_option("-j,--jobs", arguments.jobs,
                    "The number of files to work on at a time; 0, the default, for one on each core.")
        ->type_name("a number of threads")
        ->check(CLI::Range(0, 1024));
    AddFlag(command, "-q,--quiet", arguments.quiet, "Report failures only.");
    AddFlag(command, "-v,--verbose", arguments.verbose, "Name every file that is written.");
    command.add_flag("!--no-archives", arguments.enterArchives,
                     "Treat archives in a folder or archive as files, not as folders.");
    AddFlag(command, "-f,--force", arguments.force,
            "Overwrite existing files, but never one that the same run reads or has written.");
}

} // namespace keltavlo
