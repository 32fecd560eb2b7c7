#include "support/readers/Readers.h"

#include "archives/PAKDocument.h"
#include "archives/WADDocument.h"
#include "formats/Codec.h"
#include "image/ImageDocuments.h"
#include "preview3d/MD2Document.h"
#include "preview3d/MDLDocument.h"
#include "resources/Brush.h"
#include "resources/BuiltInFiles.h"
#include "resources/DocTemplateRegistry.h"
#include "resources/PaletteDocument.h"
#include "resources/streams/ArchiveStream.h"
#include "support/builders/CompressedPictures.h"
#include "support/builders/ModelBuilder.h"
#include "support/builders/TextureBuilder.h"
#include "support/builders/WadBuilder.h"
#include "support/readers/ArchiveSeeds.h"
#include "support/readers/ReadingStream.h"
#include "tool/archives/BSPDocument.h"
#include "tool/archives/IDPOSkins.h"
#include "tool/archives/ZIPDocument.h"
#include "tool/pictures/JPEG.h"
#include "tool/pictures/PNG.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace keltavlo {

namespace {

void Add(Digest& digest, const TavloDocument& document) {
    digest.Add(document.GetTexture());
}

void Add(Digest& digest, const PaletteDocument& document) {
    for (std::size_t i = 0; i < document.GetColorCount(); ++i) digest.Add(document.GetColor(i));
}

void Add(Digest& digest, const BrushDocument& document) {
    digest.Add(document.GetCursor());
}

void Add(Digest& digest, const MD2Document& model) {
    for (const std::string& skin : model.GetSkins()) digest.Add(skin);
    for (const MD2Document::TexCoord& place : model.GetTexCoords()) {
        digest.Add(static_cast<std::size_t>(place.s));
        digest.Add(static_cast<std::size_t>(place.t));
    }
    for (const MD2Document::Triangle& triangle : model.GetTriangles()) digest.Add(model.IsDrawable(triangle));
    for (const MD2Document::Frame& frame : model.GetFrames()) {
        digest.Add(std::string(frame.name, sizeof frame.name));
        for (const MD2Document::Vertex& vertex : frame.vertices) digest.Add(vertex.x + vertex.lightNormal);
    }
}

void Add(Digest& digest, const MDLDocument& model) {
    for (const Image& texture : model.GetTextures()) digest.Add(texture);
}

// Also opens every entry by its path.
void Add(Digest& digest, FolderDocument& document, const std::string& folder) {
    FolderListing listing;
    document.ListFolder(folder, listing);
    std::size_t left = 64; // overlapping entries may each be as large as the file
    for (const std::string& name : listing.names) {
        digest.Add(name);
        const std::string path = JoinPath(folder, name);
        if (left == 0 || path.size() > 4096 || name.empty()) continue; // no name: the folder itself
        --left;
        if (const auto file = document.OpenEntry(path, CFile::modeRead, nullptr))
            digest.Add(file->GetLength());
        else if (document.FindEntry(path))
            Add(digest, document, path);
    }
}

void Add(Digest& digest, FolderDocument& document) {
    Add(digest, document, document.GetRootName());
}

template <class Document>
Outcome ReadDocument(ByteSpan bytes, Buffering buffering) {
    return WithStream(bytes, buffering, [](InputStream& in, Digest& digest) {
        Document document;
        document.ReadContents(in);
        Add(digest, document);
    });
}

Outcome ReadSkins(ByteSpan bytes, Buffering buffering) {
    return WithStream(bytes, buffering, [](InputStream& in, Digest& digest) {
        for (const ModelSkin& skin : ReadIDPOSkins(in, GetQuakePalette())) {
            digest.Add(skin.number);
            digest.Add(skin.picture);
        }
    });
}

Outcome ReadClipboardBitmap(ByteSpan bytes, Buffering buffering) {
    return WithStream(bytes, buffering, [](InputStream& in, Digest& digest) {
        Image picture;
        picture.FromStoredBitmap(in, false);
        digest.Add(picture);
    });
}

// Input: a path, a NUL and a pack. Opens the path in the pack.
Outcome ResolvePath(ByteSpan bytes, Buffering buffering) {
    const auto end = std::find(bytes.begin(), bytes.end(), std::byte{0});
    const auto length = static_cast<std::size_t>(end - bytes.begin());
    const std::string path =
        "/games/pak0.pak" + std::string(reinterpret_cast<const char*>(bytes.data()), length);
    const ByteSpan pack = bytes.subspan(std::min(length + 1, bytes.size()));
    return WithStream(pack, buffering, [&](InputStream& in, Digest& digest) {
        PAKDocument document;
        document.ReadContents(in);
        document.SetRootName("/games/pak0.pak");
        EntryStatus status;
        document.GetEntryStatus(path, status);
        digest.Add(status.exists);
        digest.Add(document.FindOnTheWay(path, [](const std::string& way) { return way.size() % 2 == 0; }));
        FolderListing listing;
        document.ListFolder(path, listing);
        digest.Add(listing.names.size());
    });
}

Bytes MakeTagged(std::string_view type, std::string_view id) {
    std::string text =
        "KEL\xE5\xD0TAV" + std::string(type) + std::string("\3\0\0\0id\0\0", 8) + std::string(id);
    text += std::string("UITA\4\0\0\0abc\0", 12) + std::string("UITU\2\0\0\0a\0b\0", 12);
    return ToBytes(text);
}

Bytes MakeBitmapWithoutFileHeader() {
    const Bytes bitmap = EncodePicture(BMPDocument::runtimeClass.name, MakePicture());
    return {bitmap.begin() + 14, bitmap.end()};
}

Bytes MakePack() {
    return PackBuilder{{"a/b.txt", ToBytes("text")}, {"c", ToBytes("more")}}.Build();
}

Bytes MakePathAndPack() {
    return Join({ToBytes(std::string_view("/A\\b.txt\0", 9)), MakePack()});
}

Bytes MakeWad() {
    WadBuilder wad("WAD3");
    wad.Add("wall", WadBuilder::wad3TextureType, MakeMip("wall", 16, 16, true));
    wad.Add("palette", WadBuilder::paletteType, Bytes(768));
    return wad.Build();
}

Bytes MakeModel() {
    Md2Builder model{.skins = {"models/a.pcx"}, .texCoords = 3, .triangles = {}, .frames = 2, .vertices = 3};
    model.triangles = {{0, 1, 2, 0, 1, 2}, {2, 1, 0, 2, 1, 0}};
    return model.Build();
}

std::vector<HeaderField> Fields(std::size_t width, std::initializer_list<std::size_t> offsets) {
    std::vector<HeaderField> fields;
    for (const std::size_t offset : offsets) fields.push_back({offset, width});
    return fields;
}

// Returns the fields of a picture format; none for a format that is not listed.
std::vector<HeaderField> PictureFields(std::string_view format) {
    if (format == "wal") return Fields(4, {32, 36, 40, 44, 48, 52, 88, 92, 96});
    if (format == "mip") return Fields(4, {16, 20, 24, 28, 32, 36});
    if (format == "pcx") return Fields(2, {0, 2, 4, 6, 8, 10, 64, 66, 68});
    if (format == "tga") return Fields(2, {0, 2, 3, 5, 7, 12, 14, 16});
    if (format == "bmp") return Fields(4, {2, 10, 14, 18, 22, 26, 28, 30, 34, 46});
    return {};
}

// Reads into a document of the format, as opening a file does, and writes what it read.
Reader PictureReader(const Codec& codec) {
    const std::string name(codec.name);
    return {name,
            [&codec, name](ByteSpan bytes, Buffering buffering) {
                return WithStream(bytes, buffering, [&](InputStream& in, Digest& digest) {
                    const auto object =
                        DocTemplateRegistry::Get().GetDocumentClassOfName("x." + name)->create();
                    auto& document = dynamic_cast<TavloDocument&>(*object);
                    document.ReadContents(in);
                    Add(digest, document);
                    CheckRecoding(codec, document.GetTexture());
                });
            },
            [&codec] { return EncodePicture(codec.documentClass, MakePicture()); }, PictureFields(name)};
}

Outcome ReadCompressed(decltype(Codec::read) read, ByteSpan bytes, Buffering buffering) {
    return WithStream(bytes, buffering, [&](InputStream& in, Digest& digest) {
        Texture texture;
        texture.indices.emplace();
        read(in, texture, nullptr);
        digest.Add(texture);
        for (const std::uint8_t index : texture.IndicesOfLevel(0)) digest.Add(index);
    });
}

// Repairs the checksums first, because hardly any mutation gets past them.
Outcome ReadRepairedPng(ByteSpan bytes, Buffering buffering) {
    return ReadCompressed(ReadPNG, RepairChecksums({bytes.begin(), bytes.end()}), buffering);
}

std::vector<Bytes> MakePngs() {
    constexpr int kinds[][2] = {{1, 0}, {2, 0}, {4, 0}, {16, 0}, {16, 2}, {1, 3},
                                {2, 3}, {4, 3}, {8, 3}, {8, 4},  {16, 4}, {8, 6}};
    std::vector<Bytes> pictures;
    for (const auto& [depth, type] : kinds)
        pictures.push_back(MakePng(depth, type, pictures.size() % 2 == 1));
    return pictures;
}

// The readers of other documents, of paths and of pictures that only the tool reads.
std::vector<Reader> OtherReaders() {
    const std::vector<HeaderField> taggedFields = Fields(4, {8, 12, 16, 20, 24, 28});
    return {
        {"dib", ReadClipboardBitmap, MakeBitmapWithoutFileHeader, Fields(4, {0, 4, 8, 12, 14, 16, 20, 32})},
        {"lmp", ReadDocument<LMPDocument>, [] { return Bytes(768); }, {}},
        {"kelcolors", ReadDocument<ColorTableDocument>, [] { return Bytes(16); }, {}},
        {"kelbrush", ReadDocument<BrushDocument>,
         [] { return MakeTagged("Brsh", std::string_view("\1\0\0\0", 4)); }, taggedFields},
        {"kelcolorspace", ReadDocument<ColorSpaceDocument>, [] { return MakeTagged("ClSp", "RGBA"); },
         taggedFields},
        {"pak", ReadDocument<PAKDocument>, MakePack, Fields(4, {4, 8, 76, 80, 140, 144})},
        {"wad", ReadDocument<WADDocument>, MakeWad, Fields(4, {4, 8})},
        {"path", ResolvePath, MakePathAndPack, Fields(4, {13, 17, 85, 89})},
        {"md2", ReadDocument<MD2Document>, MakeModel, Fields(4, {4, 16, 20, 24, 28, 32, 40, 44, 48, 52, 56})},
        {"mdl", ReadDocument<MDLDocument>,
         [] {
             return MdlBuilder{{{4, 2}, {1, 1}}}.Build();
         },
         Fields(4, {180, 184, 312, 316, 320, 392, 396, 400})},
        {"zip", ReadDocument<ZIPDocument>, MakeZip,
         Fields(4, {87, 91, 97, 101, 105, 109, 123, 140, 144, 150, 154, 158, 162, 176, 187, 189, 193, 197})},
        {"bsp", ReadDocument<BSPDocument>, MakeMap,
         Fields(4, {0, 20, 24, 124, 128, 132, 156, 160, 164, 176})},
        {"idpo", ReadSkins, MakeSkinnedModel, Fields(4, {4, 48, 52, 56, 84, 94, 98})},
        {"png", ReadRepairedPng, [] { return MakePng(8, 2, false); },
         Fields(1, {18, 19, 22, 23, 24, 25, 26, 27, 28}), MakePngs},
        {"jpg",
         [](ByteSpan bytes, Buffering buffering) { return ReadCompressed(ReadJPEG, bytes, buffering); },
         [] { return MakeJpeg(3, false); }, Fields(2, {160, 163, 165, 167, 169, 611}),
         [] {
             return std::vector{MakeJpeg(1, false), MakeJpeg(3, true)};
         }},
    };
}

} // namespace

std::vector<Bytes> Reader::MakeSeeds() const {
    std::vector<Bytes> seeds = makeMoreSeeds ? makeMoreSeeds() : std::vector<Bytes>();
    seeds.insert(seeds.begin(), makeSeed());
    return seeds;
}

std::span<const Reader> Readers() {
    static const std::vector<Reader> readers = [] {
        std::vector<Reader> all = OtherReaders();
        std::ranges::transform(Codecs(), std::inserter(all, all.begin()), PictureReader);
        return all;
    }();
    return readers;
}

const Reader& FindReader(std::string_view name) {
    const auto place = std::ranges::find(Readers(), name, &Reader::name);
    if (place == Readers().end()) throw std::invalid_argument("no reader " + std::string(name));
    return *place;
}

} // namespace keltavlo
