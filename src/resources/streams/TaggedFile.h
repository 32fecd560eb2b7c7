#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace keltavlo {

class InputStream;

// The program's own tagged format: a 16-byte header (8 bytes of magic, a u32 type tag, a u32 chunk count),
// then the chunks, each a u32 tag and a payload whose form the tag fixes. Everything is little-endian.
namespace tagged {

// Four characters as the u32 that they make in a file.
constexpr std::uint32_t Tag(const char (&text)[5]) {
    std::uint32_t tag = 0;
    for (int i = 3; i >= 0; --i) tag = tag << 8 | static_cast<unsigned char>(text[i]);
    return tag;
}

constexpr std::uint32_t brushType = Tag("Brsh");
constexpr std::uint32_t colorSpaceType = Tag("ClSp");
constexpr std::uint32_t idChunk = Tag("id\0\0");      // payload: u32, the kind of the object
constexpr std::uint32_t ansiTitleChunk = Tag("UITA"); // payload: u32 n, n bytes of text
constexpr std::uint32_t wideTitleChunk = Tag("UITU"); // payload: u32 n, n 16-bit units of text
constexpr std::uint8_t magic[8] = {'K', 'E', 'L', 0xE5, 0xD0, 'T', 'A', 'V'};

} // namespace tagged

// The chunk count; badClass when the magic or the type is not the expected one.
std::uint32_t ReadTaggedHeader(InputStream& in, std::uint32_t expectedType);
// The payloads of the two title chunks: the text before its first NUL.
void ReadAnsiTitle(InputStream& in, std::string& title);
void ReadWideTitle(InputStream& in, std::string& title);

// What a tagged file says: its kind (0 when it has none) and its title.
struct TaggedContents {
    std::uint32_t id = 0;
    std::string title;
};
// Reads header and chunks; badIndex for an unknown chunk. A kind other than the only one allowed is badIndex
// too, when one is given.
TaggedContents ReadTaggedContents(InputStream& in, std::uint32_t expectedType,
                                  std::optional<std::uint32_t> onlyId = std::nullopt);

} // namespace keltavlo
