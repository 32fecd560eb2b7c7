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
void AddFormatOption(CLI::App& command, ToolArguments& arguments, const char* help);
// The palette of pictures that are only read.
void AddSourcePaletteOption(CLI::App& command, ToolArguments& arguments);
// How colors become palette indices.
void AddPaletteOptions(CLI::App& command, ToolArguments& arguments);
void AddFieldsOption(CLI::App& command, ToolArguments& arguments);
void AddForceOption(CLI::App& command, ToolArguments& arguments);
void AddMetadataOption(CLI::App& command, ToolArguments& arguments);
void AddPackOptions(CLI::App& command, ToolArguments& arguments);
// Those of commands that read many files: how many threads, what to overwrite, what to report.
void AddRunOptions(CLI::App& command, ToolArguments& arguments);
// The same, and whether archives are entered.
void AddBatchOptions(CLI::App& command, ToolArguments& arguments);

} // namespace keltavlo
