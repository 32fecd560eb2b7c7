#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace keltavlo {

// A file that the program carries inside itself: known by a number and a type.
struct ResourceRow {
    unsigned id;
    std::string_view type; // types compare without regard to case
    std::span<const std::byte> data;
};

// Adds rows; the data must live as long as the program.
void AddResources(std::span<const ResourceRow> rows);

// The numbers of the resources of a type, ascending.
std::vector<unsigned> EnumResources(std::string_view type);

// The resource's bytes; the row is null when there is no such resource.
const ResourceRow* FindResource(unsigned id, std::string_view type);

} // namespace keltavlo
