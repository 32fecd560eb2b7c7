#pragma once

#include "support/builders/PackBuilder.h"

#include <array>
#include <functional>

namespace keltavlo {

// Builds Quake II models (".md2"): the header, the skins, texture coordinates, triangles and frames in this
// order. Frame 5 is called "frame5". By default, texture coordinate i is (i, -i) and vertex i of frame f is
// (f, i, i + 1), modulo 256.
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
    std::array<float, 3> scale{1, 2, 3};
    std::array<float, 3> translate{10, 20, 30};

    using TexCoord = std::array<int, 2>; // s and t in pixels of the skin
    std::function<TexCoord(int i)> texCoordAt = [](int i) { return TexCoord{i, -i}; };
    using Vertex = std::array<int, 3>; // bytes, before scaling
    std::function<Vertex(int f, int i)> vertexAt = [](int f, int i) { return Vertex{f, i, i + 1}; };

    Bytes Build() const;
    // The largest model that the game allows.
    static Bytes Largest();

private:
    void PutFrame(Bytes& bytes, std::uint32_t number) const;
};

// Builds studio models (".mdl"): a header of zeros, the texture table, then each texture's palette indices
// i % 256 and its palette, whose color k is (k, 2k, 3k), modulo 256.
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

} // namespace keltavlo
