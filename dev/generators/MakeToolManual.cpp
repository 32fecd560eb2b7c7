// make_tool_manual TEMPLATE OUTDIR: writes the manual page of keltavlo-tool and the completions of its
// command line for bash, zsh and fish. The commands and options come from the tool's own table.
#include "ShellCompletions.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>

using namespace keltavlo;

namespace {

// Escapes the text, so that roff shows it literally.
std::string Roff(const std::string& text) {
    std::string out;
    for (const char c : text) {
        if (c == '\\')
            out += "\\e";
        else if (c == '-')
            out += "\\-";
        else
            out += c;
    }
    return out.starts_with('.') || out.starts_with('\'') ? "\\&" + out : out;
}

std::string Synopsis(const std::vector<CommandText>& commands) {
    std::string out;
    for (const auto& [command, options] : commands) {
        if (!out.empty()) out += ".br\n";
        out += ".B keltavlo\\-tool " + std::string(command->name) + "\n.RI [ OPTION ]...\n.I " +
               Roff(command->paths) + "\n";
    }
    return out;
}

std::string OptionEntry(const OptionText& option) {
    std::string names;
    for (const std::string& name : option.names)
        names += (names.empty() ? "" : ", ") + ("\\fB" + Roff(name)) + "\\fR";
    if (!option.value.empty()) names += " \\fI" + Roff(option.value) + "\\fR";
    return ".TP\n" + names + "\n" + Roff(option.help) + "\n";
}

std::string CommandSections(const std::vector<CommandText>& commands) {
    std::string out;
    for (const auto& [command, options] : commands) {
        out += ".SS " + std::string(command->name) + " " + Roff(command->paths) + "\n" + Roff(command->help) +
               "\n" + Roff(command->details) + "\n";
        for (const OptionText& option : options) out += OptionEntry(option);
    }
    return out;
}

std::string ManualPage(std::istream& pattern, const std::vector<CommandText>& commands) {
    std::string page;
    for (std::string line; std::getline(pattern, line);) {
        if (line == "@SYNOPSIS@")
            page += Synopsis(commands);
        else if (line == "@COMMANDS@")
            page += CommandSections(commands);
        else
            page += line + "\n";
    }
    return page;
}

void Write(const std::filesystem::path& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary);
    out << text << std::flush;
    if (!out) throw std::runtime_error("Cannot write " + path.string() + ".");
}

} // namespace

int main(int argc, char** argv) try {
    if (argc != 3) throw std::runtime_error("usage: make_tool_manual TEMPLATE OUTDIR");
    std::ifstream pattern(argv[1]);
    if (!pattern) throw std::runtime_error(std::string("Cannot read ") + argv[1] + ".");
    const std::filesystem::path folder = argv[2];
    std::filesystem::create_directories(folder);
    const std::vector<CommandText> commands = DescribeCommands();
    Write(folder / "keltavlo-tool.1", ManualPage(pattern, commands));
    Write(folder / "keltavlo-tool.bash", BashCompletion(commands));
    Write(folder / "_keltavlo-tool", ZshCompletion(commands));
    Write(folder / "keltavlo-tool.fish", FishCompletion(commands));
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "make_tool_manual: " << failure.what() << "\n";
    return 1;
}
