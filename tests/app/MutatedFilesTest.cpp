#include "support/readers/Readers.h"

#include <gtest/gtest.h>

namespace keltavlo {

class MutatedFiles : public testing::TestWithParam<Reader> {};

// Whatever is done to a file, its reader gives a result or one of the program's own exceptions, and the same
// through a buffer as without one.
TEST_P(MutatedFiles, AreReadOrRefused) {
    const Reader& reader = GetParam();
    const std::vector<Bytes> seeds = reader.MakeSeeds();
    for (const Bytes& seed : seeds) ASSERT_TRUE(reader.read(seed, Buffering::whole)) << "a seed must be good";
    std::mt19937 random(20);
    for (std::size_t i = 0; i < 1000; ++i) {
        Bytes bytes = seeds[i % seeds.size()];
        MutateFile(bytes, reader.fields, random);
        EXPECT_EQ(reader.read(bytes, Buffering::whole), reader.read(bytes, Buffering::none)) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(EveryReader, MutatedFiles, testing::ValuesIn(Readers().begin(), Readers().end()),
                         [](const auto& reader) { return std::string(reader.param.name); });

} // namespace keltavlo
