#pragma once

#include "tool/pictures/PaletteOptions.h"
#include "tool/pictures/TextureFields.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace keltavlo {

// What the command line asks a command to do. Each command reads the fields of its own options.
struct ToolArguments {
    std::vector<std::string> inputs;
    std::string output; // of commands that write
    std::string format; // with its dot; empty without --to
    unsigned jobs = 0;  // 0 for one on each core
    bool quiet = false;
    bool verbose = false;
    bool force = false;
    bool recursive = false;
    bool json = false;
    bool enterArchives = true; // archives in a tree count as folders
    bool metadata = false;
    bool wad2 = false;
    bool append = false;
    bool replace = false;
    bool remove = false;
    PaletteOptions palette;
    TextureFields set;
};

// The command line cannot be understood; the text says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace keltavlo
