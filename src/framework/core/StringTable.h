#pragma once

#include <span>
#include <string>
#include <vector>

namespace keltavlo {

struct StringRow {
    unsigned id;
    const char* text; // UTF-8
};

// Adds rows to the program's string table. A later row replaces an earlier one with the same id. The rows
// must live as long as the program.
void AddStrings(std::span<const StringRow> rows);

// Returns the string with the id, or an empty one if there is none.
std::string LoadString(unsigned id);

// Formats the arguments with the string as printf does; the string must fit them. %s takes UTF-8.
std::string FormatString(unsigned id, ...);

} // namespace keltavlo
