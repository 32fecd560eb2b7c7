#include "image/picture/NearestTables.h"

#include <algorithm>
#include <limits>

namespace keltavlo {

namespace {

// If the list has too many entries for the grid, the grid serves no color, because no masked color
// has this value.
constexpr Color noAlpha = 1;

bool HasOneAlpha(std::span<const Color> colors) {
    return std::ranges::all_of(colors, [&](Color color) { return Alpha(color) == Alpha(colors.front()); });
}

bool FitsGrid(const ColorList& list) {
    return list.GetCount() <= NearestGrid::maximumColors;
}

std::int16_t Coefficient(std::uint32_t weightedChannel) {
    constexpr int scale = -2 * NearestScanGroup::scale / NearestScanGroup::colorScale;
    return static_cast<std::int16_t>(scale * static_cast<int>(weightedChannel));
}

void PutEntry(NearestScanGroup& group, std::size_t lane, Color color, std::size_t number) {
    group.blueGreen[2 * lane] = Coefficient(Blue(color));
    group.blueGreen[2 * lane + 1] = Coefficient(Green(color));
    group.redAlpha[2 * lane] = Coefficient(Red(color));
    group.redAlpha[2 * lane + 1] = Coefficient(3 * Alpha(color));
    group.bases[lane] = static_cast<std::int32_t>(ColorDistance(color, 0)) * NearestScanGroup::scale +
                        static_cast<int>(number);
}

std::vector<NearestScanGroup> MakeScanGroups(std::span<const Color> colors) {
    NearestScanGroup empty{};
    empty.bases.fill(std::numeric_limits<std::int32_t>::max());
    std::vector<NearestScanGroup> groups((colors.size() + 7) / 8, empty);
    for (std::size_t i = 0; i < colors.size(); ++i) {
        PutEntry(groups[i / 8], i % 8, colors[i], i % NearestScanGroup::scale);
    }
    return groups;
}

} // namespace

NearestTables::NearestTables(const ColorList& searchedList, std::uint32_t usualAlpha,
                             const NearestKernels& kernels)
    : list(searchedList), gridMask(FitsGrid(list) && !HasOneAlpha(list.Colors()) ? alphaMask : 0),
      gridAlpha(FitsGrid(list) ? usualAlpha << 24 & gridMask : noAlpha),
      grid(list.Colors().first(std::min(list.GetCount(), NearestGrid::maximumColors)), usualAlpha, kernels),
      scanGroups(MakeScanGroups(list.Colors())) {}

} // namespace keltavlo
