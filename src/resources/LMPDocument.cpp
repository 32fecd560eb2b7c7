#include "resources/LMPDocument.h"

#include "image/picture/ColorList.h"
#include "resources/streams/InputStream.h"

#include <array>

namespace keltavlo {

void LMPDocument::ReadContents(InputStream& in) {
    std::array<std::uint8_t, 256 * rgbTripleSize> bytes;
    in.Read(std::span<std::uint8_t>(bytes));
    colors = ColorsFromTriples(bytes);
}

} // namespace keltavlo
