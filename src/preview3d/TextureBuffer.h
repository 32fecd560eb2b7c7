#pragma once

#include "image/picture/Image.h"

namespace keltavlo {

// A picture for the 3D view, whose sides are powers of two from 16 to 256. It has its own copy of the pixels.
class TextureBuffer : public Image {
public:
    static constexpr int minimumSide = 16; // pixels
    static constexpr int maximumSide = 256;

    // A picture of the smallest size, in opaque mid-gray.
    TextureBuffer();

    // Allocates cx x cy pixels of undefined content.
    void SetTextureSize(int cx, int cy) { SetSizeUncleared(cx, cy); }
    // Copies the picture from its top left corner, cropped to the largest size. Repeats the last row and
    // column up to the next power of two.
    void TakePicture(const Image& picture);
    // Width x height x 4 bytes: blue, green, red, alpha; top row first.
    const Color* GetBytes() const { return Pixels().data(); }
};

// Copies the picture of the last open image document in the order of types and then of opening. Returns a
// plain gray one if none is open.
TextureBuffer TakeLastPicture();

} // namespace keltavlo
