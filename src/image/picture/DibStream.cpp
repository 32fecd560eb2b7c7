#include "image/picture/DibStream.h"

#include "image/picture/DibFile.h"
#include "image/picture/DibRowDecoder.h"
#include "image/picture/DibSection.h"
#include "image/picture/Image.h"
#include "image/picture/StoredRows.h"
#include "resources/streams/OutputStream.h"

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

void ReadDib(InputStream& in, DibForm form, Image& picture) {
    const DibDescription description = ReadDibDescription(in, form);
    const DibRowDecoder decoder(description);
    picture.SetSizeUncleared(description.header.width, description.Rows());
    StoredRows rows(in, description.Stride(), static_cast<std::size_t>(description.Rows()));
    for (int i = 0; i < description.Rows(); ++i)
        decoder.Decode(rows.Next(), picture.Row(description.PictureRow(i)));
}

void ReadDib(InputStream& in, DibForm form, DibSection& bitmap) {
    const DibDescription description = ReadDibDescription(in, form);
    bitmap.Create(description.header, description.masks);
    bitmap.SetColorTable(0, description.colors.Colors());
    in.Read(bitmap.GetBits(), bitmap.GetImageSize());
}

void WriteDib(OutputStream& out, DibForm form, const DibSection& bitmap) {
    if (form == DibForm::file) {
        DibFileHeader fileHeader;
        fileHeader.fileSize = static_cast<std::uint32_t>(bitmap.GetStreamSize(true));
        fileHeader.rowsOffset =
            static_cast<std::uint32_t>(bitmap.GetStreamSize(true) - bitmap.GetImageSize());
        out.Write(&fileHeader, sizeof fileHeader);
    }
    out.Write(&bitmap.GetHeader(), sizeof(DibHeader));
    WriteTable(out, bitmap);
    out.Write(bitmap.GetBits(), bitmap.GetImageSize());
}
