#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace keltavlo {

// A file that the program carries inside itself, under a number and a type.
struct EmbeddedFile {
    unsigned id;
    std::string_view type; // types compare without regard to case
    std::span<const std::byte> data;
};

// Adds rows; the data must live as long as the program.
void AddEmbeddedFiles(std::span<const EmbeddedFile> rows);

// The numbers of the files of a type, ascending.
std::vector<unsigned> EmbeddedFileIds(std::string_view type);

// Null when there is no such file.
const EmbeddedFile* FindEmbeddedFile(unsigned id, std::string_view type);

} // namespace keltavlo
