#include "resources/LMPDocument.h"

#include "resources/streams/InputStream.h"

#include <array>

void LMPDocument::ReadContents(InputStream& in) {
    constexpr std::size_t count = 256;
    std::array<std::uint8_t, count * 3> bytes;
    in.Read(std::span<std::uint8_t>(bytes));
    colors = ColorList(count);
    for (std::size_t i = 0; i < count; ++i)
        colors.SetColor(i, Compose(bytes[3 * i], bytes[3 * i + 1], bytes[3 * i + 2]));
}
