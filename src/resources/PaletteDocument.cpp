#include "resources/PaletteDocument.h"

#include "image/picture/ColorList.h"
#include "resources/streams/OutputStream.h"
#include "resources/streams/TaggedFile.h"

#include <array>

namespace keltavlo {

void ColorTableDocument::ReadContents(InputStream& in) {
    const std::uint64_t length = in.GetLength();
    if (length % sizeof(Color) != 0) in.Fail(StreamError::badIndex);
    std::vector<Color> entries(length / sizeof(Color));
    in.Read(std::span<Color>(entries));
    colors = ColorList(std::move(entries));
}

void ColorTableDocument::WriteContents(OutputStream& out) {
    out.Fail(StreamError::generic);
}

void LMPDocument::ReadContents(InputStream& in) {
    std::array<std::uint8_t, 256 * rgbTripleSize> bytes;
    in.Read(std::span<std::uint8_t>(bytes));
    colors = ColorsFromTriples(bytes);
}

void ColorSpaceDocument::ReadContents(InputStream& in) {
    fixedTitle = ReadTaggedContents(in, tagged::colorSpaceType, tagged::Tag("RGBA")).title;
}

void ColorSpaceDocument::WriteContents(OutputStream& out) {
    out.FailUnnamed(StreamError::readOnly);
}

} // namespace keltavlo
