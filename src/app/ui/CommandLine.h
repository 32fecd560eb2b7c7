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
    bool service = false; // wait for requests on the session bus
};

// Reads the arguments of main: the program's name, then the toolkit's own options and ours in any order. The
// toolkit reads its own again.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);
// What --help and --version print. Needs a QCoreApplication.
std::string HelpText();
std::string VersionText();

} // namespace keltavlo
