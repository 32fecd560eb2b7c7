#pragma once

#include "support/builders/PackBuilder.h"

namespace keltavlo {

// Builds WAD files (".wad"): the header, the lumps' bytes, the directory.
class WadBuilder {
public:
    static constexpr std::uint8_t paletteType = 64, wad3TextureType = 67, wad2TextureType = 68;
    static constexpr std::size_t headerSize = 12;
    static constexpr std::size_t recordSize = 32;

    explicit WadBuilder(std::string_view fourCharacters = "WAD3") : identification(fourCharacters) {}

    // `garbage` follows the name's NUL.
    void Add(std::string_view name, std::uint8_t type, const Bytes& bytes, std::string_view garbage = {});
    enum class Directory { first, last };
    Bytes Build(Directory place = Directory::last) const;

private:
    struct Lump {
        std::string name;
        std::uint8_t type;
        Bytes bytes;
    };
    std::string identification;
    std::vector<Lump> lumps;
};

} // namespace keltavlo
