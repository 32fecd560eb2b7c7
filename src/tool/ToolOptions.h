#pragma once

namespace CLI {
class App;
}

namespace keltavlo {

struct ToolArguments;

// The options of the commands. Each function adds some to a command. Parsing fills the arguments; it throws
// UsageError for a value that an option does not accept.

void AddJsonOption(CLI::App& command, ToolArguments& arguments);
void AddRecursiveOption(CLI::App& command, ToolArguments& arguments);
void AddArchivesOption(CLI::App& command, ToolArguments& arguments);
void AddFormatOption(CLI::App& command, ToolArguments& arguments, const char* help);
// Adds the option for the palette of pictures that are only read.
void AddSourcePaletteOption(CLI::App& command, ToolArguments& arguments);
// Adds the options that control how colors become palette indices.
void AddPaletteOptions(CLI::App& command, ToolArguments& arguments);
void AddFieldsOption(CLI::App& command, ToolArguments& arguments);
void AddForceOption(CLI::App& command, ToolArguments& arguments);
void AddMetadataOption(CLI::App& command, ToolArguments& arguments);
void AddPackOptions(CLI::App& command, ToolArguments& arguments);
// Adds the options of commands that read many files: threads, overwriting, reports.
void AddRunOptions(CLI::App& command, ToolArguments& arguments);
// Adds the same options, and the one for archives inside folders.
void AddBatchOptions(CLI::App& command, ToolArguments& arguments);

} // namespace keltavlo
