#include "formats/TextureBytes.h"
#include "resources/BuiltInFiles.h"
#include "support/readers/ReadingStream.h"

#include <algorithm>
#include <stdexcept>

namespace keltavlo {

void CheckRecoding(const Codec& codec, const Texture& texture) {
    constexpr std::size_t largestPicture = 65536; // pixels; larger ones take too long
    constexpr std::size_t fullPalette = 256;      // a shorter one cannot be recognized at the end of a file
    if (texture.Pixels().size() > largestPicture) return;
    if (texture.palette && texture.palette->GetCount() < fullPalette) return;
    const ColorList& palette =
        codec.defaultPalette == DefaultPalette::quake ? GetQuakePalette() : GetQuakeIIPalette();
    Bytes file;
    try {
        file = EncodeTexture(codec, texture, &palette);
    } catch (const CException&) {
        return; // some formats cannot write everything that they can read
    }
    try {
        Bytes copy = file;
        CMemFile again{std::span<std::byte>(copy)};
        const Texture back = DecodeTexture(codec, again, &palette);
        if (back.GetWidth() != texture.GetWidth() || !std::ranges::equal(back.Pixels(), texture.Pixels()))
            throw std::logic_error("the picture changed");
        if (EncodeTexture(codec, back, &palette) != file) throw std::logic_error("the second file differs");
    } catch (const CException&) {
        throw std::logic_error("what was written cannot be read or written again");
    }
}

} // namespace keltavlo
