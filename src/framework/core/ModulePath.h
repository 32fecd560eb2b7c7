#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

// The full path of the running program's file, as it was at the start.
const std::string& GetModulePath();

// Whether the full path leads to the running program's file, also through links and after the file was
// replaced. False for a relative path.
bool IsModulePath(std::string_view path);

} // namespace keltavlo
