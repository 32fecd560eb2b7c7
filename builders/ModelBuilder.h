#pragma once

#include "builders/PackBuilder.h"

// Makes Quake II models (".md2"): the header, the skins, texture coordinates, triangles and frames in this
// order. Texture coordinate i is (i, -i); frame f scales by (1, 2, 3) and has the name "frame" and f; its
// vertex i is (f, i, i + 1, 0), modulo 256.
struct Md2Builder {
    static constexpr std::size_t headerSize = 68;
    // Offsets of the header's fields.
    static constexpr std::size_t version = 4, frameSize = 16, skinCount = 20, vertexCount = 24,
                                 texCoordCount = 28, triangleCount = 32, frameCount = 40, skinOffset = 44,
                                 texCoordOffset = 48, triangleOffset = 52, frameOffset = 56;

    std::vector<std::string> skins;
    std::uint32_t texCoords = 0;
    std::vector<std::vector<std::uint16_t>> triangles; // six indices each
    std::uint32_t frames = 0;
    std::uint32_t vertices = 0; // of each frame

    Bytes Build() const;
    // As large as the game allows.
    static Bytes Largest();
};

// Makes studio models (".mdl"): a header of zeros, the texture table, then each texture's indices i % 256 and
// its palette, whose colour k is (k, 2k, 3k), modulo 256.
struct MdlBuilder {
    static constexpr std::size_t textureCount = 180, tableOffset = 184, headerSize = 244, recordSize = 80;
    // Offsets of a record's fields.
    static constexpr std::size_t width = 68, height = 72, dataOffset = 76;

    struct Size {
        std::uint32_t width, height;
    };
    std::vector<Size> textures;

    Bytes Build() const;
};
