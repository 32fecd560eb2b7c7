#pragma once

#include "image/picture/ChannelMasks.h"
#include "image/picture/ColorList.h"
#include "image/picture/DibHeader.h"

namespace keltavlo {

class InputStream;

// What a stored bitmap says before its rows.
struct DibDescription {
    DibHeader header;
    ChannelMasks masks;
    // Up to 8 bits a pixel only; never more than an index can reach, and opaque.
    ColorList colors;

    std::size_t Stride() const { return static_cast<std::size_t>(DibStride(header.bitCount, header.width)); }
    int Rows() const { return header.height < 0 ? -header.height : header.height; }
    // The row of the picture that is stored as the i-th.
    int PictureRow(int i) const { return header.height < 0 ? i : Rows() - 1 - i; }
    // The opaque color of a stored pixel: an index up to 8 bits, black beyond the color table, else the
    // value.
    Color ColorOf(std::uint32_t pixel) const {
        if (header.bitCount > 8) return masks.ToColor(pixel);
        return pixel < colors.GetCount() ? colors.GetColor(pixel) : Compose(0, 0, 0);
    }
};

// Reads it, after the file header of 14 bytes if there is one, and leaves the stream at the first row; the
// stream has all rows then, and the picture's sides are 1 to 65535. Headers of every size become the 40-byte
// form. Calls Fail with badClass for another kind of file, with badIndex for fields that make no bitmap and
// for compressed bitmaps, with a sentence that says so, and with endOfFile for a stream that ends early.
DibDescription ReadDibDescription(InputStream& in, bool withFileHeader);

} // namespace keltavlo
