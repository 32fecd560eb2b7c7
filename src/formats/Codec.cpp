#include "formats/Codec.h"

#include "formats/BMP.h"
#include "formats/MIP.h"
#include "formats/PCX.h"
#include "formats/TGA.h"
#include "formats/WAL.h"

#include <algorithm>
#include <array>

namespace keltavlo {

namespace {

constexpr std::array codecs{
    Codec{"WALDocument", "wal", ReadWAL, WriteWAL, true, DefaultPalette::quake2},
    Codec{"MIPDocument", "mip", ReadMIP, WriteMIP, true, DefaultPalette::quake},
    Codec{"PCXDocument", "pcx", ReadPCX, WritePCX, false, DefaultPalette::quake2},
    Codec{"TGADocument", "tga", ReadTGA, WriteTGA, false, DefaultPalette::none},
    Codec{"BMPDocument", "bmp", ReadBMP, WriteBMP, false, DefaultPalette::none},
};

} // namespace

std::span<const Codec> Codecs() {
    return codecs;
}

std::string ListFormats(std::string_view before) {
    std::string list;
    for (const Codec& codec : codecs) {
        if (!list.empty()) list += &codec == &codecs.back() ? " or " : ", ";
        list.append(before).append(codec.name);
    }
    return list;
}

const Codec* FindCodec(std::string_view documentClass) {
    const auto* place = std::find_if(codecs.begin(), codecs.end(), [&](const Codec& codec) {
        return codec.documentClass == documentClass;
    });
    return place == codecs.end() ? nullptr : place;
}

} // namespace keltavlo
