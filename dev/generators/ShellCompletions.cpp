#include "ShellCompletions.h"

#include <algorithm>
#include <sstream>

namespace keltavlo {

namespace {

// Returns the choices of an option, separated by blanks. A word in capitals means a file.
std::string ChoicesOf(const OptionText& option) {
    std::string choices;
    std::istringstream words(option.value);
    for (std::string word; std::getline(words, word, '|');) {
        const bool isLiteral = std::ranges::any_of(word, [](char c) { return c >= 'a' && c <= 'z'; });
        if (isLiteral && option.value.find('|') != std::string::npos)
            choices += (choices.empty() ? "" : " ") + word;
    }
    return choices;
}

bool TakesFile(const OptionText& option) {
    return option.value == "FILE" || option.value.ends_with("|FILE");
}

std::string Join(const std::vector<std::string>& names, const char* between) {
    std::string joined;
    for (const std::string& name : names) joined += (joined.empty() ? "" : between) + name;
    return joined;
}

// Puts a backslash before each of the special characters.
std::string Backslashed(const std::string& text, std::string_view special) {
    std::string out;
    for (const char c : text) {
        if (special.find(c) != std::string_view::npos) out += '\\';
        out += c;
    }
    return out;
}

// Quotes the text for a shell.
std::string Quote(const std::string& text) {
    std::string quoted;
    for (const char c : text) {
        if (c == '\'')
            quoted += "'\\''";
        else
            quoted += c;
    }
    return "'" + quoted + "'";
}

std::string BashCase(const CommandText& text) {
    std::string out = "    *:" + std::string(text.command->name) + ")\n        case $previous in\n";
    std::string names;
    for (const OptionText& option : text.options) {
        names += (names.empty() ? "" : " ") + Join(option.names, " ");
        if (option.value.empty() || (TakesFile(option) && ChoicesOf(option).empty())) continue;
        const std::string choices = ChoicesOf(option);
        out += "        " + Join(option.names, " | ") + ") " +
               (choices.empty() ? "return" : "words=" + Quote(choices)) + " ;;\n";
    }
    return out + "        *) [[ $current == -* ]] && words=" + Quote(names) +
           " ;;\n        esac\n        ;;\n";
}

// Describes the option for zsh: (-f --force){-f,--force}[help]:value:(choices).
std::string ZshOption(const OptionText& option) {
    const std::string suffix = option.value.empty() ? "" : "=";
    std::vector<std::string> names = option.names;
    for (std::string& name : names)
        if (name.starts_with("--")) name += suffix;
    const std::string forms = names.size() > 1 ? "{" + Join(names, ",") + "}" : names.front();
    std::string rest = "[" + Backslashed(option.help, "[]:") + "]";
    if (!option.value.empty()) {
        const std::string choices = ChoicesOf(option);
        rest += ":value:" + (!choices.empty() ? "(" + choices + ")" : TakesFile(option) ? "_files" : " ");
    }
    return Quote("(" + Join(option.names, " ") + ")") + forms + Quote(rest);
}

std::string FishOption(const char* command, const OptionText& option) {
    std::string out =
        "complete -c keltavlo-tool -n " + Quote(std::string("__fish_seen_subcommand_from ") + command);
    for (const std::string& name : option.names)
        out += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    const std::string choices = ChoicesOf(option);
    if (!option.value.empty()) out += TakesFile(option) ? " -r" : " -x";
    if (!choices.empty()) out += " -a " + Quote(choices);
    return out + " -d " + Quote(option.help) + "\n";
}

} // namespace

std::string BashCompletion(const std::vector<CommandText>& commands) {
    std::string names, cases;
    for (const CommandText& text : commands) {
        names += std::string(text.command->name) + " ";
        cases += BashCase(text);
    }
    return "# Completes keltavlo-tool in bash.\n"
           "_keltavlo_tool() {\n"
           "    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} words=\n"
           "    COMPREPLY=()\n"
           "    # In \"--to=tga\", the equals sign is a word of its own.\n"
           "    if [[ $current == = ]]; then\n"
           "        current=\n"
           "    elif [[ $previous == = ]]; then\n"
           "        previous=${COMP_WORDS[COMP_CWORD - 2]}\n"
           "    fi\n"
           "    case $COMP_CWORD:${COMP_WORDS[1]} in\n"
           "    1:*) words='" +
           names + "--help --version' ;;\n" + cases +
           "    esac\n"
           "    [[ -z $words ]] || mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
           "}\n"
           "complete -o bashdefault -o default -F _keltavlo_tool keltavlo-tool\n";
}

std::string ZshCompletion(const std::vector<CommandText>& commands) {
    std::string rows, cases;
    for (const auto& [command, options] : commands) {
        rows += "    " + Quote(std::string(command->name) + ":" + command->help) + "\n";
        cases += std::string(command->name) + ")\n    _arguments -s";
        for (const OptionText& option : options) cases += " \\\n        " + ZshOption(option);
        cases += " \\\n        '*:file:_files'\n    ;;\n";
    }
    return "#compdef keltavlo-tool\n"
           "local -a commands\n"
           "commands=(\n" +
           rows +
           ")\n"
           "if ((CURRENT == 2)); then\n"
           "    _describe command commands\n"
           "    return\n"
           "fi\n"
           "shift words\n"
           "((CURRENT--))\n"
           "case $words[1] in\n" +
           cases + "esac\n";
}

std::string FishCompletion(const std::vector<CommandText>& commands) {
    std::string out = "# Completes keltavlo-tool in fish.\n";
    for (const auto& [command, options] : commands) {
        out += "complete -c keltavlo-tool -n __fish_use_subcommand -f -a " + Quote(command->name) + " -d " +
               Quote(command->help) + "\n";
        for (const OptionText& option : options) out += FishOption(command->name, option);
    }
    return out;
}

} // namespace keltavlo
