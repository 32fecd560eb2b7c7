#include "formats/CodecHarness.h"

// Fields that make a good file one that is refused, and why.

namespace {

struct Refusal {
    const char* documentClass;
    std::size_t offset;
    std::size_t width; // bytes
    std::vector<std::uint32_t> values;
    CArchiveException::Cause cause;
};

using enum CArchiveException::Cause;
constexpr std::uint32_t least = 0x80000000, most = 0x7FFFFFFF;

// The files are of 8 x 8 pixels.
const Refusal refusals[] = {
    {"BMPDocument", 1, 1, {'A'}, badClass},
    {"BMPDocument", 14, 4, {0, 3, 4, 6}, badIndex}, // the header's size
    {"BMPDocument", 18, 4, {0, 0xFFFFFFFF, least, most, 65536}, badIndex},
    {"BMPDocument", 22, 4, {0, least, most, 65536}, badIndex},
    {"BMPDocument", 22, 4, {65535, 0xFFFF0001}, endOfFile},
    {"BMPDocument", 26, 2, {0}, badIndex},                   // planes
    {"BMPDocument", 28, 2, {0, 2, 15, 33, 65535}, badIndex}, // bits
    {"MIPDocument", 16, 4, {0, 12, 264, least, 0xFFFFFFF8}, badIndex},
    {"MIPDocument", 20, 4, {0, 12, 264, least, 0xFFFFFFF8}, badIndex},
    {"MIPDocument", 24, 4, {0xFFFFFFFF}, endOfFile}, // where the first level lies
    {"PCXDocument", 0, 1, {11}, badClass},
    {"PCXDocument", 1, 1, {3}, badSchema},
    {"PCXDocument", 2, 1, {0}, badIndex},        // not coded
    {"PCXDocument", 3, 1, {4}, badIndex},        // bits
    {"PCXDocument", 4, 2, {8}, badIndex},        // no column
    {"PCXDocument", 6, 2, {0xFFFF}, badIndex},   // no row
    {"PCXDocument", 8, 2, {8}, badIndex},        // more columns than a row holds
    {"PCXDocument", 10, 2, {0xFFFF}, endOfFile}, // the most that the fields can claim
    {"PCXDocument", 65, 1, {3}, badIndex},       // planes
    {"PCXDocument", 66, 2, {3, 6, 9}, badIndex}, // bytes of a row
    {"TGADocument", 1, 1, {2, 255}, badIndex},   // the colour map
    {"TGADocument", 2, 1, {1, 3, 4, 9, 10, 11, 32, 255}, badIndex},
    {"TGADocument", 12, 2, {0}, badIndex},
    {"TGADocument", 14, 2, {0}, badIndex},
    {"TGADocument", 14, 2, {0xFFFF}, endOfFile},
    {"TGADocument", 16, 1, {0, 1, 8, 15, 16, 23, 33, 255}, badIndex}, // bits
    {"TGADocument", 234, 1, {','}, badIndex},                         // the footer's dot and NUL
    {"TGADocument", 235, 1, {1}, badIndex},
    {"WALDocument", 32, 4, {0, 63, 260, 264, 0xFFFFFFF8}, badIndex},
    {"WALDocument", 36, 4, {0, 63, 260, 264, 0xFFFFFFF8}, badIndex},
    {"WALDocument", 40, 4, {185 - 63, 0xFFFFFFFF}, endOfFile}, // where the first level lies
};

} // namespace

TEST(RefusedHeaders, HaveTheirCauses) {
    for (const auto& [documentClass, offset, width, values, cause] : refusals)
        for (const std::uint32_t value : values) {
            const CodecHarness codec(documentClass);
            Bytes bytes = codec.Write(RandomTexture(8, 8));
            std::memcpy(bytes.data() + offset, &value, width);
            EXPECT_EQ(codec.ReadFailure(bytes), cause) << documentClass << " " << offset << ": " << value;
        }
}
