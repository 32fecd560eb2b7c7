#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace keltavlo {

// What the command line asks for.
struct ToolArguments {
    std::string command;
    std::vector<std::string> paths;
    std::string format; // of --to, with its dot; empty without
    bool force = false;
    bool help = false;
    bool version = false;
};

// The command line cannot be understood; the text says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Options may appear anywhere; after "--" everything is a path.
ToolArguments ParseToolArguments(const std::vector<std::string>& arguments);

} // namespace keltavlo
