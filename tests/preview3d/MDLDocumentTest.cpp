#include "preview3d/MDLDocument.h"

#include "builders/ModelBuilder.h"
#include "support/TestApplication.h"

using testing::HasSubstr;

namespace {

constexpr std::size_t firstRecord = MdlBuilder::headerSize;

class MDLDocumentTest : public WorkshopTest {
protected:
    std::string OpenModel(const Bytes& bytes) { return Try<MDLDocument>(bytes, ".mdl"); }
    // The message for the small model with one field changed.
    std::string OpenWith(std::size_t field, std::uint32_t value) {
        Bytes bytes = Small();
        PutU32(bytes, field, value);
        return OpenModel(bytes);
    }
    static Bytes Small() { return MdlBuilder{{{4, 2}, {16, 16}}}.Build(); }
};

} // namespace

TEST_F(MDLDocumentTest, DecodesEachTextureThroughItsPalette) {
    auto* model = Open<MDLDocument>(Put("a.mdl", Small()));
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->GetFileData(), Small());
    ASSERT_EQ(model->GetTextures().size(), 2U);
    EXPECT_EQ(model->GetTextures()[0].GetWidth(), 4);
    EXPECT_EQ(model->GetTextures()[0].GetHeight(), 2);
    EXPECT_EQ(model->GetTextures()[0].GetPixel(1, 1), Compose(5, 10, 15));
    EXPECT_EQ(model->GetTextures()[1].GetPixel(15, 15), Compose(255, 254, 253));
    const Bytes other = MdlBuilder{{{1, 1}}}.Build();
    EXPECT_TRUE(model->OnOpenDocument(Put("other.mdl", other)));
    EXPECT_EQ(model->GetFileData(), other);
    EXPECT_EQ(model->GetTextures().size(), 1U);
}

TEST_F(MDLDocumentTest, WithoutATableThereAreNoTextures) {
    Bytes bytes = ToBytes("IDPO");
    bytes.resize(MdlBuilder::tableOffset + 4);
    PutU32(bytes, MdlBuilder::textureCount, 0xFFFFFFFF);
    EXPECT_EQ(OpenModel(bytes), "");
    EXPECT_EQ(OpenWith(MdlBuilder::textureCount, 0), "");
    bytes.pop_back();
    EXPECT_THAT(OpenModel(bytes), HasSubstr(badIndex));
}

TEST_F(MDLDocumentTest, PixelsMayLieAnywhereInTheFile) {
    const auto size = static_cast<std::uint32_t>(Small().size());
    EXPECT_EQ(OpenWith(firstRecord + MdlBuilder::width, 0), "") << "a picture without pixels";
    EXPECT_EQ(OpenWith(firstRecord + MdlBuilder::dataOffset, 0), "") << "any bytes of the file will do";
    EXPECT_EQ(OpenWith(firstRecord + MdlBuilder::dataOffset, size - 776), "");
    EXPECT_THAT(OpenWith(firstRecord + MdlBuilder::dataOffset, size - 775), HasSubstr(badIndex));
    Bytes bytes = Small();
    PutU32(bytes, firstRecord + MdlBuilder::width, 0xFFFFFFFF); // their product is 1
    PutU32(bytes, firstRecord + MdlBuilder::height, 0xFFFFFFFF);
    EXPECT_THAT(OpenModel(bytes), HasSubstr(badIndex));
}

TEST_F(MDLDocumentTest, TexturesThatShareBytesTakeNoMoreThanTheFile) {
    constexpr std::uint32_t shares = 40;
    Bytes bytes = MdlBuilder{std::vector<MdlBuilder::Size>(shares, {8, 8})}.Build();
    const auto shareBytes = [&](std::uint32_t side) {
        for (std::uint32_t t = 0; t < shares; ++t) {
            const std::size_t record = MdlBuilder::headerSize + t * MdlBuilder::recordSize;
            PutU32(bytes, record + MdlBuilder::width, side);
            PutU32(bytes, record + MdlBuilder::height, side);
            PutU32(bytes, record + MdlBuilder::dataOffset, 0);
        }
        return OpenModel(bytes);
    };
    EXPECT_EQ(shareBytes(8), "");
    EXPECT_THAT(shareBytes(100), HasSubstr(badIndex));
}
