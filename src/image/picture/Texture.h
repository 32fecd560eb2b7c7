#pragma once

#include "image/picture/Image.h"
#include "image/picture/Quake2Properties.h"

#include <memory>
#include <string>

namespace keltavlo {

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

    // A copy with the picture cropped or its edges repeated, as Image::Resize does it.
    Texture Resized(int newWidth, int newHeight) const;
    // Replaces the palette by a copy of the list.
    void SetPalette(const ColorList& list);

    // The picture's own palette, or none for a true-color picture.
    std::unique_ptr<ColorList> palette;
    // The name of a Quake MIP texture.
    std::string quakeName;
    Quake2Properties quake2;
};

} // namespace keltavlo
