#include "tool/pictures/PaletteFile.h"

#include "framework/core/CFile.h"
#include "tool/pictures/PictureFormat.h"
#include "tool/pictures/SourcePicture.h"

#include <cstring>
#include <sstream>

namespace keltavlo {

namespace {

constexpr std::size_t maximumCount = 256;
constexpr std::size_t lumpSize = maximumCount * rgbTripleSize;
constexpr std::size_t maximumTrailer = 4; // bytes that some programs add to a lump
constexpr std::size_t maximumTextSize = 16384;
constexpr std::string_view textMark = "JASC-PAL";

[[noreturn]] void Refuse(CFile& file, const char* sentence) {
    throw CException(sentence, file.GetFilePath());
}

ColorList PaletteOfPicture(CFile& file, const PictureFormat& format, std::string_view name) {
    // Replaces the palette of a file that has none.
    static const ColorList noPalette(maximumCount);
    const SourcePicture picture = ReadSource(file, format, name, &noPalette);
    if (!picture.carriesPalette || *picture.texture.palette == noPalette)
        Refuse(file, "The picture contains no palette.");
    ColorList palette;
    for (const Color color : picture.texture.palette->Colors()) palette.Append(color | alphaMask);
    return palette;
}

// The text has a mark, a version, the number of colors, and a line with red, green and blue for each.
ColorList PaletteOfText(CFile& file, const std::string& text) {
    std::istringstream in(text.substr(textMark.size()));
    std::string version;
    std::size_t count = 0;
    in >> version >> count;
    if (!in || count == 0 || count > maximumCount) Refuse(file, "The palette does not have 1 to 256 colors.");
    ColorList palette;
    for (std::size_t i = 0; i < count; ++i) {
        std::uint32_t red = 0, green = 0, blue = 0;
        in >> red >> green >> blue;
        if (!in || (red | green | blue) > 255) Refuse(file, "The palette has a line that is not a color.");
        palette.Append(Compose(red, green, blue));
    }
    return palette;
}

} // namespace

ColorList ReadPaletteFile(CFile& file, std::string_view name) {
    if (const PictureFormat* format = FindPictureFormat(name)) return PaletteOfPicture(file, *format, name);
    if (file.GetLength() > maximumTextSize) Refuse(file, "The file is not a palette.");
    const std::vector<std::byte> bytes = ReadAll(file);
    const std::string text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.starts_with(textMark)) return PaletteOfText(file, text);
    if (bytes.size() < lumpSize || bytes.size() > lumpSize + maximumTrailer)
        Refuse(file, "The file is not a palette: it is neither 768 bytes long nor of a known format.");
    return ColorsFromTriples({reinterpret_cast<const std::uint8_t*>(bytes.data()), lumpSize});
}

} // namespace keltavlo
