#include "tool/pictures/PictureFormat.h"

#include "framework/core/Path.h"
#include "framework/core/Text.h"
#include "tool/pictures/JPEG.h"
#include "tool/pictures/PNG.h"

#include <algorithm>
#include <array>

namespace keltavlo {

std::span<const PictureFormat> PictureFormats() {
    static const std::array formats{
        PictureFormat{*FindCodec("WALDocument"), PaletteUse::game},
        PictureFormat{*FindCodec("MIPDocument"), PaletteUse::gameOrOwn},
        PictureFormat{*FindCodec("PCXDocument"), PaletteUse::own},
        PictureFormat{*FindCodec("TGADocument"), PaletteUse::none},
        PictureFormat{*FindCodec("BMPDocument"), PaletteUse::none},
        PictureFormat{Codec{{}, "png", ReadPNG, WritePNG, false, DefaultPalette::none}, PaletteUse::optional},
        PictureFormat{Codec{{}, "jpg", ReadJPEG, nullptr, false, DefaultPalette::none}, PaletteUse::none},
        PictureFormat{Codec{{}, "jpeg", ReadJPEG, nullptr, false, DefaultPalette::none}, PaletteUse::none},
    };
    return formats;
}

const PictureFormat* FindPictureFormat(std::string_view fileName) {
    const std::string_view extension = ExtensionOf(fileName);
    if (extension.empty()) return nullptr;
    const std::span<const PictureFormat> formats = PictureFormats();
    const auto place = std::ranges::find_if(formats, [&](const PictureFormat& format) {
        return EqualNoCase(extension.substr(1), format.codec.name);
    });
    return place == formats.end() ? nullptr : &*place;
}

std::string ListWritableFormats(std::string_view before) {
    std::vector<std::string_view> names;
    for (const PictureFormat& format : PictureFormats())
        if (format.codec.write) names.push_back(format.codec.name);
    std::string list;
    for (const std::string_view& name : names) {
        if (!list.empty()) list += &name == &names.back() ? " or " : ", ";
        list.append(before).append(name);
    }
    return list;
}

} // namespace keltavlo
