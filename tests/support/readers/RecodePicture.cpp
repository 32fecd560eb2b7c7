#include "formats/TextureBytes.h"
#include "resources/BuiltInFiles.h"
#include "support/readers/ReadingStream.h"
#include "support/readers/Scripts.h"

#include <algorithm>
#include <stdexcept>

namespace keltavlo {

namespace {

constexpr std::size_t largestPicture = 65536; // pixels; larger ones take too long
constexpr std::size_t fullPalette = 256;

Texture DecodeOwn(const Codec& codec, Bytes bytes) {
    CMemFile file{std::span<std::byte>(bytes)};
    try {
        return DecodeTexture(codec, file, &GetQuakeIIPalette());
    } catch (const CException&) {
        throw std::logic_error("what was written is not read");
    }
}

// Returns nothing if the format cannot write what it read.
Bytes EncodeAgain(const Codec& codec, const Texture& texture) {
    try {
        return EncodePicture(codec.documentClass, texture);
    } catch (const CException&) {
        return {};
    }
}

void CheckOnceMore(const Codec& codec, const Texture& texture) {
    const Bytes once = EncodeAgain(codec, texture);
    if (once.empty()) return;
    const Texture back = DecodeOwn(codec, once);
    if (back.GetWidth() != texture.GetWidth() || !std::ranges::equal(back.Pixels(), texture.Pixels()))
        throw std::logic_error("the picture changed");
    if (EncodeAgain(codec, back) != once) throw std::logic_error("the second file differs");
}

Bytes PictureOf(std::size_t format) {
    Bytes bytes{static_cast<std::byte>(format)};
    const Bytes file = EncodePicture(Codecs()[format].documentClass, MakePicture());
    bytes.insert(bytes.end(), file.begin(), file.end());
    return bytes;
}

} // namespace

std::optional<std::size_t> RecodePicture(std::span<const std::byte> bytes, Buffering buffering) {
    if (bytes.empty()) return std::nullopt;
    const Codec& codec = Codecs()[std::to_integer<std::size_t>(bytes[0]) % Codecs().size()];
    return WithStream(bytes.subspan(1), buffering, [&](InputStream& in, Digest& digest) {
        Texture texture;
        codec.read(in, texture, &GetQuakeIIPalette());
        digest.Add(texture);
        // A shorter palette is written unchanged, and readers cannot recognize it at the end of a file.
        const bool shortPalette = texture.palette && texture.palette->GetCount() < fullPalette;
        if (!shortPalette && texture.Pixels().size() <= largestPicture) CheckOnceMore(codec, texture);
    });
}

Bytes MakePictureToRecode() {
    return PictureOf(0);
}

std::vector<Bytes> MakeMorePicturesToRecode() {
    std::vector<Bytes> more;
    for (std::size_t format = 1; format < Codecs().size(); ++format) more.push_back(PictureOf(format));
    return more;
}

} // namespace keltavlo
