#pragma once

#include "image/picture/Image.h"

namespace keltavlo {

// A picture that the 3D view can draw with: its sides are powers of two from 16 to 256. It keeps its own
// pixels, whatever happens to the picture that they were taken from.
class TextureBuffer : public Image {
public:
    static constexpr int minimumSide = 16; // pixels
    static constexpr int maximumSide = 256;

    // The smallest size, all pixels opaque mid-grey.
    TextureBuffer();

    // Makes room for cx x cy pixels, in no useful order.
    void SetTextureSize(int cx, int cy) { SetSizeUncleared(cx, cy); }
    // Takes the picture's pixels, one to one from the top left corner: what lies beyond the largest size is
    // left out, and the last row and column are repeated up to the next power of two.
    void TakePicture(const Image& picture);
    // Width x height x 4 bytes: blue, green, red, alpha; rows top first.
    const Color* GetBytes() const { return Pixels().data(); }
};

// The picture of the image document that comes last among the open ones, by type and then in the order of
// opening; a plain grey one when none is open.
TextureBuffer TakeLastPicture();

} // namespace keltavlo
