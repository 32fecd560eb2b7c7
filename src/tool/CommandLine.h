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

} // namespace keltavlo
