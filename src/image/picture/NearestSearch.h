#pragma once

#include "image/picture/Color.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace keltavlo {

class ColorList;
struct NearestKernels;
struct NearestTables;

// Finds for many colors what ColorList::FindNearest finds for one, the first of the nearest entries, many
// times faster. The list must stay as it is for as long as the search is used. Operations throw
// std::out_of_range when they have something to find and the list is empty.
class NearestSearch {
public:
    explicit NearestSearch(const ColorList& searchedList);
    NearestSearch(const ColorList& searchedList, const NearestKernels& useKernels);
    ~NearestSearch();

    std::size_t FindIndex(Color color);
    // One index for each pixel. Throws std::length_error for a list of more than 256 entries.
    void FindIndices(std::span<const Color> pixels, std::span<std::uint8_t> indices);
    // Puts the nearest entries in the pixels' place.
    void Replace(std::span<Color> pixels);
    // The same for rows of that many pixels. What red, green and blue, unclamped, differ from the entry is
    // added to the next pixel of the row.
    void Diffuse(std::span<Color> pixels, std::size_t width);

private:
    NearestTables& Tables(std::span<const Color> pixels);

    const ColorList& list;
    const NearestKernels& kernels;
    // Made by the first search.
    std::unique_ptr<NearestTables> tables;
};

} // namespace keltavlo
