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

// Finds the same entries as ColorList::FindNearest, the first of the nearest ones, but for many colors and
// many times faster. The list must not change while the search is used. Functions throw std::out_of_range if
// the list is empty and there is something to find.
class NearestSearch {
public:
    explicit NearestSearch(const ColorList& searchedList);
    NearestSearch(const ColorList& searchedList, const NearestKernels& useKernels);
    ~NearestSearch();

    std::size_t FindIndex(Color color);
    // Writes one index per pixel. Throws std::length_error for a list of more than 256 entries.
    void FindIndices(std::span<const Color> pixels, std::span<std::uint8_t> indices);
    // Replaces the pixels by the nearest entries.
    void Replace(std::span<Color> pixels);
    // Does the same for rows of `width` pixels. The unclamped difference of red, green and blue from the
    // entry is added to the next pixel of the row.
    void Diffuse(std::span<Color> pixels, std::size_t width);

private:
    NearestTables& Tables(std::span<const Color> pixels);

    const ColorList& list;
    const NearestKernels& kernels;
    // Created by the first search.
    std::unique_ptr<NearestTables> tables;
};

} // namespace keltavlo
