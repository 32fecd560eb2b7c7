#pragma once

#include <string>
#include <string_view>

namespace keltavlo {

// The full path of the running program's file, as it was at the start.
const std::string& GetModulePath();

// Whether the full path leads to the running program's file, also through links and after the file was
// replaced. False for a relative path.
bool IsModulePath(std::string_view path);

// The extension that picks a path's document type: ".exe" for the running program's file, whatever it is
// called, and the path's own for every other. Does not ask the disk about a relative path.
std::string TypeExtensionOf(std::string_view path);

} // namespace keltavlo
