#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace keltavlo {

// A file that the program contains, identified by a number and a type.
struct EmbeddedFile {
    unsigned id;
    std::string_view type; // case is ignored
    std::span<const std::byte> data;
};

// Adds rows; the data must live as long as the program.
void AddEmbeddedFiles(std::span<const EmbeddedFile> rows);

// Returns the numbers of all files of a type in ascending order.
std::vector<unsigned> EmbeddedFileIds(std::string_view type);

// Returns null if there is no such file.
const EmbeddedFile* FindEmbeddedFile(unsigned id, std::string_view type);

} // namespace keltavlo
