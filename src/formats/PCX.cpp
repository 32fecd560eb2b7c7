#include "formats/PCX.h"

#include "formats/GameTexture.h"
#include "formats/PCXRows.h"
#include "image/picture/ColorList.h"
#include "image/picture/NearestSearch.h"
#include "image/picture/StoredPixels.h"
#include "image/picture/Texture.h"
#include "resources/streams/OutputStream.h"

#include <algorithm>
#include <array>
#include <vector>

namespace keltavlo {

using namespace gametexture;
using namespace pcx;

namespace {

constexpr std::uint8_t expectedManufacturer = 10;
constexpr std::uint8_t expectedVersion = 5;
constexpr std::uint8_t runLengthEncoding = 1;
constexpr std::uint16_t writtenResolution = 72; // dots per inch
constexpr std::uint16_t colorPalette = 1;

// The layout in the file, little-endian.
struct Header {
    std::uint8_t manufacturer, version, encoding, bitsPerPixel;
    std::uint16_t left, top, right, bottom; // right and bottom are inclusive
    std::uint16_t horizontalResolution, verticalResolution;
    std::uint8_t firstColors[16 * rgbTripleSize];
    std::uint8_t reserved;
    std::uint8_t planes;
    std::uint16_t bytesPerLine; // of one plane, even
    std::uint16_t paletteInfo;
    std::uint16_t screenWidth, screenHeight;
    std::uint8_t filler[54];

    std::size_t LineSize() const { return std::size_t{planes} * bytesPerLine; }
    int Width() const { return right - left + 1; }
    int Height() const { return bottom - top + 1; }
};
static_assert(sizeof(Header) == 128);

// The end of a file with a palette.
constexpr std::uint8_t paletteMark = 12;
constexpr std::size_t paletteSize = 256; // colors
struct Trailer {
    std::uint8_t mark;
    std::array<std::uint8_t, paletteSize * rgbTripleSize> colors;
};
static_assert(sizeof(Trailer) == 769);

// Whether the fields make sense, even for kinds of pictures that cannot be read.
bool IsPcx(const Header& header) {
    return header.encoding <= runLengthEncoding && header.bitsPerPixel > 0 && header.planes > 0 &&
           header.Width() > 0 && header.Height() > 0 &&
           std::uint64_t{header.bytesPerLine} * 8 >=
               static_cast<std::uint64_t>(header.Width()) * header.bitsPerPixel;
}

// Returns why the picture cannot be read; empty if it can.
std::string RefusalOf(const Header& header) {
    if (header.encoding != runLengthEncoding) return "Uncompressed PCX pictures are not supported.";
    const int depth = header.bitsPerPixel * header.planes;
    if (depth != 8) return std::to_string(depth) + "-bit PCX pictures are not supported.";
    if (header.planes != 1) return "PCX pictures of several planes are not supported.";
    if (header.bytesPerLine % 2 != 0)
        return "PCX pictures with an odd number of bytes per row are not supported.";
    return {};
}

// The order matters, because the first fault determines the message.
void CheckHeader(const InputStream& in, const Header& header) {
    if (header.manufacturer != expectedManufacturer) in.Fail(StreamError::badClass);
    if (header.version != expectedVersion) in.Fail(StreamError::badSchema);
    if (!IsPcx(header)) in.Fail(StreamError::badIndex);
    const std::string refusal = RefusalOf(header);
    if (!refusal.empty()) in.Fail(StreamError::badIndex, refusal);
}

// Throws endOfFile for a file that is too short however well it is compressed. A run takes two bytes, a
// single byte one.
void CheckLength(const InputStream& in, const Header& header) {
    const std::uint64_t rowBytes =
        2 * (header.LineSize() / maximumRun) + std::min<std::size_t>(header.LineSize() % maximumRun, 2);
    if (rowBytes * static_cast<std::uint64_t>(header.Height()) > in.GetRemaining())
        in.Fail(StreamError::endOfFile);
}

// Returns the palette at the end of the file, or `fallback` if there is none. Keeps the stream's position.
ColorList ReadPalette(InputStream& in, const ColorList& fallback) {
    const std::uint64_t rows = in.GetPosition();
    Trailer trailer{};
    if (in.GetLength() > sizeof trailer) {
        in.Seek(-static_cast<std::int64_t>(sizeof trailer), CFile::From::end);
        in.Read(&trailer, sizeof trailer);
        in.Seek(rows);
    }
    return trailer.mark == paletteMark ? ColorsFromTriples(trailer.colors) : fallback;
}

// Throws badIndex unless there are 256 colors, because the format has only full palettes.
void CheckColors(const OutputStream& out, const ColorList& colors) {
    if (colors.GetCount() == paletteSize) return;
    out.Fail(StreamError::badIndex, "A PCX file needs a palette of 256 colors, and this picture's has " +
                                        std::to_string(colors.GetCount()) + ".");
}

Header HeaderOf(const Texture& texture, const ColorList& colors) {
    Header header{};
    header.manufacturer = expectedManufacturer;
    header.version = expectedVersion;
    header.encoding = runLengthEncoding;
    header.bitsPerPixel = 8;
    header.right = static_cast<std::uint16_t>(texture.GetWidth() - 1);
    header.bottom = static_cast<std::uint16_t>(texture.GetHeight() - 1);
    header.horizontalResolution = header.verticalResolution = writtenResolution;
    PutTriples(colors, header.firstColors);
    header.planes = 1;
    header.bytesPerLine = static_cast<std::uint16_t>((texture.GetWidth() + 1) / 2 * 2);
    header.paletteInfo = colorPalette;
    return header;
}

// Writes each index separately, as a run of one if it would otherwise look like the start of a run.
void PutLine(std::vector<std::uint8_t>& bytes, std::span<const std::uint8_t> indices) {
    for (const std::uint8_t index : indices) {
        if (IsRun(index)) bytes.push_back(runMark | 1);
        bytes.push_back(index);
    }
    if (indices.size() % 2 != 0) bytes.push_back(0);
}

void WriteLines(OutputStream& out, const Texture& texture, const ColorList& colors) {
    const auto width = static_cast<std::size_t>(texture.GetWidth());
    const std::span<const std::uint8_t> known = texture.IndicesOfLevel(0);
    std::vector<std::uint8_t> indices(width);
    std::vector<std::uint8_t> bytes;
    NearestSearch search(colors);
    for (int y = 0; y < texture.GetHeight(); ++y) {
        if (known.empty())
            search.FindIndices(texture.Row(y), indices);
        else
            std::ranges::copy(known.subspan(static_cast<std::size_t>(y) * width, width), indices.begin());
        bytes.clear();
        PutLine(bytes, indices);
        out.Write(std::span<const std::uint8_t>(bytes));
    }
}

} // namespace

void ReadPCX(InputStream& in, Texture& texture, const ColorList* palette) {
    Header header;
    in.Read(&header, sizeof header);
    CheckHeader(in, header);
    CheckLength(in, header);
    const ColorList palette256 = ReadPalette(in, *palette);
    const std::span<const Color> colors = palette256.Colors();
    texture.SetSizeUncleared(header.Width(), header.Height());
    PCXRows rows(in, header.LineSize(), static_cast<std::size_t>(header.Height()));
    if (texture.indices) texture.indices->assign(1, {});
    for (int y = 0; y < header.Height(); ++y) {
        const std::span<const std::uint8_t> line = rows.Next();
        const std::span<Color> row = texture.Row(y);
        ExpandIndices(line, colors, row);
        if (texture.indices)
            texture.indices->front().insert(texture.indices->front().end(), line.begin(),
                                            line.begin() + static_cast<std::ptrdiff_t>(row.size()));
    }
    texture.SetPalette(palette256);
}

void WritePCX(OutputStream& out, const Texture& texture, const ColorList* palette) {
    constexpr int maximumWidth = 65534; // a row's number of bytes is even and stored in 16 bits
    const ColorList& colors = PaletteOf(texture, palette);
    if (texture.GetWidth() < 1 || texture.GetWidth() > maximumWidth || texture.GetHeight() < 1)
        out.Fail(StreamError::badIndex);
    CheckColors(out, colors);
    const Header header = HeaderOf(texture, colors);
    out.Write(&header, sizeof header);
    WriteLines(out, texture, colors);
    if (!texture.palette) return;
    Trailer trailer{paletteMark, {}};
    PutTriples(colors, trailer.colors);
    out.Write(&trailer, sizeof trailer);
}

} // namespace keltavlo
