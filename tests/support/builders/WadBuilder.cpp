#include "support/builders/WadBuilder.h"

#include <cstring>

namespace keltavlo {

constexpr std::size_t nameSize = 16;

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
        PutField(directory, lump.name, nameSize);
        data.insert(data.end(), lump.bytes.begin(), lump.bytes.end());
    }
    Bytes wad = ToBytes(identification);
    PutU32(wad, 4, static_cast<std::uint32_t>(lumps.size()));
    PutU32(wad, 8,
           static_cast<std::uint32_t>(place == Directory::first ? headerSize : headerSize + data.size()));
    return place == Directory::first ? Join({wad, directory, data}) : Join({wad, data, directory});
}

} // namespace keltavlo
