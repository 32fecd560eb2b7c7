#pragma once

#include "image/picture/Color.h"
#include "image/picture/PictureSize.h"
#include "image/picture/PixelTransform.h"
#include "image/picture/PixelVector.h"

#include <cstddef>
#include <span>

namespace keltavlo {

class ColorList;
class DibSection;
class InputStream;

// A picture in 32-bit color: width x height pixels, rows from the top, no padding. Pixel access is unchecked:
// the caller ensures 0 <= x < width and 0 <= y < height.
class Image {
public:
    // Makes one pixel of value 0.
    Image();
    // Makes a picture with all pixels 0 (transparent black). Throws PictureSizeError like SetSize.
    Image(int initialWidth, int initialHeight);
    Image(const Image& other);
    Image& operator=(const Image& other);
    // Leaves the other picture 0 x 0.
    Image(Image&& other) noexcept;
    Image& operator=(Image&& other) noexcept;
    virtual ~Image();

    int GetWidth() const { return width; }
    int GetHeight() const { return height; }

    Color GetPixel(int x, int y) const { return pixels[Offset(x, y)]; }
    void SetPixel(int x, int y, Color color) { pixels[Offset(x, y)] = color; }

    // The picture as an endless tiling. It must have at least one pixel.
    Color GetPixelWrapped(unsigned x, unsigned y) const { return pixels[WrappedOffset(x, y)]; }
    void SetPixelWrapped(unsigned x, unsigned y, Color color) { pixels[WrappedOffset(x, y)] = color; }

    // Throws std::out_of_range if the list has no such entry, as does the wrapped form.
    void SetPixelFromPalette(int x, int y, const ColorList& list, std::size_t index);
    void SetPixelFromPaletteWrapped(unsigned x, unsigned y, const ColorList& list, std::size_t index);

    std::span<Color> Row(int y) { return {pixels.data() + Offset(0, y), Side(width)}; }
    std::span<const Color> Row(int y) const { return {pixels.data() + Offset(0, y), Side(width)}; }
    std::span<Color> Pixels() { return pixels; }
    std::span<const Color> Pixels() const { return pixels; }

    // New pixels are 0; the others are in no useful order, so callers fill all of them. Sides of 0 are
    // allowed. Throws PictureSizeError and leaves the picture unchanged for negative sides and sizes beyond
    // the limits.
    void SetSize(int newWidth, int newHeight);
    // Does the same but leaves new pixels undefined, for callers that fill large pictures.
    void SetSizeUncleared(int newWidth, int newHeight);
    // Crops to the top left corner or repeats the right and bottom edges outward. A picture without pixels
    // becomes all 0. Throws like SetSize.
    void Resize(int newWidth, int newHeight) { Image::operator=(ResizedPicture(newWidth, newHeight)); }
    // Returns the picture that Resize would make of this one.
    Image ResizedPicture(int newWidth, int newHeight) const;
    // Fills the output, another picture, with the averages of the 2 x 2 blocks. Odd last rows and columns are
    // averaged along the edge.
    void MakeHalfSize(Image& output) const;

    // Replaces every pixel by the nearest color of the list. Throws std::out_of_range if the list is empty
    // and the picture is not.
    void ConvertToNearest(const ColorList& list);
    // Does the same but adds the error of red, green and blue to the next pixel of the row.
    void ConvertByErrorDiffusion(const ColorList& list);

    // Copies the size and pixels of the bitmap and makes every pixel opaque.
    void FromBitmap(const DibSection& bitmap);
    // Does the same for a bitmap in a stream, as DibSection::ReadStream reads it, but without making the
    // bitmap. Fails like ReadDibDescription. Throws PictureSizeError for a picture beyond the limits.
    void FromStoredBitmap(InputStream& in, bool withFileHeader);
    // Writes every pixel through the transform into the bitmap, which is recreated first if its size differs.
    // Throws BitmapError if that fails, as for a picture without pixels.
    void RenderTo(DibSection& bitmap, const PixelTransform& transform) const;

    // Writes the width x height x 4 bytes of the pixels: blue, green, red, alpha.
    void CopyBytesTo(std::uint8_t* destination) const;

private:
    static std::size_t Side(int side) { return static_cast<std::size_t>(side); }
    std::size_t Offset(int x, int y) const { return Side(y) * Side(width) + Side(x); }
    std::size_t WrappedOffset(unsigned x, unsigned y) const {
        return std::size_t{y % static_cast<unsigned>(height)} * Side(width) +
               x % static_cast<unsigned>(width);
    }

    PixelVector pixels;
    int width = 1;
    int height = 1;
};

} // namespace keltavlo
