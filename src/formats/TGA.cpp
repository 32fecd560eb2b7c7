#include "formats/TGA.h"

#include "framework/core/Exceptions.h"
#include "image/picture/StoredPixels.h"
#include "image/picture/StoredRows.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace keltavlo {

namespace {

enum ImageType : std::uint8_t {
    noPicture = 0,
    colorMapped = 1,
    trueColor = 2,
    gray = 3,
    colorMappedRuns = 9,
    trueColorRuns = 10,
    grayRuns = 11
};
constexpr std::uint8_t columnsFromRight = 0x10; // in the descriptor
constexpr std::uint8_t rowsFromTop = 0x20;
constexpr std::uint8_t eightAlphaBits = 8;

// The layout in the file, little-endian, without gaps.
struct [[gnu::packed]] Header {
    std::uint8_t identifierLength; // bytes between the header and the color map
    std::uint8_t colorMapType;     // 0: none, 1: one
    std::uint8_t imageType;
    std::uint16_t colorMapFirst, colorMapLength; // entries
    std::uint8_t colorMapEntryBits;
    std::uint16_t left, bottom;
    std::uint16_t width, height;
    std::uint8_t depth; // bits a pixel
    std::uint8_t descriptor;

    // Returns the number of bytes between the header and the first pixel.
    std::int64_t SkippedBytes() const {
        const int entryBytes = std::max((colorMapEntryBits + 7) / 8, 1);
        return identifierLength + std::int64_t{colorMapType} * colorMapLength * entryBytes;
    }
};
static_assert(sizeof(Header) == 18);

// The last bytes of a file of version 2.
struct Footer {
    std::uint32_t extensionPosition, developerPosition; // 0 for none
    std::array<char, 16> signature;
    char dot;
    char nul;

    bool IsSigned() const { return std::string_view(signature.data(), signature.size()) == signatureText; }

    static constexpr std::string_view signatureText = "TRUEVISION-XFILE";
    static constexpr std::size_t storedSize = 26;
};
static_assert(offsetof(Footer, nul) == Footer::storedSize - 1);

void CheckFooter(InputStream& in) {
    if (in.GetLength() < Footer::storedSize)
        throw CFileException(CFileException::badSeek, in.GetName(),
                             CArchiveException(CArchiveException::endOfFile).what());
    Footer footer;
    in.Seek(-static_cast<std::int64_t>(Footer::storedSize), CFile::From::end);
    in.Read(&footer, Footer::storedSize);
    if (footer.IsSigned() && (footer.dot != '.' || footer.nul != 0)) in.Fail(StreamError::badIndex);
}

std::uint64_t PictureBytes(const Header& header, std::uint64_t pixelBytes) {
    return pixelBytes * header.width * header.height;
}

// Whether the fields make sense, even for kinds of pictures that cannot be read. A file without pixels is
// tiny whatever size it claims, so the size is limited.
bool IsTarga(const Header& header) {
    constexpr std::uint64_t maximumEmptyPicture = std::uint64_t{16} << 20;
    if (header.width == 0 || header.height == 0 || header.colorMapType > 1) return false;
    if (header.imageType == noPicture) return PictureBytes(header, sizeof(Color)) <= maximumEmptyPicture;
    constexpr int trueColorDepths[] = {15, 16, 24, 32};
    return header.imageType != trueColor ||
           std::ranges::find(trueColorDepths, header.depth) != std::end(trueColorDepths);
}

// Returns why the picture cannot be read; empty if it can.
std::string RefusalOf(const Header& header) {
    switch (header.imageType) {
    case noPicture:
        return {};
    case trueColor:
        if (header.depth >= 24) return {};
        return std::to_string(header.depth) + "-bit Targa pictures are not supported.";
    case colorMapped:
        return "Color-mapped Targa pictures are not supported.";
    case gray:
        return "Gray Targa pictures are not supported.";
    case colorMappedRuns:
    case trueColorRuns:
    case grayRuns:
        return "Run-length encoded Targa pictures are not supported.";
    default:
        return "This kind of Targa picture is not supported.";
    }
}

void CheckHeader(const InputStream& in, const Header& header) {
    if (!IsTarga(header)) in.Fail(StreamError::badIndex);
    const std::string refusal = RefusalOf(header);
    if (!refusal.empty()) in.Fail(StreamError::badIndex, refusal);
}

void ReadPixels(InputStream& in, const Header& header, Image& picture) {
    const std::size_t pixelBytes = header.depth / 8U;
    if (PictureBytes(header, pixelBytes) > in.GetRemaining()) in.Fail(StreamError::endOfFile);
    picture.SetSizeUncleared(header.width, header.height);
    StoredRows rows(in, pixelBytes * header.width, header.height);
    for (int i = 0; i < header.height; ++i) {
        const bool fromTop = (header.descriptor & rowsFromTop) != 0;
        const std::span<Color> row = picture.Row(fromTop ? i : header.height - 1 - i);
        if (header.depth == 24)
            ExpandBgr(rows.Next(), row);
        else
            in.Read(row); // the bytes of a Color
        if (header.descriptor & columnsFromRight) std::ranges::reverse(row);
    }
}

bool IsOpaque(const Image& picture) {
    Color common = alphaMask;
    for (const Color pixel : picture.Pixels()) common &= pixel;
    return Alpha(common) == opaqueAlpha;
}

void WriteRow(OutputStream& out, std::span<const Color> row, std::span<std::uint8_t> bytes, bool opaque) {
    if (!opaque) return out.Write(row);
    PackBgr(row, bytes);
    out.Write(std::span<const std::uint8_t>(bytes));
}

} // namespace

void ReadTGA(InputStream& in, Texture& texture, const ColorList*) {
    CheckFooter(in);
    in.Seek(0);
    Header header;
    in.Read(&header, sizeof header);
    CheckHeader(in, header);
    if (header.imageType == noPicture) {
        texture.SetSize(header.width, header.height);
        std::ranges::fill(texture.Pixels(), Color{0});
    } else {
        in.Seek(header.SkippedBytes(), CFile::From::current);
        ReadPixels(in, header, texture);
    }
}

void WriteTGA(OutputStream& out, const Texture& texture, const ColorList*) {
    if (texture.Pixels().empty()) out.Fail(StreamError::badIndex);
    const bool opaque = IsOpaque(texture);
    Header header{};
    header.imageType = trueColor;
    header.width = static_cast<std::uint16_t>(texture.GetWidth());
    header.height = static_cast<std::uint16_t>(texture.GetHeight());
    header.depth = opaque ? 24 : 32;
    header.descriptor = opaque ? 0 : eightAlphaBits;
    out.Write(&header, sizeof header);
    std::vector<std::uint8_t> bytes(bgrPixelSize * header.width);
    for (int y = texture.GetHeight() - 1; y >= 0; --y) WriteRow(out, texture.Row(y), bytes, opaque);
    Footer footer{0, 0, {}, '.', 0};
    std::ranges::copy(Footer::signatureText, footer.signature.begin());
    out.Write(&footer, Footer::storedSize);
}

} // namespace keltavlo
