#include "tool/pictures/PictureConversion.h"

#include "support/CodecHarness.h"
#include "support/builders/CompressedPictures.h"
#include "support/builders/TextureBuilder.h"
#include "tool/pictures/PaletteFile.h"
#include "tool/pictures/PaletteSet.h"
#include "tool/pictures/PictureFormat.h"

#include <cstring>

namespace keltavlo {

namespace {

// Quake's palette is that of the tests; the others have its colors in another order.
const PaletteSet& Palettes() {
    static const PaletteSet palettes = [] {
        const std::span<const Color> colors = CodecHarness::Palette().Colors();
        ColorList turned(std::vector<Color>(colors.rbegin(), colors.rend()));
        return PaletteSet{CodecHarness::Palette(), turned, turned, {}};
    }();
    return palettes;
}

ConvertedFile Convert(Bytes bytes, const std::string& from, const std::string& to,
                      const ConversionOptions& options = {}) {
    CMemFile file{std::span<std::byte>(bytes)};
    return ConvertPicture(file, from, to, Palettes(), options);
}

Bytes BytesOf(const Texture& texture, const std::string& name) {
    return EncodeTexture(FindPictureFormat(name)->codec, texture, &Palettes().quake);
}

Texture Read(Bytes bytes, const std::string& name) {
    CMemFile file{std::span<std::byte>(bytes)};
    return ReadPicture(file, name, Palettes(), {});
}

std::string Failure(const std::function<void()>& action) {
    try {
        action();
    } catch (const CException& failure) {
        return failure.what();
    }
    return {};
}

// Any color and any alpha.
Texture ColorfulTexture(int width, int height) {
    std::mt19937 random(5);
    Texture texture(width, height);
    for (Color& pixel : texture.Pixels()) pixel = static_cast<Color>(random());
    return texture;
}

constexpr std::size_t mipHeader = 40, walHeader = 100;

int IndexAt(const Bytes& bytes, std::size_t place) {
    return std::to_integer<int>(bytes.at(place));
}

} // namespace

TEST(PictureConversion, KeepsIndicesAndWhatTheGamesStore) {
    Bytes wal = MakeWal(64, 32, "e1u1/floor");
    std::memcpy(&wal[56], "e1u1/next", 9);
    PutU32(wal, 88, 1);
    PutU32(wal, 92, 2);
    PutU32(wal, 96, 3);
    const ConversionOptions fields{.fields = {1, 2, 3, "e1u1/next", "e1u1/floor"}};
    for (const char* way : {"x.png", "x.pcx", "x.wal"})
        EXPECT_EQ(
            CutTo(Convert(Convert(wal, "x.wal", way).bytes, way, "y.wal", fields).bytes, walHeader + 64 * 32),
            CutTo(wal, walHeader + 64 * 32))
            << way;
    const Bytes mip = MakeMip("wall", 16, 32, true);
    for (const char* way : {"wall.png", "wall.pcx"})
        for (const char* end : {"wall.mip", "wall.pcx"}) {
            const Bytes back = Convert(Convert(mip, "wall.mip", way).bytes, way, end).bytes;
            EXPECT_EQ(Convert(mip, "wall.mip", end).bytes, back) << way << end;
        }
    EXPECT_EQ(CutTo(Convert(mip, "x.mip", "x.mip").bytes, mipHeader + 16 * 32),
              CutTo(mip, mipHeader + 16 * 32));
    const Bytes plain = MakeMip("wall", 16, 32, false);
    EXPECT_EQ(Convert(Convert(plain, "wall.mip", "wall.png").bytes, "wall.png", "wall.mip").bytes.size(),
              plain.size())
        << "the palette of the game is not stored";
    EXPECT_EQ(Convert(plain, "wall.mip", "wall.mip", {.embedPalette = true}).bytes.size(),
              plain.size() + 770);
    for (const bool dither : {false, true}) // colors that the other game's palette has at another index
        EXPECT_EQ(
            IndexAt(Convert(wal, "x.wal", "x.mip", {.palette = {.dither = dither}}).bytes, mipHeader + 7),
            248);
}

TEST(PictureConversion, NamesAndFitsTextures) {
    const Bytes picture = BytesOf(Texture(300, 20), "x.tga");
    struct Row {
        const char* target;
        const char* path;
        const char* name;
        std::vector<std::string> notes;
    };
    const std::string cropped = "was cropped to 256 x 24 to fit the games.";
    for (const Row& row :
         {Row{"a/b.wal", "", "b", {cropped}},
          {"x.wal", "Textures/e1u1\\floor", "e1u1/floor", {cropped}},
          {"x.mip", "textures/e1u1/floor", "floor", {cropped}},
          {"x.mip",
           "1234567890123456",
           "123456789012345",
           {cropped, "was named \"123456789012345\", because its format stores names of at most 15 bytes."}},
          {"x.png", "12345678901234567890123456789012", "\x89PNG\r\n\x1A\n", {}}}) {
        const ConvertedFile file = Convert(picture, "x.tga", row.target, {.textureName = row.path});
        EXPECT_STREQ(reinterpret_cast<const char*>(CutTo(file.bytes, 32).data()), row.name);
        EXPECT_EQ(file.notes, row.notes) << row.target;
    }
    EXPECT_THAT(Convert(BytesOf(Texture(60, 8), "x.tga"), "x.tga", "x.wal").notes,
                testing::ElementsAre("was resized from 60 x 8 to 64 x 8 to fit the games."));
    const Bytes kept =
        Convert(Convert(MakeMip("sky", 8, 8, true), "a.mip", "b.mip").bytes, "b.mip", "c.mip").bytes;
    EXPECT_EQ(CutTo(kept, 4), ToBytes(std::string_view("sky\0", 4)));
}

TEST(PictureConversion, CutsOutWhatIsTransparentAndNothingElse) {
    const Texture texture = ColorfulTexture(16, 16);
    for (const bool dither : {false, true})
        for (const PaletteSource source : {PaletteSource::automatic, PaletteSource::own}) {
            const ConversionOptions options{.palette = {.source = source, .dither = dither}};
            const Bytes mip = Convert(BytesOf(texture, "x.tga"), "{x.tga", "{x.mip", options).bytes;
            const Texture back = Read(Convert(mip, "{x.mip", "{x.png").bytes, "x.png");
            for (std::size_t i = 0; i < 256; ++i) {
                const bool isTransparent = Alpha(texture.Pixels()[i]) < 128;
                EXPECT_EQ(IndexAt(mip, mipHeader + i) == 255, isTransparent) << i;
                EXPECT_EQ(Alpha(back.Pixels()[i]), isTransparent ? 0U : 255U) << i;
            }
        }
    Texture halves(16, 8);
    for (int y = 0; y < 8; ++y) // three of four texels of each block on the left, one on the right
        for (int x = 0; x < 16; ++x)
            halves.SetPixel(x, y, (x % 2 + y % 2 * 2 < (x < 8 ? 3 : 1) ? 0 : alphaMask) | 0x00FF40);
    const Bytes mip = Convert(BytesOf(halves, "x.tga"), "x.tga", "{x.mip").bytes;
    for (const std::size_t left : {mipHeader + 128, mipHeader + 128 + 32, mipHeader + 128 + 32 + 8})
        EXPECT_EQ(IndexAt(mip, left), 255);
    const auto nearest = static_cast<int>(CodecHarness::Palette().FindNearestIndex(0xFF00FF40));
    EXPECT_EQ(IndexAt(mip, mipHeader + 128 + 7), nearest) << "not mixed with what is transparent";
}

TEST(PictureConversion, ProtectsFullbrightIndices) {
    Texture texture(256, 8);
    texture.indices.emplace(1);
    for (std::size_t i = 0; i < texture.Pixels().size(); ++i) {
        texture.indices->front().push_back(static_cast<std::uint8_t>(i / 8));
        texture.Pixels()[i] = CodecHarness::Palette()[i / 8 % 256];
    }
    texture.SetPalette(CodecHarness::Palette());
    for (const bool isPaletted : {true, false})
        for (const bool dither : {false, true}) {
            const char* from = isPaletted ? "x.png" : "x.tga";
            const Bytes mip = Convert(BytesOf(texture, from), from, "x.mip",
                                      {.palette = {.dither = dither, .protectFullbright = true}})
                                  .bytes;
            for (std::size_t i = 0; i < texture.Pixels().size(); ++i) {
                const int source = static_cast<int>(i / 8 % 256);
                const int index = IndexAt(mip, mipHeader + i);
                EXPECT_TRUE(source < 224 || isPaletted ? index == source : index < 224) << i;
            }
            // Blocks of 2 x 2 texels of one index each.
            EXPECT_EQ(IndexAt(mip, mipHeader + 256 * 8 + 127) >= 224, isPaletted);
        }
}

TEST(PictureConversion, MakesPalettes) {
    const Texture few = RandomTexture(32, 32);
    for (const char* to : {"x.png", "x.pcx", "x.mip"})
        EXPECT_TRUE(SamePixels(
            Read(Convert(BytesOf(few, "x.tga"), "x.tga", to, {.palette = {PaletteSource::own}}).bytes, to),
            few))
            << to;
    const Texture read = Read(Convert(BytesOf(ColorfulTexture(64, 64), "x.tga"), "x.tga", "x.png",
                                      {.palette = {PaletteSource::own}})
                                  .bytes,
                              "x.png");
    EXPECT_EQ(read.palette->GetCount(), 256U);
    EXPECT_EQ(
        Read(Convert(BytesOf(few, "x.tga"), "x.tga", "x.png", {.palette = {PaletteSource::quake}}).bytes,
             "x.png")
            .IndicesOfLevel(0)
            .size(),
        1024U);
}

TEST(PictureConversion, RefusesInWords) {
    const Bytes tga = BytesOf(Texture(8, 8), "x.tga");
    Bytes bomb = MakePng(8, 2, false);
    bomb[18] = bomb[22] = std::byte{0x40};
    Bytes badIndex = MakePng(8, 3, false);
    badIndex[36] = std::byte{3}; // a shorter palette
    for (const auto& [bytes, from, to, sentence] :
         {std::tuple(tga, "x.tga", "x.jpg", "must end in .wal, .mip, .pcx, .tga, .bmp or .png."),
          {tga, "x.txt", "x.tga", "not a picture"},
          {RepairChecksums(bomb), "x.png", "x.tga", "compressed too highly"},
          {bomb, "x.png", "x.tga", "damaged"},
          {MakeJpeg(4, false), "x.jpg", "x.tga", "printing colors"},
          {tga, "x.png", "x.tga", "not of the expected format"},
          {tga, "x.jpeg", "x.tga", "not of the expected format"},
          {CutTo(MakePng(1, 3, true), 130), "x.png", "x.tga", "ends too early"},
          {CutTo(MakeJpeg(3, true), 700), "x.jpg", "x.tga", "ends too early"}})
        EXPECT_THAT(Failure([&] { Convert(bytes, from, to); }), testing::HasSubstr(sentence)) << from << to;
    EXPECT_THAT(Failure([&] { Convert(tga, "x.tga", "x.wal", {.palette = {PaletteSource::own}}); }),
                testing::HasSubstr("cannot carry"));
}

TEST(PaletteFile, IsReadInEveryForm) {
    Bytes lump(768);
    for (std::size_t i = 0; i < 768; ++i) lump[i] = static_cast<std::byte>(i / 3);
    const auto count = [](Bytes bytes, const char* name) {
        CMemFile file{std::span<std::byte>(bytes)};
        std::size_t read = 0;
        const std::string failure = Failure([&] { read = ReadPaletteFile(file, name).GetCount(); });
        return failure.empty() ? std::to_string(read) : failure;
    };
    EXPECT_EQ(count(lump, "palette.lmp"), "256");
    EXPECT_EQ(count(ToBytes("JASC-PAL\r\n0100\r\n2\r\n1 2 3\r\n255 0 7\r\n"), "two.pal"), "2");
    EXPECT_EQ(count(MakePng(4, 3, true), "x.png"), "16");
    for (const auto& [bytes, name] : {std::pair(lump, "palette.png"),
                                      {CutTo(lump, 767), "palette.lmp"},
                                      {MakePng(8, 2, false), "x.png"},
                                      {MakeWal(8, 8), "x.wal"},
                                      {ToBytes("JASC-PAL\n0100\n2\n1 2 3\n256 0 7"), "x.pal"},
                                      {ToBytes("JASC-PAL\n0100\n257\n"), "x.pal"}})
        EXPECT_THAT(count(bytes, name), testing::EndsWith(".")) << name;
}

} // namespace keltavlo
