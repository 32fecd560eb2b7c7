#include "image/picture/Image.h"

#include "image/picture/ColorList.h"
#include "image/picture/DibRowDecoder.h"
#include "image/picture/DibSection.h"
#include "image/picture/HalfSize.h"
#include "image/picture/NearestSearch.h"
#include "image/picture/ResizedRows.h"
#include "image/picture/StoredRows.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

namespace keltavlo {

namespace {

std::size_t CheckedPixelCount(int width, int height) {
    const auto outside = [](int side) { return side < 0 || side > maximumPictureSide; };
    const auto count = static_cast<std::uint64_t>(std::int64_t{width} * height);
    if (outside(width) || outside(height) || count * sizeof(Color) > maximumPictureBytes) {
        throw PictureSizeError("A picture cannot be " + std::to_string(width) + " x " +
                               std::to_string(height) + " pixels large.");
    }
    return static_cast<std::size_t>(count);
}

} // namespace

Image::Image() : pixels(1, Color{0}) {}

Image::Image(int initialWidth, int initialHeight)
    : pixels(CheckedPixelCount(initialWidth, initialHeight), Color{0}), width(initialWidth),
      height(initialHeight) {}

Image::Image(const Image& other) = default;
Image& Image::operator=(const Image& other) = default;
Image::~Image() = default;

Image::Image(Image&& other) noexcept
    : pixels(std::exchange(other.pixels, {})), width(std::exchange(other.width, 0)),
      height(std::exchange(other.height, 0)) {}

Image& Image::operator=(Image&& other) noexcept {
    if (this == &other) return *this;
    pixels = std::exchange(other.pixels, {});
    width = std::exchange(other.width, 0);
    height = std::exchange(other.height, 0);
    return *this;
}

void Image::SetPixelFromPalette(int x, int y, const ColorList& list, std::size_t index) {
    SetPixel(x, y, list.GetColor(index));
}

void Image::SetPixelFromPaletteWrapped(unsigned x, unsigned y, const ColorList& list, std::size_t index) {
    SetPixelWrapped(x, y, list.GetColor(index));
}

void Image::SetSize(int newWidth, int newHeight) {
    pixels.resize(CheckedPixelCount(newWidth, newHeight), Color{0});
    width = newWidth;
    height = newHeight;
}

void Image::SetSizeUncleared(int newWidth, int newHeight) {
    pixels.resize(CheckedPixelCount(newWidth, newHeight));
    width = newWidth;
    height = newHeight;
}

Image Image::ResizedPicture(int newWidth, int newHeight) const {
    Image resized(newWidth, newHeight);
    if (!pixels.empty() && newWidth > 0) {
        CopyResized<Color>({pixels, width, height}, {resized.pixels, newWidth, newHeight});
    }
    return resized;
}

void Image::MakeHalfSize(Image& output) const {
    output.SetSizeUncleared((width + 1) >> 1, (height + 1) >> 1);
    const std::size_t columns = Side(width);
    const std::size_t pairs = Side(height / 2);
    HalveRowPairs({pixels.data(), columns, pairs, columns, output.pixels.data()});
    if (height % 2 == 0) return;
    // The last row is averaged with itself, because the average of equal values is the value.
    HalveRowPairs({Row(height - 1).data(), columns, 1, 0, output.Row(output.height - 1).data()});
}

void Image::ConvertToNearest(const ColorList& list) {
    NearestSearch(list).Replace(pixels);
}

void Image::ConvertByErrorDiffusion(const ColorList& list) {
    NearestSearch(list).Diffuse(pixels, Side(width));
}

void Image::FromBitmap(const DibSection& bitmap) {
    const DibRowDecoder decoder(bitmap.GetDescription());
    SetSize(bitmap.GetWidth(), bitmap.GetHeight());
    for (int y = 0; y < height; ++y) decoder.Decode(bitmap.StoredRow(y), Row(y));
}

void Image::FromStoredBitmap(InputStream& in, bool withFileHeader) {
    const DibDescription description = ReadDibDescription(in, withFileHeader);
    const DibRowDecoder decoder(description);
    SetSizeUncleared(description.header.width, description.Rows());
    StoredRows rows(in, description.Stride(), Side(height));
    for (int i = 0; i < height; ++i) decoder.Decode(rows.Next(), Row(description.PictureRow(i)));
}

void Image::RenderTo(DibSection& bitmap, const PixelTransform& transform) const {
    if (bitmap.GetWidth() != width || bitmap.GetHeight() != height) {
        bitmap.Recreate(width, height, bitmap.GetBitCount());
    }
    const PixelTransformer transformer(transform);
    if (bitmap.HasColorRows()) {
        for (int y = 0; y < height; ++y) transformer.Apply(Row(y), bitmap.Row(y));
        return;
    }
    std::vector<Color> transformed(Side(width));
    for (int y = 0; y < height; ++y) {
        transformer.Apply(Row(y), transformed);
        for (int x = 0; x < width; ++x) bitmap.SetPixel(x, y, transformed[Side(x)]);
    }
}

void Image::CopyBytesTo(std::uint8_t* destination) const {
    // The address of an empty array may be null, which memcpy does not allow.
    if (!pixels.empty()) std::memcpy(destination, pixels.data(), pixels.size() * sizeof(Color));
}

} // namespace keltavlo
