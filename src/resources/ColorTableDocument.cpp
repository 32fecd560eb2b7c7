#include "resources/ColorTableDocument.h"

#include "resources/streams/OutputStream.h"

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

} // namespace keltavlo
