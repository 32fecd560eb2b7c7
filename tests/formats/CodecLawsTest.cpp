#include "formats/CodecHarness.h"

// What every format promises.

namespace {

struct Format {
    const char* documentClass;
    bool keepsAlpha;
    // What may be cut off at the end of a written file without the picture suffering.
    std::size_t spareTail;
};

const Format formats[] = {
    {"BMPDocument", false, 0}, {"MIPDocument", false, 64 * 21 / 64}, {"PCXDocument", false, 0},
    {"TGADocument", true, 26}, {"WALDocument", false, 64 * 21 / 64},
};

class CodecLaws : public testing::TestWithParam<Format> {
protected:
    CodecHarness codec{GetParam().documentClass};
    Bytes small = codec.Write(RandomTexture(8, 8));
};

} // namespace

TEST_P(CodecLaws, WhatIsWrittenIsReadBack) {
    for (const auto& [width, height] :
         {std::pair(8, 8), {256, 8}, {8, 256}, {24, 40}, {1, 1}, {5, 3}, {301, 2}}) {
        if (codec.codec.hasGameSizes && (width % 8 != 0 || height % 8 != 0)) continue;
        Texture texture = RandomTexture(width, height);
        EXPECT_TRUE(SamePixels(codec.Read(codec.Write(texture)), texture)) << width << " x " << height;
        texture.Pixels()[0] = 0x00123456;
        const Texture back = codec.Read(codec.Write(texture));
        EXPECT_EQ(back.Pixels()[0] == 0x00123456, GetParam().keepsAlpha);
        EXPECT_TRUE(std::ranges::equal(back.Pixels().subspan(1), texture.Pixels().subspan(1)));
    }
}

TEST_P(CodecLaws, APictureWithoutPixelsIsNotWritten) {
    EXPECT_EQ(codec.WriteFailure(Texture(0, 8)), CArchiveException::badIndex);
    EXPECT_EQ(codec.WriteFailure(Texture(8, 0)), CArchiveException::badIndex);
}

TEST_P(CodecLaws, AFileThatEndsEarlyIsRefused) {
    const std::size_t needed = small.size() - GetParam().spareTail;
    for (std::size_t length = 0; length < small.size(); ++length) {
        try {
            codec.Read(CutTo(small, length));
            EXPECT_GE(length, needed);
        } catch (const CArchiveException& failure) {
            EXPECT_EQ(failure.cause, CArchiveException::endOfFile) << length;
            EXPECT_LT(length, needed);
        } catch (const CFileException& failure) { // no room for a footer
            EXPECT_EQ(failure.cause, CFileException::badSeek) << length;
            EXPECT_LT(length, GetParam().spareTail);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, CodecLaws, testing::ValuesIn(formats),
                         [](const auto& format) { return std::string(format.param.documentClass, 3); });
