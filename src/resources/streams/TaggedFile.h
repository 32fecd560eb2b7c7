#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace keltavlo {

class InputStream;
class OutputStream;

// The program's own tagged format: a 16-byte header (8 bytes of magic, a u32 type tag, a u32
// chunk count), then the chunks. Each chunk is a u32 tag and a payload whose layout depends
// on the tag. Everything is little-endian.
namespace tagged {

// Returns four characters as the u32 that they form in a file.
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

// Returns the chunk count. Throws badClass for an unexpected magic or type.
std::uint32_t ReadTaggedHeader(InputStream& in, std::uint32_t expectedType);
void WriteTaggedHeader(OutputStream& out, std::uint32_t type, std::uint32_t chunkCount);
// Read the payload of a title chunk: the text before its first NUL.
void ReadAnsiTitle(InputStream& in, std::string& title);
void ReadWideTitle(InputStream& in, std::string& title);

// The contents of a tagged file: its kind (0 if it has none) and its title.
struct TaggedContents {
    std::uint32_t id = 0;
    std::string title;
};
// Reads header and chunks. Throws badIndex for an unknown chunk and, if `onlyId` is given, for any
// other kind.
TaggedContents ReadTaggedContents(InputStream& in, std::uint32_t expectedType,
                                  std::optional<std::uint32_t> onlyId = std::nullopt);

} // namespace keltavlo
