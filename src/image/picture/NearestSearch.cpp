#include "image/picture/NearestSearch.h"

#include "image/picture/NearestKernels.h"
#include "image/picture/NearestTables.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

namespace keltavlo {

namespace {

// Returns the median of a sample. If most pixels have the same alpha, the median is almost certainly
// that one.
std::uint32_t UsualAlpha(std::span<const Color> pixels) {
    constexpr std::size_t sampleSize = 64;
    const std::size_t step = pixels.size() / sampleSize + 1;
    std::vector<std::uint32_t> alphas;
    for (std::size_t i = 0; i < pixels.size(); i += step) alphas.push_back(Alpha(pixels[i]));
    const auto middle = alphas.begin() + static_cast<std::ptrdiff_t>(alphas.size() / 2);
    std::ranges::nth_element(alphas, middle);
    return *middle;
}

} // namespace

NearestSearch::NearestSearch(const ColorList& searchedList)
    : NearestSearch(searchedList, FastestKernels<NearestKernels>()) {}

NearestSearch::NearestSearch(const ColorList& searchedList, const NearestKernels& useKernels)
    : list(searchedList), kernels(useKernels) {}

NearestSearch::~NearestSearch() = default;

NearestTables& NearestSearch::Tables(std::span<const Color> pixels) {
    if (list.GetCount() == 0) throw std::out_of_range("The color list is empty.");
    if (!tables) tables = std::make_unique<NearestTables>(list, UsualAlpha(pixels), kernels);
    return *tables;
}

std::size_t NearestSearch::FindIndex(Color color) {
    return kernels.findIndex(Tables({&color, 1}), color);
}

void NearestSearch::FindIndices(std::span<const Color> pixels, std::span<std::uint8_t> indices) {
    if (list.GetCount() > 256) throw std::length_error("The color list is too long for indices of one byte.");
    if (!pixels.empty()) kernels.findIndices(Tables(pixels), pixels, indices.data());
}

void NearestSearch::Replace(std::span<Color> pixels) {
    if (!pixels.empty()) kernels.replace(Tables(pixels), pixels);
}

void NearestSearch::Diffuse(std::span<Color> pixels, std::size_t width) {
    if (!pixels.empty()) kernels.diffuse(Tables(pixels), pixels, width);
}

} // namespace keltavlo
