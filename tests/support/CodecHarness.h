#pragma once

#include "formats/TextureBytes.h"
#include "image/picture/ColorList.h"
#include "support/CauseOf.h"
#include "support/builders/PackBuilder.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <random>

namespace keltavlo {

// Reads and writes pictures of one format in memory. The default palette has 256 different colors.
class CodecHarness {
public:
    explicit CodecHarness(const Codec& usedCodec) : codec(usedCodec) {}
    explicit CodecHarness(const char* documentClass) : CodecHarness(*FindCodec(documentClass)) {}

    static const ColorList& Palette() {
        static const ColorList palette = [] {
            ColorList colors(256);
            for (std::uint32_t i = 0; i < 256; ++i)
                colors.SetColor(i, Compose(i, i * 37 % 256, (255 - i) * 11 % 256));
            return colors;
        }();
        return palette;
    }

    // Reads the bytes into the texture and returns it.
    Texture Read(Bytes bytes, Texture texture = Texture()) const {
        bytes.shrink_to_fit(); // so that a reader past the end is noticed
        CMemFile file(bytes);
        return DecodeTexture(codec, file, &Palette(), std::move(texture));
    }

    Bytes Write(const Texture& texture) const { return EncodeTexture(codec, texture, &Palette()); }

    // These return the CArchiveException::Cause, -1 for none.
    int ReadFailure(const Bytes& bytes, const Texture& texture = Texture()) const {
        return CauseOf<CArchiveException>([&] { Read(bytes, texture); });
    }
    int WriteFailure(const Texture& texture) const {
        return CauseOf<CArchiveException>([&] { Write(texture); });
    }

    const Codec& codec;
};

// Overwrites the number at the offset, little-endian.
template <class T>
void Put(Bytes& bytes, std::size_t offset, T value) {
    std::memcpy(bytes.data() + offset, &value, sizeof value);
}

// Returns `count` bytes as numbers.
inline std::vector<int> Numbers(const Bytes& bytes, std::size_t first, std::size_t count) {
    std::vector<int> numbers;
    for (std::size_t i = first; i < first + count; ++i) numbers.push_back(std::to_integer<int>(bytes.at(i)));
    return numbers;
}

inline Bytes FromNumbers(std::initializer_list<int> numbers) {
    Bytes bytes;
    for (const int number : numbers) bytes.push_back(static_cast<std::byte>(number));
    return bytes;
}

inline bool SamePixels(const Image& left, const Image& right) {
    return left.GetWidth() == right.GetWidth() && left.GetHeight() == right.GetHeight() &&
           std::ranges::equal(left.Pixels(), right.Pixels());
}

// Returns a picture of random colors of the list.
inline Texture RandomTexture(int width, int height, const ColorList& colors = CodecHarness::Palette()) {
    std::mt19937 random(17);
    Texture texture(width, height);
    for (Color& pixel : texture.Pixels()) pixel = colors[random() % colors.GetCount()];
    return texture;
}

} // namespace keltavlo
