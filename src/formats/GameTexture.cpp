#include "formats/GameTexture.h"

#include "framework/core/Exceptions.h"
#include "image/picture/ColorList.h"
#include "image/picture/Image.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>

namespace gametexture {

namespace {

void WriteIndices(OutputStream& out, const Image& picture, const ColorList& palette) {
    const std::span<const Color> pixels = picture.Pixels();
    std::vector<std::uint8_t> indices(pixels.size());
    std::transform(pixels.begin(), pixels.end(), indices.begin(),
                   [&](Color color) { return static_cast<std::uint8_t>(palette.FindNearestIndex(color)); });
    out.Write(std::span<const std::uint8_t>(indices));
}

} // namespace

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

void ReadIndices(InputStream& in, Image& picture, int width, int height, const ColorList& palette) {
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    if (count > in.GetRemaining()) throw CArchiveException(CArchiveException::endOfFile);
    std::vector<std::uint8_t> indices(count);
    in.Read(std::span<std::uint8_t>(indices));
    const std::span<const Color> colors = palette.Colors();
    if (*std::max_element(indices.begin(), indices.end()) >= colors.size()) in.Fail(StreamError::badIndex);
    picture.SetSize(width, height);
    std::transform(indices.begin(), indices.end(), picture.Pixels().begin(),
                   [&](std::uint8_t index) { return colors[index]; });
}

void WriteMipLevels(OutputStream& out, const Image& picture, const ColorList& palette) {
    const NearestColorCacheScope cached(palette);
    WriteIndices(out, picture, palette);
    Image level = picture;
    for (int k = 1; k < levelCount; ++k) {
        Image half;
        level.MakeHalfSize(half);
        WriteIndices(out, half, palette);
        level = std::move(half);
    }
}

} // namespace gametexture
