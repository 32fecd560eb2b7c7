#include "image/picture/DibStream.h"

#include "image/picture/DibDescription.h"
#include "image/picture/DibFile.h"
#include "image/picture/DibRowDecoder.h"
#include "image/picture/DibSection.h"
#include "image/picture/Image.h"
#include "image/picture/StoredRows.h"
#include "resources/streams/OutputStream.h"

namespace keltavlo {

namespace {

void WriteTable(OutputStream& out, const DibSection& bitmap) {
    if (bitmap.GetHeader().compression == DibHeader::bitFields) {
        out.Write(&bitmap.GetMasks(), sizeof(ChannelMasks));
        return;
    }
    std::vector<Color> entries(bitmap.GetHeader().ColorTableEntries());
    if (entries.empty()) return;
    bitmap.GetColorTable(0, entries);
    for (Color& entry : entries) entry &= ~alphaMask; // the fourth byte is reserved
    out.Write(std::span<const Color>(entries));
}

} // namespace

void ReadDib(InputStream& in, bool withFileHeader, Image& picture) {
    const DibDescription description = ReadDibDescription(in, withFileHeader);
    const DibRowDecoder decoder(description);
    picture.SetSizeUncleared(description.header.width, description.Rows());
    StoredRows rows(in, description.Stride(), static_cast<std::size_t>(description.Rows()));
    for (int i = 0; i < description.Rows(); ++i)
        decoder.Decode(rows.Next(), picture.Row(description.PictureRow(i)));
}

void DibSection::ReadStream(InputStream& in, bool withFileHeader) {
    const DibDescription description = ReadDibDescription(in, withFileHeader);
    Create(description.header, description.masks);
    SetColorTable(0, description.colors.Colors());
    in.Read(GetBits(), GetImageSize());
}

void DibSection::WriteStream(OutputStream& out, bool withFileHeader) const {
    if (withFileHeader) {
        DibFileHeader fileHeader;
        fileHeader.fileSize = static_cast<std::uint32_t>(GetStreamSize(true));
        fileHeader.rowsOffset = static_cast<std::uint32_t>(GetStreamSize(true) - GetImageSize());
        out.Write(&fileHeader, sizeof fileHeader);
    }
    out.Write(&header, sizeof header);
    WriteTable(out, *this);
    out.Write(GetBits(), GetImageSize());
}

} // namespace keltavlo
