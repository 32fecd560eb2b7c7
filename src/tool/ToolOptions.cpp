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

void AddJsonOption(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "--json", arguments.json, "Write JSON: an array with one object for each path.");
}

void AddRecursiveOption(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "-r,--recursive", arguments.recursive,
            "List the files of all folders below, and of the archives among them.");
}

void AddArchivesOption(CLI::App& command, ToolArguments& arguments) {
    command
        .add_flag_callback(
            "--no-archives", [&arguments] { arguments.enterArchives = false; },
            "Treat archives inside a folder or another archive as files.")
        ->disable_flag_override();
}

void AddFormatOption(CLI::App& command, ToolArguments& arguments) {
    command
        .add_option_function<std::string>(
            "--to", [&arguments](const std::string& format) { arguments.format = "." + format; },
            "The format of the outputs: " + ListFormats() + ". A folder or an archive requires it.")
        ->type_name("FORMAT");
}

void AddForceOption(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "-f,--force", arguments.force,
            "Overwrite existing files, but never one that the same run reads or has written.");
}

void AddPackOptions(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "--wad2", arguments.wad2, "Write a WAD2 of Quake, not a WAD3 of Half-Life.");
    AddFlag(command, "--append", arguments.append, "Add the files to an archive that exists.");
    AddFlag(command, "--replace", arguments.replace,
            "Replace the entries of the files' names in an archive.");
    AddFlag(
        command, "--delete", arguments.remove,
        "Delete the entries of the files' names from an archive; a LIST may name files that do not exist.");
}

} // namespace keltavlo
