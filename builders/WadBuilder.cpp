#include "builders/WadBuilder.h"

#include <cstring>

namespace {

constexpr std::size_t nameSize = 16;

Bytes FixedName(std::string_view name) {
    Bytes field = ToBytes(name);
    field.resize(nameSize);
    return field;
}

void Append(Bytes& bytes, const Bytes& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
}

} // namespace

void WadBuilder::Add(std::string_view name, std::uint8_t type, const Bytes& bytes, std::string_view garbage) {
    std::string field(name);
    if (!garbage.empty()) field.append(1, '\0').append(garbage);
    lumps.push_back({field, type, bytes});
}

Bytes WadBuilder::Build(Directory place) const {
    const std::size_t directorySize = lumps.size() * recordSize;
    const std::size_t dataOffset = headerSize + (place == Directory::first ? directorySize : 0);
    Bytes data, directory;
    for (const Lump& lump : lumps) {
        const auto size = static_cast<std::uint32_t>(lump.bytes.size());
        PutU32(directory, directory.size(), static_cast<std::uint32_t>(dataOffset + data.size()));
        PutU32(directory, directory.size(), size);
        PutU32(directory, directory.size(), size);
        PutU32(directory, directory.size(), lump.type);
        Append(directory, FixedName(lump.name));
        Append(data, lump.bytes);
    }
    Bytes wad = ToBytes(identification);
    PutU32(wad, 4, static_cast<std::uint32_t>(lumps.size()));
    PutU32(wad, 8,
           static_cast<std::uint32_t>(place == Directory::first ? headerSize : headerSize + data.size()));
    Append(wad, place == Directory::first ? directory : data);
    Append(wad, place == Directory::first ? data : directory);
    return wad;
}

Bytes MakeMip(std::string_view name, std::uint32_t width, std::uint32_t height, bool withPalette) {
    constexpr unsigned colors = 256;
    Bytes mip = FixedName(name);
    PutU32(mip, 16, width);
    PutU32(mip, 20, height);
    std::uint32_t offset = 40;
    for (std::uint32_t level = 0; level < 4; ++level) {
        PutU32(mip, 24 + 4 * level, offset);
        offset += (width >> level) * (height >> level);
    }
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 0; x < width; ++x) mip.push_back(static_cast<std::byte>(x + y));
    mip.resize(offset);
    if (!withPalette) return mip;
    Append(mip, {std::byte{0}, std::byte{1}}); // the count, 256
    for (unsigned i = 0; i < colors; ++i) mip.insert(mip.end(), 3, static_cast<std::byte>(i));
    mip.resize(mip.size() + 2);
    return mip;
}
