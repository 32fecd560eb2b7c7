#include "support/builders/ModelBuilder.h"

#include <bit>
#include <cstring>

namespace keltavlo {

namespace {

void PutU16(Bytes& bytes, std::uint32_t value) {
    bytes.push_back(static_cast<std::byte>(value));
    bytes.push_back(static_cast<std::byte>(value >> 8));
}

void PutSection(Bytes& bytes, std::size_t countField, std::size_t count, std::size_t offsetField) {
    PutU32(bytes, countField, static_cast<std::uint32_t>(count));
    PutU32(bytes, offsetField, static_cast<std::uint32_t>(bytes.size()));
}

} // namespace

void Md2Builder::PutFrame(Bytes& bytes, std::uint32_t number) const {
    for (const auto& three : {scale, translate})
        for (const float value : three) PutU32(bytes, bytes.size(), std::bit_cast<std::uint32_t>(value));
    PutField(bytes, "frame" + std::to_string(number), 16);
    for (std::uint32_t i = 0; i < vertices; ++i) {
        for (const int value : vertexAt(static_cast<int>(number), static_cast<int>(i)))
            bytes.push_back(static_cast<std::byte>(value));
        bytes.push_back({}); // the light normal
    }
}

Bytes Md2Builder::Build() const {
    Bytes bytes = ToBytes("IDP2");
    bytes.resize(headerSize);
    PutU32(bytes, version, 8);
    PutU32(bytes, frameSize, 40 + 4 * vertices);
    PutSection(bytes, skinCount, skins.size(), skinOffset);
    for (const std::string& skin : skins) PutField(bytes, skin, 64);
    PutSection(bytes, texCoordCount, texCoords, texCoordOffset);
    for (std::uint32_t i = 0; i < texCoords; ++i)
        for (const int value : texCoordAt(static_cast<int>(i)))
            PutU16(bytes, static_cast<std::uint32_t>(value));
    PutSection(bytes, triangleCount, triangles.size(), triangleOffset);
    for (const auto& triangle : triangles)
        for (const std::uint16_t index : triangle) PutU16(bytes, index);
    PutSection(bytes, frameCount, frames, frameOffset);
    PutU32(bytes, vertexCount, vertices);
    for (std::uint32_t f = 0; f < frames; ++f) PutFrame(bytes, f);
    return bytes;
}

Bytes Md2Builder::Largest() {
    Md2Builder model;
    model.skins.assign(32, "models/monsters/largest/skin.pcx");
    model.texCoords = 4096;
    model.triangles.assign(4096, {0, 1, 2, 0, 1, 2});
    model.frames = 512;
    model.vertices = 2048;
    return model.Build();
}

Bytes MdlBuilder::Build() const {
    Bytes bytes(headerSize);
    PutU32(bytes, textureCount, static_cast<std::uint32_t>(textures.size()));
    PutU32(bytes, tableOffset, static_cast<std::uint32_t>(headerSize));
    bytes.resize(headerSize + textures.size() * recordSize);
    for (std::size_t t = 0; t < textures.size(); ++t) {
        const std::size_t record = headerSize + t * recordSize;
        PutU32(bytes, record + width, textures[t].width);
        PutU32(bytes, record + height, textures[t].height);
        PutU32(bytes, record + dataOffset, static_cast<std::uint32_t>(bytes.size()));
        for (std::uint32_t i = 0; i < textures[t].width * textures[t].height; ++i)
            bytes.push_back(static_cast<std::byte>(i));
        for (std::uint32_t k = 0; k < 256; ++k)
            for (const std::uint32_t factor : {1U, 2U, 3U})
                bytes.push_back(static_cast<std::byte>(k * factor));
    }
    return bytes;
}

} // namespace keltavlo
