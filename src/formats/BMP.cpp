#include "formats/BMP.h"

#include "image/picture/ColorList.h"
#include "image/picture/DibDescription.h"
#include "image/picture/DibSection.h"
#include "image/picture/StoredPixels.h"
#include "image/picture/StoredRows.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>

namespace keltavlo {

namespace {

constexpr int indexBits = 8;
constexpr std::uint32_t indexCount = 256;

// Indices without a color become black.
ColorList PaletteOf(const DibDescription& bitmap) {
    ColorList palette(indexCount);
    for (std::uint32_t i = 0; i < indexCount; ++i) palette.SetColor(i, bitmap.ColorOf(i));
    return palette;
}

void ReadIndexRows(InputStream& in, const DibDescription& bitmap, Texture& texture) {
    texture.SetSizeUncleared(bitmap.header.width, bitmap.Rows());
    texture.SetPalette(PaletteOf(bitmap));
    const auto width = static_cast<std::size_t>(texture.GetWidth());
    IndexPlane indices(texture.Pixels().size());
    StoredRows rows(in, bitmap.Stride(), static_cast<std::size_t>(texture.GetHeight()));
    for (int i = 0; i < texture.GetHeight(); ++i) {
        const auto first =
            static_cast<std::ptrdiff_t>(static_cast<std::size_t>(bitmap.PictureRow(i)) * width);
        std::ranges::copy(rows.Next().first(width), indices.begin() + first);
    }
    ExpandIndices(indices, texture.palette->Colors(), texture.Pixels());
    texture.indices->clear();
    texture.indices->push_back(std::move(indices));
}

} // namespace

void ReadBMP(InputStream& in, Texture& texture, const ColorList*) {
    if (texture.indices) {
        const std::uint64_t start = in.GetPosition();
        const DibDescription bitmap = ReadDibDescription(in, true);
        if (bitmap.header.bitCount == indexBits) return ReadIndexRows(in, bitmap, texture);
        in.Seek(start);
    }
    texture.FromStoredBitmap(in, true);
}

void WriteBMP(OutputStream& out, const Texture& texture, const ColorList*) {
    if (texture.Pixels().empty()) out.Fail(StreamError::badIndex);
    DibSection bitmap(texture.GetWidth(), texture.GetHeight(), 32);
    texture.RenderTo(bitmap, IdentityTransform{});
    bitmap.WriteStream(out, true);
}

} // namespace keltavlo
