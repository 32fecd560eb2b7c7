#include "archives/PAKDocument.h"

#include "support/TestApplication.h"

namespace keltavlo {

struct PAKDocumentTest : WorkshopTest {
    std::string OpenPack(const Bytes& bytes) { return Try<PAKDocument>(bytes, ".pak"); }
    static Bytes Pack(std::size_t records, const std::string& name = "n") {
        PackBuilder pack;
        for (std::size_t i = 0; i < records; ++i) pack.Add(name, ToBytes("x"));
        return pack.Build();
    }
};

TEST_F(PAKDocumentTest, TakesAtMost4096RecordsWhichMayOverlap) {
    EXPECT_EQ(OpenPack(Pack(0)), "");
    Bytes pack = Pack(4096);
    EXPECT_EQ(OpenPack(pack), "");
    const std::size_t directory = 12 + 4096;
    for (std::size_t i = 0; i < 4096; ++i) {
        PutU32(pack, directory + i * 64 + 56, 0);
        PutU32(pack, directory + i * 64 + 60, static_cast<std::uint32_t>(pack.size()));
    }
    EXPECT_EQ(OpenPack(pack), "") << "which costs nothing until they are used";
    EXPECT_THAT(OpenPack(Pack(4097)), testing::HasSubstr(badIndex));
}

TEST_F(PAKDocumentTest, NamesMayFillTheirField) {
    const std::string name = "f/" + std::string(54, 'n');
    EXPECT_EQ(TextOf(Put("long.pak", Pack(1, name)) + "/" + name), "x");
}

} // namespace keltavlo
