#pragma once

#include "tool/pictures/PaletteOptions.h"
#include "tool/pictures/TextureFields.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace keltavlo {

// The arguments of a command. Each command reads the fields of its own options.
struct ToolArguments {
    std::vector<std::string> inputs;
    std::string output; // for commands that write
    std::string format; // with its dot; empty without --to
    unsigned jobs = 0;  // 0 for one on each core
    bool quiet = false;
    bool verbose = false;
    bool force = false;
    bool recursive = false;
    bool json = false;
    bool enterArchives = true; // treat archives in a tree as folders
    bool metadata = false;
    bool wad2 = false;
    bool append = false;
    bool replace = false;
    bool remove = false;
    PaletteOptions palette;
    TextureFields set;
};

// The command line cannot be understood. The text says why.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace keltavlo
