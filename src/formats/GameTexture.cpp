#include "formats/GameTexture.h"

#include "image/picture/ColorList.h"
#include "image/picture/NearestSearch.h"
#include "image/picture/StoredPixels.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace keltavlo {

namespace gametexture {

namespace {

constexpr std::size_t maximumColors = 256; // an index is one byte

bool IsAllowedSide(std::uint32_t side) {
    return side <= maximumSide && IsFittingSide(static_cast<int>(side));
}

// Does not stop early, so that the compiler can vectorize it.
std::uint8_t Highest(std::span<const std::uint8_t> indices) {
    std::uint8_t highest = 0;
    for (const std::uint8_t index : indices) highest = std::max(highest, index);
    return highest;
}

void WriteIndices(OutputStream& out, const Image& picture, std::span<const std::uint8_t> known,
                  NearestSearch& search) {
    if (known.size() == picture.Pixels().size()) return out.Write(known);
    std::vector<std::uint8_t> indices(picture.Pixels().size());
    search.FindIndices(picture.Pixels(), indices);
    out.Write(std::span<const std::uint8_t>(indices));
}

} // namespace

void CheckSides(const InputStream& in, std::uint32_t width, std::uint32_t height) {
    if (!IsAllowedSide(width) || !IsAllowedSide(height)) in.Fail(StreamError::badIndex);
}

void CheckSides(const OutputStream& out, const Image& picture) {
    if (!IsFittingSide(picture.GetWidth()) || !IsFittingSide(picture.GetHeight()))
        out.Fail(StreamError::badIndex);
}

const ColorList& PaletteOf(const Texture& texture, const ColorList* fallback) {
    return texture.palette ? std::as_const(*texture.palette) : *fallback;
}

void CheckPalette(const OutputStream& out, const ColorList& palette) {
    if (palette.GetCount() == 0 || palette.GetCount() > maximumColors) out.Fail(StreamError::badIndex);
}

std::array<std::uint32_t, levelCount> LevelOffsets(std::uint32_t start, int width, int height) {
    std::array<std::uint32_t, levelCount> offsets;
    auto size = static_cast<std::uint32_t>(width) * static_cast<std::uint32_t>(height);
    for (std::uint32_t& offset : offsets) {
        offset = start;
        start += size;
        size /= 4;
    }
    return offsets;
}

void ReadIndices(InputStream& in, Texture& texture, int width, int height, const ColorList& palette) {
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (count > in.GetRemaining()) in.Fail(StreamError::endOfFile);
    const auto memory = std::make_unique_for_overwrite<std::uint8_t[]>(count);
    const std::span<std::uint8_t> indices(memory.get(), count);
    in.Read(indices);
    const std::span<const Color> colors = palette.Colors();
    if (colors.size() < maximumColors && Highest(indices) >= colors.size()) in.Fail(StreamError::badIndex);
    texture.SetSizeUncleared(width, height);
    ExpandIndices(indices, colors, texture.Pixels());
    if (texture.indices) texture.indices->assign(1, IndexPlane(indices.begin(), indices.end()));
}

void WriteMipLevels(OutputStream& out, const Texture& texture, const ColorList& palette) {
    NearestSearch search(palette);
    const Image& picture = texture;
    WriteIndices(out, picture, texture.IndicesOfLevel(0), search);
    Image level = picture;
    for (std::size_t k = 1; k < levelCount; ++k) {
        Image half;
        level.MakeHalfSize(half);
        WriteIndices(out, half, texture.IndicesOfLevel(k), search);
        level = std::move(half);
    }
}

} // namespace gametexture

} // namespace keltavlo
