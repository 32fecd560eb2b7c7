#include "tool/pictures/PictureConversion.h"

#include "framework/core/CMemFile.h"
#include "support/builders/CompressedPictures.h"
#include "support/builders/TextureBuilder.h"
#include "tool/pictures/PaletteFile.h"
#include "tool/pictures/PaletteSet.h"

#include <gmock/gmock.h>

namespace keltavlo {

namespace {

ConvertedFile Convert(Bytes bytes, const std::string& from, const std::string& to,
                      const ConversionOptions& options = {}) {
    static const PaletteSet grays = [] {
        ColorList list;
        for (Color level = 0; level < 256; ++level) list.Append(Compose(level, level, level));
        return PaletteSet{list, list, list, {}};
    }();
    CMemFile file{std::span<std::byte>(bytes)};
    return ConvertPicture(file, from, to, grays, options);
}

template <class Action>
std::string Failure(Action action) {
    try {
        action();
    } catch (const CException& failure) {
        return failure.what();
    }
    return {};
}

} // namespace

TEST(PictureConversion, NamesTexturesAndEmbedsPalettes) {
    const Bytes picture = MakePng(8, 2, false);
    const std::string fitted = "was resized from 11 x 9 to 16 x 16 to fit the games.";
    const std::string cut =
        "was named \"123456789012345\", because its format stores names of at most 15 bytes.";
    using Notes = std::vector<std::string>;
    for (const auto& [target, path, name, notes] :
         {std::tuple("a/b.wal", "", "b", Notes{fitted}),
          {"x.wal", "Textures/e1u1\\floor", "e1u1/floor", {fitted}},
          {"x.mip", "textures/e1u1/floor", "floor", {fitted}},
          {"x.mip", "1234567890123456", "123456789012345", {fitted, cut}},
          {"x.png", "1234567890123456", "\x89PNG\r\n\x1A\n", {}}}) {
        const ConvertedFile file = Convert(picture, "x.png", target, {.textureName = path});
        EXPECT_STREQ(reinterpret_cast<const char*>(CutTo(file.bytes, 32).data()), name);
        EXPECT_EQ(file.notes, notes) << target;
    }
    for (const bool isEmbedded : {true, false}) {
        const Bytes mip = MakeMip("sky", 8, 8, false);
        const Bytes copy = Convert(mip, "a.mip", "b.mip", {.embedPalette = isEmbedded}).bytes;
        EXPECT_EQ(CutTo(copy, 4), ToBytes(std::string_view("sky\0", 4))) << "the name of the source stays";
        EXPECT_EQ(copy.size(), mip.size() + (isEmbedded ? 770 : 0));
    }
}

TEST(PictureConversion, RefusesInWords) {
    const Bytes png = MakePng(8, 2, false);
    Bytes bomb = png;
    bomb[18] = bomb[22] = std::byte{0x40}; // 16384 more columns and rows
    const ConversionOptions ownPalette{.palette = {PaletteSource::own}};
    for (const auto& [bytes, from, to, sentence] :
         {std::tuple(png, "x.png", "x.jpg", "must end in .wal, .mip, .pcx, .tga, .bmp or .png."),
          {png, "x.txt", "x.tga", "not a picture"},
          {png, "x.png", "x.wal", "cannot contain"},
          {RepairChecksums(bomb), "x.png", "x.tga", "compressed too highly"},
          {bomb, "x.png", "x.tga", "damaged"},
          {MakeJpeg(4, false), "x.jpg", "x.tga", "printing colors"},
          {png, "x.jpeg", "x.tga", "not of the expected format"},
          {MakeJpeg(3, true), "x.png", "x.tga", "not of the expected format"},
          {CutTo(png, 60), "x.png", "x.tga", "ends too early"},
          {CutTo(MakeJpeg(3, true), 400), "x.jpg", "x.tga", "ends too early"}})
        EXPECT_THAT(Failure([&] { Convert(bytes, from, to, ownPalette); }), testing::HasSubstr(sentence))
            << from << to;
}

TEST(PaletteFile, IsReadInEveryForm) {
    const Bytes lump(768);
    for (const auto& [bytes, name, result] :
         {std::tuple(lump, "palette.lmp", "256"),
          {ToBytes("JASC-PAL\r\n0100\r\n2\r\n1 2 3\r\n255 0 7\r\n"), "two.pal", "2"},
          {MakePng(4, 3, true), "x.png", "16"},
          {lump, "x.png", "expected format"},
          {CutTo(lump, 767), "palette.lmp", "neither"},
          {MakePng(8, 2, false), "x.png", "contains no palette"},
          {MakeWal(8, 8), "x.wal", "contains no palette"},
          {ToBytes("JASC-PAL\n0100\n2\n1 2 3\n256 0 7"), "x.pal", "not a color"},
          {ToBytes("JASC-PAL\n0100\n257\n"), "x.pal", "256 colors"}}) {
        Bytes copy = bytes;
        CMemFile file{std::span<std::byte>(copy)};
        std::size_t count = 0;
        const std::string failure = Failure([&, n = name] { count = ReadPaletteFile(file, n).GetCount(); });
        EXPECT_THAT(count == 0 ? failure : std::to_string(count), testing::HasSubstr(result)) << name;
    }
}

} // namespace keltavlo
