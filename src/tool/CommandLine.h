#pragma once

#include "tool/ToolArguments.h"

namespace keltavlo {

struct ToolCommand;

// A command line that was understood: a command with its arguments, or a text to show in its place.
struct CommandLine {
    const ToolCommand* command = nullptr; // null if there is a text
    ToolArguments arguments;
    std::string text; // the help or the version
};

// Options may appear anywhere behind the command; behind "--" everything is a path. Throws UsageError.
CommandLine ParseCommandLine(const std::vector<std::string>& words);

// An option as the help describes it.
struct OptionText {
    std::vector<std::string> names; // with their dashes, the short one first
    std::string value; // the choices with "|" between them, or a word in capitals; empty for none
    std::string help;
};

// A command and all its options, for the manual and for completions.
struct CommandText {
    const ToolCommand* command;
    std::vector<OptionText> options;
};
std::vector<CommandText> DescribeCommands();

} // namespace keltavlo
