#pragma once

#include <string>
#include <string_view>

// The full path of the running program's file, as it was at the start.
const std::string& GetModulePath();

// The extension by which a path's document type is chosen: the path's own, save that the running program's
// file counts as ".exe" on systems whose programs have none (also through links, and after the file was
// replaced).
std::string TypeExtensionOf(std::string_view path);
