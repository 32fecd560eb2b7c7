#include "tool/ToolArguments.h"

#include "formats/Codec.h"

namespace keltavlo {

namespace {

// Takes one option; `next` is the argument behind it, or null. True when that one belongs to the option.
bool TakeOption(ToolArguments& taken, const std::string& option, const std::string* next) {
    if (option == "--to") {
        if (!next) throw UsageError("--to requires a format: " + ListFormats() + ".");
        taken.format = "." + *next;
        return true;
    }
    if (option == "--force")
        taken.force = true;
    else if (option == "--help" || option == "-h")
        taken.help = true;
    else if (option == "--version")
        taken.version = true;
    else
        throw UsageError("Unknown option: " + option + ".");
    return false;
}

} // namespace

ToolArguments ParseToolArguments(const std::vector<std::string>& arguments) {
    ToolArguments taken;
    bool onlyPaths = false;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (!onlyPaths && argument == "--")
            onlyPaths = true;
        else if (!onlyPaths && argument.size() > 1 && argument.front() == '-')
            i +=
                TakeOption(taken, argument, i + 1 < arguments.size() ? &arguments[i + 1] : nullptr) ? 1U : 0U;
        else if (taken.command.empty())
            taken.command = argument;
        else
            taken.paths.push_back(argument);
    }
    return taken;
}

} // namespace keltavlo
