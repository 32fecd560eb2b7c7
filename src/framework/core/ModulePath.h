#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

// Returns the full path of the running program's file at the time it started.
const std::string& GetModulePath();

// Returns whether the full path leads to the running program's file, also through links and after the file
// was replaced. Returns false for a relative path.
bool IsModulePath(std::string_view path);

} // namespace keltavlo
