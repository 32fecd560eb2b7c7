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

    // Returns a copy with the picture and its indices cropped or their edges repeated, as Image::Resize does
    // it. The copy has no indices of half sizes.
    Texture Resized(int newWidth, int newHeight) const;
    // Replaces the palette with a copy of the list.
    void SetPalette(const ColorList& list);

    // The picture's own palette, or none for a true-color picture.
    std::unique_ptr<ColorList> palette;
    // The name of a Quake MIP texture.
    std::string quakeName;
    Quake2Properties quake2;

    // The palette indices of the picture, then of as many of its half sizes as are known. A caller that wants
    // indices assigns an empty list before reading; only then do the readers of paletted formats fill the
    // first level. Writers of paletted formats store these levels and search for the indices of the others.
    // The caller must keep the indices in step with the pixels and below the written palette's color count.
    std::optional<std::vector<IndexPlane>> indices;

    // Returns the indices of a mip level; empty if there are none.
    std::span<const std::uint8_t> IndicesOfLevel(std::size_t level) const {
        if (!indices || level >= indices->size()) return {};
        return (*indices)[level];
    }
};

} // namespace keltavlo
