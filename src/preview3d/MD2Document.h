#pragma once

#include "preview3d/ModelDocument.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace keltavlo {

// A Quake II model (".md2").
class MD2Document final : public Dynamic<"MD2Document", MD2Document, ModelDocument> {
public:
    // The records of the file, little-endian.
    struct TexCoord {
        std::int16_t s, t; // pixels of the skin
    };
    struct Triangle {
        std::int16_t vertices[3];  // of a frame
        std::int16_t texCoords[3]; // of the model
    };
    struct Vertex {
        std::uint8_t x, y, z; // times the frame's scale, plus its translation
        std::uint8_t lightNormal;
    };
    struct FrameHeader {
        float scale[3];     // x, y, z
        float translate[3]; // x, y, z
        char name[16];      // not always NUL-terminated
    };
    struct Frame : FrameHeader {
        std::span<const Vertex> vertices; // owned by the document
    };

    // Throws badClass without "IDP2", badSchema for a version other than 8, badIndex for counts that are
    // negative or beyond the game's limits, endOfFile for parts outside the file.
    void ReadContents(InputStream& in) override;

    const std::vector<std::string>& GetSkins() const { return skins; }
    const std::vector<TexCoord>& GetTexCoords() const { return texCoords; }
    // Unchecked: some may refer to vertices or coordinates that do not exist.
    const std::vector<Triangle>& GetTriangles() const { return triangles; }
    // All frames have the same number of vertices.
    const std::vector<Frame>& GetFrames() const { return frames; }
    // Whether everything that the triangle refers to exists. Views skip other triangles.
    bool IsDrawable(const Triangle& triangle) const;

protected:
    void DeleteContents() override;
    void TakeContents(CDocument& loaded) override;

private:
    void ReadFrames(InputStream& in, std::size_t count, std::size_t vertexCount);

    std::vector<std::string> skins; // names of picture files
    std::vector<TexCoord> texCoords;
    std::vector<Triangle> triangles;
    // The frames in the layout of the file, so that even the largest model is read at once.
    std::unique_ptr<Vertex[]> frameData;
    std::vector<Frame> frames;
};

} // namespace keltavlo
