#include "tool/NewNames.h"

#include "framework/core/Path.h"
#include "framework/core/Text.h"

namespace keltavlo {

NewNames::NewNames(std::span<const std::string> names) {
    for (const std::string& name : names) all.insert(FoldCase(name));
}

std::string NewNames::Take(const std::string& name) {
    if (used.insert(FoldCase(name)).second) return name;
    const std::string_view extension = ExtensionOf(name);
    const std::string stem = name.substr(0, name.size() - extension.size()) + "_";
    std::string numbered = name;
    for (int i = 2; !all.insert(FoldCase(numbered)).second; ++i)
        numbered = (stem + std::to_string(i)).append(extension);
    return numbered;
}

} // namespace keltavlo
