#pragma once

#include "image/picture/Image.h"
#include "image/picture/Quake2Properties.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace keltavlo {

// One palette index for each pixel, rows top first.
using IndexPlane = std::vector<std::uint8_t>;

// A picture with what the game formats store beside it. Copies are deep.
class Texture : public Image {
public:
    Texture();
    Texture(int initialWidth, int initialHeight);
    Texture(const Texture& other);
    Texture& operator=(const Texture& other);
    Texture(Texture&& other) noexcept;
    Texture& operator=(Texture&& other) noexcept;
    ~Texture() override;

    // A copy with the picture and its indices cropped or their edges repeated, as Image::Resize does it. It
    // has no indices of half sizes.
    Texture Resized(int newWidth, int newHeight) const;
    // Replaces the palette by a copy of the list.
    void SetPalette(const ColorList& list);

    // The picture's own palette, or none for a true-color picture.
    std::unique_ptr<ColorList> palette;
    // The name of a Quake MIP texture.
    std::string quakeName;
    Quake2Properties quake2;

    // The palette indices of the picture and, behind them, of as many of its half sizes as a maker has
    // provided. Callers that want indices assign an empty list before reading: only then do the readers of
    // paletted formats fill level 0. Writers of paletted formats store the levels as they are and find the
    // indices of the others. The caller keeps them in step with the pixels and below the color count of the
    // palette that is written.
    std::optional<std::vector<IndexPlane>> indices;

    // The indices of a mip level; empty when there are none.
    std::span<const std::uint8_t> IndicesOfLevel(std::size_t level) const {
        if (!indices || level >= indices->size()) return {};
        return (*indices)[level];
    }
};

} // namespace keltavlo
