#pragma once

namespace CLI {
class App;
}

namespace keltavlo {

struct ToolArguments;

// The options of the commands. Each function adds some to a command; parsing then fills the arguments, and
// throws UsageError for a value that an option does not accept.

void AddJsonOption(CLI::App& command, ToolArguments& arguments);
void AddRecursiveOption(CLI::App& command, ToolArguments& arguments);
void AddArchivesOption(CLI::App& command, ToolArguments& arguments);
void AddFormatOption(CLI::App& command, ToolArguments& arguments);
// The palette of pictures that are only read.
void AddSourcePaletteOption(CLI::App& command, ToolArguments& arguments);
// How pictures are brought to a palette.
void AddPaletteOptions(CLI::App& command, ToolArguments& arguments);
void AddFieldsOption(CLI::App& command, ToolArguments& arguments);
void AddForceOption(CLI::App& command, ToolArguments& arguments);
void AddMetadataOption(CLI::App& command, ToolArguments& arguments);
void AddPackOptions(CLI::App& command, ToolArguments& arguments);
// Those of commands that write many files: how many threads, what to enter and overwrite, what to report.
void AddBatchOptions(CLI::App& command, ToolArguments& arguments);

} // namespace keltavlo
