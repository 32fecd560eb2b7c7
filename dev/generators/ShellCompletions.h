#pragma once

#include "tool/CommandLine.h"
#include "tool/CommandTable.h"

namespace keltavlo {

// Scripts that complete the command line of keltavlo-tool in a shell: commands, options, the values of
// options that have a fixed choice, and files.
std::string BashCompletion(const std::vector<CommandText>& commands);
std::string ZshCompletion(const std::vector<CommandText>& commands);
std::string FishCompletion(const std::vector<CommandText>& commands);

} // namespace keltavlo
