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
    Codec{"BMPDocument", ReadBMP, WriteBMP, false, DefaultPalette::none},
    Codec{"MIPDocument", ReadMIP, WriteMIP, true, DefaultPalette::quake},
    Codec{"PCXDocument", ReadPCX, WritePCX, false, DefaultPalette::quake2},
    Codec{"TGADocument", ReadTGA, WriteTGA, false, DefaultPalette::none},
    Codec{"WALDocument", ReadWAL, WriteWAL, true, DefaultPalette::quake2},
};

} // namespace

const Codec* FindCodec(std::string_view documentClass) {
    const auto* place = std::find_if(codecs.begin(), codecs.end(), [&](const Codec& codec) {
        return codec.documentClass == documentClass;
    });
    return place == codecs.end() ? nullptr : place;
}

} // namespace keltavlo
