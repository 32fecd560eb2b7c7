#include "support/CodecHarness.h"

namespace keltavlo {

struct CodecLaws : testing::TestWithParam<Codec> {
    CodecHarness codec{GetParam()};
};

TEST_P(CodecLaws, WhatIsWrittenIsReadBackAndHasPixels) {
    for (const auto& [width, height] :
         {std::pair(8, 8), {256, 8}, {8, 256}, {24, 40}, {1, 1}, {5, 3}, {301, 2}}) {
        if (codec.codec.hasGameSizes && (width % 8 != 0 || height % 8 != 0)) continue;
        Texture texture = RandomTexture(width, height);
        EXPECT_TRUE(SamePixels(codec.Read(codec.Write(texture)), texture)) << width << " x " << height;
        texture.Pixels()[0] = 0x00123456;
        const Texture back = codec.Read(codec.Write(texture));
        EXPECT_EQ(back.Pixels()[0] == 0x00123456, codec.codec.documentClass == "TGADocument");
        EXPECT_TRUE(std::ranges::equal(back.Pixels().subspan(1), texture.Pixels().subspan(1)));
    }
    EXPECT_EQ(codec.WriteFailure(Texture(5, 3)) == CArchiveException::badIndex, codec.codec.hasGameSizes);
    EXPECT_EQ(codec.WriteFailure(Texture(0, 8)), CArchiveException::badIndex);
    EXPECT_EQ(codec.WriteFailure(Texture(8, 0)), CArchiveException::badIndex);
}

INSTANTIATE_TEST_SUITE_P(AllFormats, CodecLaws, testing::ValuesIn(Codecs().begin(), Codecs().end()),
                         [](const auto& format) { return std::string(format.param.name); });

} // namespace keltavlo
