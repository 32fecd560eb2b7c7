#include "preview3d/MD2Document.h"

#include "resources/streams/InputStream.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace keltavlo {

namespace {

// The layout in the file, little-endian.
struct Header {
    char identifier[4];
    std::int32_t version;
    std::int32_t skinWidth, skinHeight, frameSize; // not used
    std::int32_t skinCount, vertexCount, texCoordCount, triangleCount, commandCount, frameCount;
    std::int32_t skinOffset, texCoordOffset, triangleOffset, frameOffset; // from the start of the file
    std::int32_t commandOffset, endOffset;                                // not used
};
static_assert(sizeof(Header) == 68);
static_assert(sizeof(MD2Document::TexCoord) == 4 && sizeof(MD2Document::Triangle) == 12 &&
              sizeof(MD2Document::Vertex) == 4 && sizeof(MD2Document::FrameHeader) == 40);

constexpr char identifier[] = {'I', 'D', 'P', '2'};
constexpr std::int32_t version = 8;
constexpr std::int32_t maximumSkins = 32, maximumVertices = 2048, maximumTriangles = 4096,
                       maximumFrames = 512;
constexpr std::size_t skinSize = 64;

void CheckHeader(const InputStream& in, const Header& header) {
    if (std::memcmp(header.identifier, identifier, sizeof identifier) != 0) in.Fail(StreamError::badClass);
    if (header.version != version) in.Fail(StreamError::badSchema);
    if (header.skinCount > maximumSkins || header.vertexCount > maximumVertices ||
        header.triangleCount > maximumTriangles || header.frameCount > maximumFrames)
        in.Fail(StreamError::badIndex);
    if (std::min({header.skinCount, header.vertexCount, header.texCoordCount, header.triangleCount,
                  header.frameCount}) < 0)
        in.Fail(StreamError::badIndex);
}

// A run of equal records.
struct Section {
    std::int32_t offset;
    std::int32_t count;
    std::size_t recordSize; // bytes
};

// Checks that all sections are inside the file, before memory is allocated for them.
void CheckSections(const InputStream& in, std::initializer_list<Section> sections) {
    const std::uint64_t length = in.GetLength();
    for (const Section& section : sections) {
        if (section.count == 0) continue;
        const std::uint64_t size = static_cast<std::uint64_t>(section.count) * section.recordSize;
        // A negative offset becomes a very large one.
        const auto offset = static_cast<std::uint32_t>(section.offset);
        if (offset + size > length) in.Fail(StreamError::endOfFile);
    }
}

template <class Record>
std::vector<Record> ReadRecords(InputStream& in, std::int32_t offset, std::int32_t count) {
    std::vector<Record> records(static_cast<std::size_t>(count));
    if (count == 0) return records;
    in.Seek(static_cast<std::uint32_t>(offset));
    in.Read(records.data(), records.size() * sizeof(Record));
    return records;
}

// The field without its NULs, including what follows the first.
std::string SkinName(const std::array<char, skinSize>& field) {
    std::string name;
    std::ranges::copy_if(field, std::back_inserter(name), [](char c) { return c != '\0'; });
    return name;
}

} // namespace

void MD2Document::ReadContents(InputStream& in) {
    Header header;
    in.Read(&header, sizeof header);
    CheckHeader(in, header);
    const auto vertexCount = static_cast<std::size_t>(header.vertexCount);
    const std::size_t frameSize = sizeof(FrameHeader) + vertexCount * sizeof(Vertex);
    CheckSections(in, {{header.skinOffset, header.skinCount, skinSize},
                       {header.texCoordOffset, header.texCoordCount, sizeof(TexCoord)},
                       {header.triangleOffset, header.triangleCount, sizeof(Triangle)},
                       {header.frameOffset, header.frameCount, frameSize}});
    using SkinField = std::array<char, skinSize>;
    skins.clear();
    for (const SkinField& field : ReadRecords<SkinField>(in, header.skinOffset, header.skinCount))
        skins.push_back(SkinName(field));
    texCoords = ReadRecords<TexCoord>(in, header.texCoordOffset, header.texCoordCount);
    triangles = ReadRecords<Triangle>(in, header.triangleOffset, header.triangleCount);
    if (header.frameCount > 0) in.Seek(static_cast<std::uint32_t>(header.frameOffset));
    ReadFrames(in, static_cast<std::size_t>(header.frameCount), vertexCount);
}

void MD2Document::ReadFrames(InputStream& in, std::size_t count, std::size_t vertexCount) {
    constexpr std::size_t headerLength = sizeof(FrameHeader) / sizeof(Vertex);
    const std::size_t frameLength = headerLength + vertexCount;
    frameData = std::make_unique_for_overwrite<Vertex[]>(count * frameLength);
    in.Read(frameData.get(), count * frameLength * sizeof(Vertex));
    frames.assign(count, {});
    const Vertex* data = frameData.get();
    for (Frame& frame : frames) {
        std::memcpy(static_cast<FrameHeader*>(&frame), data, sizeof(FrameHeader));
        frame.vertices = {data + headerLength, vertexCount};
        data += frameLength;
    }
}

bool MD2Document::IsDrawable(const Triangle& triangle) const {
    const auto allBelow = [](const std::int16_t(&indices)[3], std::size_t count) {
        return std::ranges::all_of(
            indices, [&](std::int16_t i) { return i >= 0 && static_cast<std::size_t>(i) < count; });
    };
    const std::size_t vertexCount = frames.empty() ? 0 : frames.front().vertices.size();
    return allBelow(triangle.vertices, vertexCount) && allBelow(triangle.texCoords, texCoords.size());
}

void MD2Document::TakeContents(CDocument& loaded) {
    auto& model = dynamic_cast<MD2Document&>(loaded);
    skins.swap(model.skins);
    texCoords.swap(model.texCoords);
    triangles.swap(model.triangles);
    frameData.swap(model.frameData);
    frames.swap(model.frames);
}

void MD2Document::DeleteContents() {
    frames.clear();
    frameData.reset();
    triangles.clear();
    texCoords.clear();
    skins.clear();
    ModelDocument::DeleteContents();
}

} // namespace keltavlo
