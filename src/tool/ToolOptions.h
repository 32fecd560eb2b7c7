#pragma once

namespace CLI {
class App;
}

namespace keltavlo {

struct ToolArguments;

// The options of the commands. Each function adds some to a command; parsing then fills the arguments, and
// throws UsageError for a value that an option does not accept.

void AddFormatOption(CLI::App& command, ToolArguments& arguments);
// Those of commands that write many files: how many threads, what to overwrite, what to tell.
void AddBatchOptions(CLI::App& command, ToolArguments& arguments);

} // namespace keltavlo
