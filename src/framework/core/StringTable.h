#pragma once

#include <span>
#include <string>
#include <vector>

namespace keltavlo {

struct StringRow {
    unsigned id;
    const char* text; // UTF-8
};

// Adds rows to the program's string table; a later row of the same id wins. The rows must live as long as the
// program.
void AddStrings(std::span<const StringRow> rows);

// The string of that id; empty when there is none.
std::string LoadString(unsigned id);

// The string of that id as a printf format, which fits the arguments. %s takes UTF-8.
std::string FormatString(unsigned id, ...);

} // namespace keltavlo
