#pragma once

#include "image/picture/ColorList.h"
#include "image/picture/Texture.h"
#include "resources/streams/ArchiveTransfer.h"
#include "resources/streams/FileStream.h"
#include "support/readers/Readers.h"

namespace keltavlo {

struct Codec;

using Outcome = std::optional<std::size_t>;
using ByteSpan = std::span<const std::byte>;

// A hash of everything that was read.
class Digest {
public:
    void Add(std::size_t value) { state = (state ^ value) * 0x100000001B3 + 0x9E3779B9; }
    void Add(const std::string& text) { Add(std::hash<std::string>()(text)); }
    void Add(const Image& picture) {
        Add(static_cast<std::size_t>(picture.GetWidth()));
        Add(static_cast<std::size_t>(picture.GetHeight()));
        const std::span<const Color> pixels = picture.Pixels();
        Add(std::hash<std::string_view>()({reinterpret_cast<const char*>(pixels.data()),
                                           pixels.size_bytes()})); // fast, because there may be millions
    }
    void Add(const Texture& texture) {
        Add(static_cast<const Image&>(texture));
        Add(texture.quakeName);
        Add(texture.quake2.name + "\n" + texture.quake2.nextFrameName);
        for (const std::size_t value :
             {texture.quake2.surfaceFlags, texture.quake2.contents, texture.quake2.value})
            Add(value);
        if (texture.palette)
            for (const Color color : std::as_const(*texture.palette).Colors()) Add(color);
    }
    std::size_t Get() const { return state; }

private:
    std::size_t state = 0xCBF29CE484222325;
};

// Creates the application, whose documents provide the built-in palettes.
void NeedApplication();

// Encodes the picture in the format of a document class.
Bytes EncodePicture(std::string_view documentClass, const Texture& texture);

// A small picture of many colors.
Texture MakePicture();

// Writes a small picture that the format has read, reads it again and compares the two. Throws
// std::logic_error if they differ.
void CheckRecoding(const Codec& codec, const Texture& texture);

// Copies the bytes into a buffer of exactly their size and runs the action on a stream of it.
template <class Action>
Outcome WithStream(ByteSpan bytes, Buffering buffering, Action action) {
    NeedApplication();
    Bytes copy(bytes.begin(), bytes.end());
    copy.shrink_to_fit();
    CMemFile file{std::span<std::byte>(copy)};
    Digest digest;
    try {
        if (buffering == Buffering::whole) {
            ReadThroughArchive(file, [&](InputStream& in) { action(in, digest); });
        } else {
            FileStream stream(file);
            action(stream, digest);
        }
    } catch (const CException&) {
        return std::nullopt;
    }
    return digest.Get();
}

} // namespace keltavlo
