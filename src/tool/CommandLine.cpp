#include "tool/CommandLine.h"

#include "tool/CommandTable.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace keltavlo {

namespace {

constexpr std::size_t optionColumn = 24, lineLength = 80;

// Breaks the text between words, so that no line is longer than the limit unless a single word is.
std::string Wrap(std::string text, std::size_t limit) {
    std::size_t begin = 0;
    while (text.size() - begin > limit) {
        std::size_t space = text.rfind(' ', begin + limit);
        if (space == std::string::npos || space <= begin) space = text.find(' ', begin);
        if (space == std::string::npos) break;
        text[space] = '\n';
        begin = space + 1;
    }
    return text;
}

// Lists the paths as the command's row describes them. The parser does not know them as options, because it
// would split a path such as "[a,b]" into a list.
class HelpFormatter final : public CLI::Formatter {
public:
    explicit HelpFormatter(std::string synopsisOfApp) : synopsis(std::move(synopsisOfApp)) {
        column_width(optionColumn);
    }
    std::string make_usage(const CLI::App*, std::string) const override {
        return "Usage: keltavlo-tool " + synopsis + "\n";
    }
    std::string make_option_desc(const CLI::Option* option) const override {
        return Wrap(option->get_description(), lineLength - optionColumn);
    }
    std::string make_footer(const CLI::App* command) const override {
        return Wrap(command->get_footer(), lineLength) + "\n";
    }

private:
    std::string synopsis;
};

// A parser for all commands. Parsing fills `arguments`.
class Parser {
public:
    explicit Parser(ToolArguments& arguments) {
        SetUp(app, "COMMAND ...");
        app.set_version_flag("--version", "keltavlo-tool " KELTAVLO_VERSION "\n", "Show the version.");
        app.require_subcommand(0, 1); // a path may have the name of a command
        app.footer("Paths may lead into archives as if these were folders; see keltavlo-tool(1).");
        for (const ToolCommand& row : Commands()) {
            CLI::App* command = app.add_subcommand(row.name, row.help);
            SetUp(*command, std::string(row.name) + " [OPTION]... " + row.paths);
            command->group("Commands")->footer(row.details);
            row.addOptions(*command, arguments);
        }
    }

    // Returns the chosen command, or null if there is none.
    const CLI::App* Parse(std::vector<std::string> words) {
        std::reverse(words.begin(), words.end()); // the order that the library expects
        app.parse(std::move(words));
        const auto chosen = app.get_subcommands();
        if (chosen.empty() && app.remaining_size() > 0) throw UsageError(DescribeStranger());
        return chosen.empty() ? nullptr : chosen.front();
    }
    std::string Help() const { return app.help(); }

    std::vector<CommandText> DescribeCommands() const {
        std::vector<CommandText> texts;
        for (const ToolCommand& row : Commands()) {
            texts.push_back({&row, {}});
            for (const CLI::Option* option : app.get_subcommand(row.name)->get_options())
                texts.back().options.push_back(Describe(*option));
        }
        return texts;
    }

    // Returns a sentence about a failure in the library, whose own text starts with the option.
    std::string Describe(const CLI::ParseError& failure) const {
        const std::string text = failure.what(), name = text.substr(0, text.find_first_of(": "));
        for (const CLI::App* command : app.get_subcommands())
            if (const CLI::Option* option = command->get_option_no_throw(name))
                return name + " requires " + option->get_type_name() + ".";
        return "--" + name + " takes no value.";
    }

private:
    static void SetUp(CLI::App& target, const std::string& synopsis) {
        target.allow_extras();
        target.formatter(std::make_shared<HelpFormatter>(synopsis));
        target.set_help_flag("-h,--help", "Show this help.");
    }
    static OptionText Describe(const CLI::Option& option) {
        OptionText text{{}, option.get_type_name(), option.get_description()};
        for (const std::string& name : option.get_snames()) text.names.push_back("-" + name);
        for (const std::string& name : option.get_lnames()) text.names.push_back("--" + name);
        return text;
    }
    std::string DescribeStranger() const {
        const std::string word = app.remaining().front();
        return (word.starts_with('-') ? "Unknown option: " : "Unknown command: ") + word + ".";
    }

    CLI::App app{"Lists, converts and extracts textures and archives of the Quake games."};
};

bool IsOption(const std::string& word) {
    return word.size() > 1 && word.starts_with('-');
}

void TakePaths(std::vector<std::string> paths, const ToolCommand& row, ToolArguments& arguments) {
    const std::size_t outputs = row.hasOutput ? 1 : 0;
    if (paths.size() <= outputs || paths.size() - outputs > row.maximumInputs)
        throw UsageError(std::string(row.name) + " requires " + row.paths + "; see \"keltavlo-tool " +
                         row.name + " --help\".");
    if (row.hasOutput) {
        arguments.output = std::move(paths.back());
        paths.pop_back();
        if (arguments.output.empty()) throw UsageError("The name of the output is empty.");
    }
    arguments.inputs = std::move(paths);
}

// Removes the paths after "--" from the words and returns them.
std::vector<std::string> TakeMarkedPaths(std::vector<std::string>& words) {
    const auto mark = std::find(words.begin(), words.end(), "--");
    if (mark == words.end()) return {};
    std::vector<std::string> paths(mark + 1, words.end());
    words.erase(mark, words.end());
    return paths;
}

} // namespace

CommandLine ParseCommandLine(const std::vector<std::string>& words) {
    CommandLine line;
    Parser parser(line.arguments);
    std::vector<std::string> parsedWords = words;
    const std::vector<std::string> marked = TakeMarkedPaths(parsedWords);
    try {
        const CLI::App* chosen = parser.Parse(std::move(parsedWords));
        if (!chosen) throw UsageError("No command given; see --help.");
        std::vector<std::string> paths = chosen->remaining();
        if (const auto option = std::ranges::find_if(paths, IsOption); option != paths.end())
            throw UsageError("Unknown option: " + *option + ".");
        paths.insert(paths.end(), marked.begin(), marked.end());
        line.command = &*std::ranges::find(Commands(), chosen->get_name(), &ToolCommand::name);
        TakePaths(std::move(paths), *line.command, line.arguments);
    } catch (const CLI::CallForHelp&) {
        line.text = parser.Help();
    } catch (const CLI::CallForVersion& version) {
        line.text = version.what();
    } catch (const CLI::ParseError& failure) {
        throw UsageError(parser.Describe(failure));
    }
    return line;
}

std::vector<CommandText> DescribeCommands() {
    ToolArguments unused;
    return Parser(unused).DescribeCommands();
}

} // namespace keltavlo
