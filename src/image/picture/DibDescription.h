#pragma once

#include "image/picture/ChannelMasks.h"
#include "image/picture/ColorList.h"
#include "image/picture/DibHeader.h"

namespace keltavlo {

class InputStream;

// The part of a stored bitmap before its rows.
struct DibDescription {
    DibHeader header;
    ChannelMasks masks;
    // Only for up to 8 bits per pixel; no more than an index can reach, and opaque.
    ColorList colors;

    std::size_t Stride() const { return static_cast<std::size_t>(DibStride(header.bitCount, header.width)); }
    int Rows() const { return header.height < 0 ? -header.height : header.height; }
    // Returns the row of the picture that is stored at position i.
    int PictureRow(int i) const { return header.height < 0 ? i : Rows() - 1 - i; }
    // Returns the opaque color of a stored pixel. Up to 8 bits, a pixel is an index, and indices beyond the
    // color table are black.
    Color ColorOf(std::uint32_t pixel) const {
        if (header.bitCount > 8) return masks.ToColor(pixel);
        return pixel < colors.GetCount() ? colors.GetColor(pixel) : Compose(0, 0, 0);
    }
};

// Reads the description, after the file header of 14 bytes if there is one, and leaves the stream at the
// first row. The stream then contains all rows, and the picture's sides are 1 to 65535. Headers of every size
// become the 40-byte form. Fails with badClass for another kind of file, with badIndex for invalid fields
// and, with a sentence that says so, for compressed bitmaps, and with endOfFile for a stream that ends early.
DibDescription ReadDibDescription(InputStream& in, bool withFileHeader);

} // namespace keltavlo
