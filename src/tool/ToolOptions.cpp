#include "tool/ToolOptions.h"

#include "tool/ParseTextureFields.h"
#include "tool/ToolArguments.h"
#include "tool/pictures/PictureFormat.h"

#include <CLI/CLI.hpp>
#include <charconv>

namespace keltavlo {

namespace {

void AddFlag(CLI::App& command, const char* names, bool& flag, const char* help) {
    command.add_flag(names, flag, help)->disable_flag_override();
}

struct NamedPalette {
    std::string name;
    PaletteSource source;
};

std::vector<NamedPalette> GamePalettes() {
    return {{"quake", PaletteSource::quake},
            {"quake2", PaletteSource::quake2},
            {"hexen2", PaletteSource::hexen2}};
}

std::vector<NamedPalette> OutputPalettes() {
    std::vector<NamedPalette> palettes = GamePalettes();
    palettes.push_back({"own", PaletteSource::own});
    return palettes;
}

// Adds an option whose value is one of the names or the path of a file.
void AddPaletteOption(CLI::App& command, PaletteOptions& palette, const std::vector<NamedPalette>& named,
                      const std::string& help) {
    std::string choices;
    for (const NamedPalette& row : named) choices += row.name + "|";
    const auto take = [&palette, named](const std::string& name) {
        const auto row = std::ranges::find(named, name, &NamedPalette::name);
        palette.source = row == named.end() ? PaletteSource::file : row->source;
        palette.file = row == named.end() ? name : std::string();
    };
    command.add_option_function<std::string>("--palette", take, help)->type_name(choices + "FILE");
}

unsigned ParseJobs(const std::string& text) {
    constexpr unsigned limit = 1024;
    unsigned jobs = 0;
    const auto [stop, failure] = std::from_chars(text.data(), text.data() + text.size(), jobs);
    if (failure != std::errc() || stop != text.data() + text.size() || jobs > limit)
        throw UsageError("--jobs requires a number from 0 to " + std::to_string(limit) + ".");
    return jobs;
}

std::string FormatChoices() {
    std::string choices;
    for (const PictureFormat& format : PictureFormats())
        if (format.codec.write) choices.append(choices.empty() ? "" : "|").append(format.codec.name);
    return choices;
}

} // namespace

void AddJsonOption(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "--json", arguments.json, "Write JSON: an array with one object for each path.");
}

void AddRecursiveOption(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "-r,--recursive", arguments.recursive,
            "List the files of all folders below, and of the archives among them.");
}

void AddArchivesOption(CLI::App& command, ToolArguments& arguments) {
    command
        .add_flag_callback(
            "--no-archives", [&arguments] { arguments.enterArchives = false; },
            "Treat archives inside a folder or another archive as files.")
        ->disable_flag_override();
}

void AddFormatOption(CLI::App& command, ToolArguments& arguments, const char* help) {
    command
        .add_option_function<std::string>(
            "--to", [&arguments](const std::string& format) { arguments.format = "." + format; }, help)
        ->type_name(FormatChoices());
}

void AddSourcePaletteOption(CLI::App& command, ToolArguments& arguments) {
    AddPaletteOption(command, arguments.palette, GamePalettes(),
                     "The palette of textures that contain none. The default is that of the format's game.");
}

void AddPaletteOptions(CLI::App& command, ToolArguments& arguments) {
    PaletteOptions& palette = arguments.palette;
    AddPaletteOption(command, palette, OutputPalettes(),
                     "The palette of paletted outputs: that of a game, one made for each picture (own), or "
                     "that of a file, which may be a palette or a picture. The default is that of the "
                     "picture, if the format can store it, otherwise that of the format's game.");
    AddFlag(command, "--dither", palette.dither, "Dither colors that the palette lacks.");
    AddFlag(command, "--protect-fullbright", palette.protectFullbright,
            "Keep texels out of the palette indices 224 to 255, which Quake draws at full brightness, unless "
            "they had such an index before.");
}

void AddFieldsOption(CLI::App& command, ToolArguments& arguments) {
    command
        .add_option_function<std::string>(
            "--set", [&arguments](const std::string& text) { arguments.set = ParseTextureFields(text); },
            "What WAL textures store beside the texels, for example "
            "surface=0x80,contents=1,value=300,next=wall2. Numbers are decimal or hexadecimal; next is the "
            "next frame of an animation.")
        ->type_name("FIELDS");
}

void AddForceOption(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "-f,--force", arguments.force,
            "Overwrite existing files, but never one that the same run reads or has written.");
}

void AddRunOptions(CLI::App& command, ToolArguments& arguments) {
    command
        .add_option_function<std::string>(
            "-j,--jobs", [&arguments](const std::string& text) { arguments.jobs = ParseJobs(text); },
            "The number of files to work on at a time; 0, the default, means one per core.")
        ->type_name("NUMBER");
    AddFlag(command, "-q,--quiet", arguments.quiet, "Report failures only.");
    AddFlag(command, "-v,--verbose", arguments.verbose, "Name every file that is written.");
    AddForceOption(command, arguments);
}

void AddBatchOptions(CLI::App& command, ToolArguments& arguments) {
    AddRunOptions(command, arguments);
    AddArchivesOption(command, arguments);
}

void AddMetadataOption(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "--metadata", arguments.metadata,
            "Write what WAL and MIP textures store beside the texels to a file textures.json in each folder. "
            "convert and pack read it.");
}

void AddPackOptions(CLI::App& command, ToolArguments& arguments) {
    AddFlag(command, "--wad2", arguments.wad2, "Write a WAD2 for Quake instead of a WAD3 for Half-Life.");
    AddFlag(command, "--append", arguments.append, "Add the files to an existing archive.");
    AddFlag(command, "--replace", arguments.replace,
            "Replace the entries with the files' names in an existing archive.");
    AddFlag(
        command, "--delete", arguments.remove,
        "Delete the entries with the files' names from an archive; a LIST may name files that do not exist.");
}

} // namespace keltavlo
