#pragma once

#include <string>
#include <system_error>
#include <vector>

namespace keltavlo {

// Returns the names in the folder, without "." and "..", in no order. On failure, sets the error and returns
// the names read so far. The standard library's iterator ends the program if it gets no memory.
std::vector<std::string> NamesInFolder(const std::string& folder, std::error_code& failure);

} // namespace keltavlo
