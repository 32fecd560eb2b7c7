#pragma once

#include <cstddef>
#include <iosfwd>
#include <span>
#include <string_view>

namespace keltavlo {

class CFile;

// Whether a path argument names the standard input or output.
inline bool IsStandardStream(std::string_view path) {
    return path == "-";
}

// Copies the standard input to the file and moves to its start. Throws CFileException on failure.
void ReadStandardInput(CFile& file);
void WriteStandardOutput(std::ostream& output, std::span<const std::byte> bytes);

} // namespace keltavlo
