#pragma once

#include "formats/Codec.h"
#include "image/picture/Texture.h"
#include "resources/streams/ArchiveTransfer.h"

namespace keltavlo {

// These convert pictures to and from the bytes of their files. They throw what the codec throws; `palette` is
// its default palette.

inline std::vector<std::byte> EncodeTexture(const Codec& codec, const Texture& texture,
                                            const ColorList* palette) {
    return WriteThroughArchive([&](OutputStream& out) { codec.write(out, texture, palette); });
}

// Reads the file into the texture, which keeps what the format does not store.
inline Texture DecodeTexture(const Codec& codec, CFile& file, const ColorList* palette,
                             Texture texture = Texture()) {
    ReadThroughArchive(file, [&](InputStream& in) { codec.read(in, texture, palette); });
    return texture;
}

} // namespace keltavlo
