#include "archives/WADDocument.h"

#include "image/ImageDocuments.h"
#include "resources/PaletteDocument.h"
#include "support/FakeProgress.h"
#include "support/TestApplication.h"
#include "support/builders/WadBuilder.h"

namespace keltavlo {

using testing::ElementsAre;
using testing::HasSubstr;

struct WADDocumentTest : WorkshopTest {
    std::string OpenWad(const Bytes& bytes) { return Try<WADDocument>(bytes, ".wad"); }
    static Bytes ThreeLumps(WadBuilder::Directory place = WadBuilder::Directory::last) {
        WadBuilder wad;
        wad.Add("wall1", WadBuilder::wad3TextureType, MakeMip("WALL1", 16, 8, true));
        wad.Add("words", 65, ToBytes("twelve bytes"), "garbage");
        wad.Add("set/floor\\tile", WadBuilder::wad2TextureType, ToBytes("x"));
        return wad.Build(place);
    }
};

TEST_F(WADDocumentTest, NamesFollowTheLumpTypes) {
    WadBuilder wad("WAD2");
    wad.Add("PALETTE", WadBuilder::paletteType, Bytes(768, std::byte{7}));
    wad.Add("wall1", WadBuilder::wad3TextureType, Bytes(128 * 128, std::byte{0x31}));
    wad.Add("{blue.x", WadBuilder::wad2TextureType, {});
    wad.Add("CONCHARS", 66, {}, "garbage");
    wad.Add("sixteen_letters_", 0, {});
    const std::string path = Put("names.wad", wad.Build());
    EXPECT_THAT(NamesIn(path),
                ElementsAre("PALETTE.lmp", "wall1.mip", "{blue.x.mip", "CONCHARS", "sixteen_letters_"));
    EXPECT_EQ(Open<LMPDocument>(path + "/palette.LMP")->GetColor(255), Compose(7, 7, 7));
    EXPECT_EQ(Open<MIPDocument>(path + "/wall1.MIP"), nullptr) << "the lump is no texture";
    EXPECT_THAT(TakeMessage(), HasSubstr("wall1.MIP"));
}

TEST_F(WADDocumentTest, TexturesOpenWhereverTheArchiveLies) {
    const Bytes wad = ThreeLumps(WadBuilder::Directory::first);
    const Bytes pack = PackBuilder{{"a/inner.WAD", wad}}.Build();
    for (const std::string& path :
         {Put("last.wad", ThreeLumps()), Put("first.wad", wad), Put("pack.pak", pack) + "/A/Inner.wad"}) {
        EXPECT_THAT(NamesIn(path), ElementsAre("wall1.mip", "words", "set")) << path;
        EXPECT_THAT(NamesIn(path + "/SET/Floor"), ElementsAre("tile.mip")) << path;
        EXPECT_EQ(TextOf(path + "/words"), "twelve bytes") << path;
        const Texture& texture = Open<MIPDocument>(path + "/Wall1.MIP")->GetTexture();
        EXPECT_EQ(texture.GetPixel(3, 2), Compose(5, 5, 5));
        EXPECT_EQ(texture.quakeName, "WALL1") << "not the directory's";
    }
}

TEST_F(WADDocumentTest, BytesAreCutOrFilledToTheSize) {
    Bytes wad = ThreeLumps();
    const auto fileLength = static_cast<std::uint32_t>(wad.size());
    const auto reopened = [&](std::uint32_t size) {
        PutU32(wad, wad.size() - 2 * WadBuilder::recordSize + 8, size);
        EXPECT_EQ(OpenWad(wad), "");
        return PathTo("file" + std::to_string(fileCount) + ".wad/words");
    };
    EXPECT_EQ(TextOf(reopened(6)), "twelve");
    EXPECT_EQ(TextOf(reopened(0)), "");
    EXPECT_EQ(TextOf(reopened(14)), std::string("twelve bytes\0\0", 14));
    EXPECT_EQ(TextOf(reopened(fileLength)).size(), fileLength);
    EXPECT_EQ(TextOf(reopened(fileLength + 1)), "(fails)");
    const std::string monster = reopened(0xFFFFFFFF);
    EXPECT_EQ(TextOf(monster), "(fails)");
    EXPECT_EQ(StatusOf(monster).size, 0xFFFFFFFF) << "what the record says";
}

TEST_F(WADDocumentTest, ShowsHowFarALongReadIs) {
    FakeClock clock;
    ProgressShell shell;
    EXPECT_EQ(OpenWad(ThreeLumps()), "");
    EXPECT_TRUE(shell.log.empty());
    clock.perLook = 1;
    EXPECT_EQ(OpenWad(ThreeLumps()), "");
    EXPECT_THAT(shell.log, ElementsAre("open Reading Directory... 0..3 at 1", "2", "close",
                                       "open Reading Files... 0..3 at 1", "2", "3", "close"));
    Bytes wad = ThreeLumps();
    PutU32(wad, wad.size() - WadBuilder::recordSize, 0xFFFFFFFF);
    shell.log.clear();
    EXPECT_THAT(OpenWad(wad), HasSubstr(tooShort));
    EXPECT_EQ(shell.log.back(), "close");
}

} // namespace keltavlo
