#pragma once

#include <cstddef>
#include <span>

namespace CLI {
class App;
}

namespace keltavlo {

class Tool;
struct ToolArguments;

// A command of the tool.
struct ToolCommand {
    const char* name;
    const char* paths;         // as the usage shows them
    const char* help;          // one sentence
    const char* details;       // further sentences
    std::size_t maximumInputs; // at least one is required
    bool hasOutput;            // the last path is the output
    void (*addOptions)(CLI::App&, ToolArguments&);
    void (*run)(Tool&, const ToolArguments&);
};

// All commands, in the order of the help.
std::span<const ToolCommand> Commands();

} // namespace keltavlo
