#include "support/builders/TextureBuilder.h"

namespace keltavlo {

namespace {

// The name field, then the sides.
Bytes BeginHeader(std::string_view name, std::size_t nameSize, std::uint32_t width, std::uint32_t height) {
    Bytes header;
    PutField(header, name, nameSize);
    PutU32(header, nameSize, width);
    PutU32(header, nameSize + 4, height);
    return header;
}

void PutLevels(Bytes& bytes, std::uint32_t width, std::uint32_t height) {
    const std::size_t end = bytes.size() + std::size_t{width} * height * 85 / 64;
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 0; x < width; ++x) bytes.push_back(static_cast<std::byte>(x + y));
    bytes.resize(end);
}

} // namespace

Bytes MakeWal(std::uint32_t width, std::uint32_t height, std::string_view name) {
    constexpr std::uint32_t headerSize = 100;
    Bytes wal = BeginHeader(name, 32, width, height);
    PutU32(wal, 40, headerSize);
    wal.resize(headerSize);
    PutLevels(wal, width, height);
    return wal;
}

Bytes MakeMip(std::string_view name, std::uint32_t width, std::uint32_t height, bool withPalette) {
    constexpr unsigned colors = 256;
    Bytes mip = BeginHeader(name, 16, width, height);
    std::uint32_t offset = 40;
    for (std::uint32_t level = 0; level < 4; ++level) {
        PutU32(mip, mip.size(), offset);
        offset += (width >> level) * (height >> level);
    }
    PutLevels(mip, width, height);
    if (!withPalette) return mip;
    mip.insert(mip.end(), {std::byte{colors & 0xFF}, std::byte{colors >> 8}});
    for (unsigned i = 0; i < colors; ++i) mip.insert(mip.end(), 3, static_cast<std::byte>(i));
    mip.resize(mip.size() + 2);
    return mip;
}

} // namespace keltavlo
