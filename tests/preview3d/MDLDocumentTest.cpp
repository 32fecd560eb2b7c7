#include "preview3d/MDLDocument.h"

#include "support/TestApplication.h"
#include "support/builders/ModelBuilder.h"

namespace keltavlo {

using testing::HasSubstr;

struct MDLDocumentTest : WorkshopTest {
    std::string OpenModel(const Bytes& bytes) { return Try<MDLDocument>(bytes, ".mdl"); }
    // Changes fields of the small model and returns the message.
    std::string OpenWith(std::initializer_list<std::pair<std::size_t, std::uint32_t>> fields) {
        Bytes bytes = Small();
        for (const auto& [field, value] : fields) PutU32(bytes, field, value);
        return OpenModel(bytes);
    }
    static Bytes Small() { return MdlBuilder{{{4, 2}, {16, 16}}}.Build(); }
};

TEST_F(MDLDocumentTest, DecodesEachTextureThroughItsPalette) {
    auto* model = Open<MDLDocument>(Put("a.mdl", Small()));
    ASSERT_NE(model, nullptr);
    ASSERT_EQ(model->GetTextures().size(), 2U);
    EXPECT_EQ(model->GetTextures()[0].GetWidth(), 4);
    EXPECT_EQ(model->GetTextures()[0].GetPixel(1, 1), Compose(5, 10, 15));
    EXPECT_EQ(model->GetTextures()[1].GetPixel(15, 15), Compose(255, 254, 253));
    const Bytes other = MdlBuilder{{{1, 1}}}.Build();
    EXPECT_TRUE(model->OnOpenDocument(Put("other.mdl", other)));
    EXPECT_EQ(model->GetFileData(), other);
    EXPECT_EQ(model->GetTextures().size(), 1U);
}

TEST_F(MDLDocumentTest, PixelsMayLieAnywhereInTheFileOrBeMissing) {
    constexpr std::size_t firstRecord = MdlBuilder::headerSize, width = firstRecord + MdlBuilder::width,
                          height = firstRecord + MdlBuilder::height,
                          dataOffset = firstRecord + MdlBuilder::dataOffset;
    EXPECT_EQ(OpenWith({{width, 0}}), "");
    EXPECT_EQ(OpenWith({{dataOffset, 0}}), "");
    EXPECT_EQ(OpenWith({{dataOffset, static_cast<std::uint32_t>(Small().size()) - 776}}), "");
    EXPECT_THAT(OpenWith({{width, 0xFFFFFFFF}, {height, 0xFFFFFFFF}}), HasSubstr(badIndex));
    EXPECT_EQ(OpenWith({{MdlBuilder::textureCount, 0}}), "");
    EXPECT_EQ(OpenWith({{MdlBuilder::textureCount, 0xFFFFFFFF}, {MdlBuilder::tableOffset, 0}}), "");
    EXPECT_EQ(OpenModel(Bytes(MdlBuilder::tableOffset + 4)), "");
}

TEST_F(MDLDocumentTest, TexturesThatShareBytesTakeNoMoreThanTheFile) {
    const auto openShared = [&](std::uint32_t side) {
        const MdlBuilder model{std::vector<MdlBuilder::Size>(40, {side, side})};
        Bytes bytes = CutTo(model.Build(), 20000);
        for (std::size_t record = 0; record < model.textures.size(); ++record)
            PutU32(bytes, MdlBuilder::headerSize + record * MdlBuilder::recordSize + MdlBuilder::dataOffset,
                   0);
        return OpenModel(bytes);
    };
    EXPECT_EQ(openShared(8), "");
    EXPECT_THAT(openShared(100), HasSubstr(badIndex));
}

} // namespace keltavlo
