#include "image/picture/PixelTransform.h"

#include <algorithm>

namespace keltavlo {

namespace {

const std::uint32_t* TableOf(const PixelTransform& transform) {
    return std::visit(
        [](const auto& each) -> const std::uint32_t* {
            if constexpr (requires { each.table; }) return each.table;
            return nullptr;
        },
        transform);
}

// Applies a transform to one row, by steps that process the whole row.
struct RowTransformer {
    const std::optional<ChannelTable>& table;
    std::span<const Color> input;
    std::span<Color> output;

    void operator()(const IdentityTransform&) const {
        if (input.data() != output.data()) std::ranges::copy(input, output.begin());
    }

    void operator()(const OverBackgroundTransform& over) const {
        std::ranges::transform(input, output.begin(), over);
    }

    void operator()(const ChannelTableTransform&) const { table->Apply(input, output); }

    void operator()(const BackgroundThenTableTransform& both) const {
        std::ranges::transform(input, output.begin(), OverBackgroundTransform{both.background});
        table->Apply(output, output);
    }

    void operator()(const TableThenBackgroundTransform& both) const {
        table->Apply(input, output);
        std::ranges::transform(output, output.begin(), OverBackgroundTransform{both.background});
    }
};

} // namespace

PixelTransformer::PixelTransformer(const PixelTransform& pixelTransform) : transform(pixelTransform) {
    if (const std::uint32_t* words = TableOf(transform)) table.emplace(words);
}

void PixelTransformer::Apply(std::span<const Color> input, std::span<Color> output) const {
    std::visit(RowTransformer{table, input, output}, transform);
}

} // namespace keltavlo
