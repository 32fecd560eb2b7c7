#pragma once

#include <string>
#include <vector>

namespace keltavlo {

// The arguments that the program was started with.
struct CommandLine {
    std::vector<std::string> paths; // to open, byte for byte; may be relative to the current folder
    std::string error;              // a sentence; empty if the arguments are valid
    bool help = false;
    bool version = false;
    bool service = false; // wait for requests on the session bus
};

// Reads the arguments of main: the program's name, then Qt's own options and the program's in any order. Qt
// reads its own again.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments);
// The output of --help and --version. Needs a QCoreApplication.
std::string HelpText();
std::string VersionText();

} // namespace keltavlo
