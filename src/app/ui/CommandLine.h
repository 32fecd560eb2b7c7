#pragma once

#include <string>
#include <vector>

namespace keltavlo {

// What the program was started with.
struct CommandLine {
    std::vector<std::string> paths; // to open, byte for byte; relative ones lie below the current folder
    std::string error;              // a sentence; empty when the arguments are understood
    bool help = false;
    bool version = false;
};

// The first argument is the program's own name.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);
// What --help and --version print. Needs a QCoreApplication.
std::string HelpText();
std::string VersionText();

} // namespace keltavlo
