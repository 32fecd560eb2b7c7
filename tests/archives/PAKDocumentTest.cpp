#include "archives/PAKDocument.h"

#include "support/TestApplication.h"

using testing::HasSubstr;

namespace {

class PAKDocumentTest : public WorkshopTest {
protected:
    std::string OpenPack(const Bytes& bytes) { return Try<PAKDocument>(bytes, ".pak"); }
    static Bytes Pack(std::size_t records) {
        PackBuilder pack;
        for (std::size_t i = 0; i < records; ++i) pack.Add("n" + std::to_string(i), ToBytes("x"));
        return pack.Build();
    }
};

} // namespace

TEST_F(PAKDocumentTest, TakesAtMost4096Records) {
    EXPECT_EQ(OpenPack(Pack(0)), "");
    EXPECT_EQ(OpenPack(Pack(4096)), "");
    EXPECT_THAT(OpenPack(Pack(4097)), HasSubstr(badIndex));
}

TEST_F(PAKDocumentTest, RefusesDamagedHeadersAndExtents) {
    const Bytes good = Pack(2);
    Bytes pack = good;
    pack[3] = std::byte{'k'};
    EXPECT_THAT(OpenPack(pack), HasSubstr(badFormat));
    struct {
        std::size_t offset;
        std::uint32_t value;
        const char* message;
    } const cases[] = {
        {8, 63, badIndex},         {8, 192, tooShort}, {8, 0xFFFFFFC0, badIndex},
        {4, 0xFFFFFFFF, tooShort}, {4, 78, tooShort},
    };
    for (const auto& [offset, value, message] : cases) {
        pack = good;
        PutU32(pack, offset, value);
        EXPECT_THAT(OpenPack(pack), HasSubstr(message)) << offset << " " << value;
    }
    const std::size_t record = good.size() - PackBuilder::recordSize;
    for (const auto& [offset, length] :
         {std::pair(0xFFFFFFFFU, 1U), std::pair(12U, 0xFFFFFFFFU), std::pair(0U, 143U)}) {
        pack = good;
        PutU32(pack, record + 56, offset);
        PutU32(pack, record + 60, length);
        EXPECT_THAT(OpenPack(pack), HasSubstr(tooShort)) << offset << " " << length;
    }
    ExpectNoCutOpens<PAKDocument>(good, ".pak", tooShort);
}

TEST_F(PAKDocumentTest, NamesMayFillTheirField) {
    PackBuilder builder;
    builder.Add("f/" + std::string(54, 'n'), ToBytes("x"));
    auto* pack = Open<PAKDocument>(Put("long.pak", builder.Build()));
    ASSERT_NE(pack, nullptr);
    EXPECT_NE(pack->FindEntry(PathTo("long.pak/f/" + std::string(54, 'N'))), nullptr);
}

TEST_F(PAKDocumentTest, OverlappingEntriesCostNothingUntilUsed) {
    Bytes pack = Pack(4096);
    const std::size_t directory = 12 + 4096;
    for (std::size_t i = 0; i < 4096; ++i) {
        PutU32(pack, directory + i * 64 + 56, 0);
        PutU32(pack, directory + i * 64 + 60, static_cast<std::uint32_t>(pack.size()));
    }
    EXPECT_EQ(OpenPack(pack), "");
}

TEST_F(PAKDocumentTest, CannotBeSaved) {
    auto* pack = Open<PAKDocument>(Put("a.pak", Pack(1)));
    pack->SetModifiedFlag();
    EXPECT_FALSE(pack->DoFileSave());
    EXPECT_THAT(TakeMessage(), HasSubstr("only be read"));
    EXPECT_TRUE(pack->IsModified());
    EXPECT_EQ(ReadFile(PathTo("a.pak")), Pack(1));
}
