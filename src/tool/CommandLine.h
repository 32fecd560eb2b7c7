#pragma once

#include "tool/ToolArguments.h"

namespace keltavlo {

struct ToolCommand;

// The result of parsing a command line: a command with its arguments, or a text to print instead.
struct CommandLine {
    const ToolCommand* command = nullptr; // null if there is a text
    ToolArguments arguments;
    std::string text; // the help or the version
};

// Accepts options anywhere after the command; everything after "--" is a path. Throws UsageError.
CommandLine ParseCommandLine(const std::vector<std::string>& words);

// An option as the help describes it.
struct OptionText {
    std::vector<std::string> names; // with their dashes, the short one first
    std::string value; // the choices separated by "|", or a word in capitals; empty if there is none
    std::string help;
};

// A command and all its options, for the manual and for completions.
struct CommandText {
    const ToolCommand* command;
    std::vector<OptionText> options;
};
std::vector<CommandText> DescribeCommands();

} // namespace keltavlo
