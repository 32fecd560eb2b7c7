#include "formats/CodecHarness.h"

// What every format promises.

namespace {

struct Format {
    const char* documentClass;
    bool keepsAlpha;
    std::size_t headerSize;
    // What may be cut off at the end of a written file without the picture suffering.
    std::size_t spareTail;
    std::vector<std::size_t> fields32, fields16; // offsets of the header's numbers
};

const Format formats[] = {
    {"BMPDocument", false, 54, 0, {2, 10, 14, 18, 22, 30, 34, 46}, {0, 26, 28}},
    {"MIPDocument", false, 40, 64 * 21 / 64, {16, 20, 24, 28, 32, 36}, {}},
    {"PCXDocument", false, 128, 0, {}, {0, 2, 4, 6, 8, 10, 64, 66}},
    {"TGADocument", true, 18, 26, {}, {0, 2, 3, 5, 7, 12, 14, 16}},
    {"WALDocument", false, 100, 64 * 21 / 64, {32, 36, 40, 44, 48, 52, 88, 92, 96}, {}},
};

class CodecLaws : public testing::TestWithParam<Format> {
protected:
    // Reads the bytes, which may be good or bad: the only failures are the program's own exceptions, and a
    // picture that comes out of it has pixels.
    void ReadAnything(const Bytes& bytes) const {
        try {
            const Texture texture = codec.Read(bytes);
            EXPECT_FALSE(texture.Pixels().empty());
        } catch (const CException&) {
        } catch (const PictureSizeError&) {
        }
    }
    template <class T>
    void TryField(std::size_t offset) const {
        using Signed = std::make_signed_t<T>;
        for (const T value : {T{0}, T{1}, std::numeric_limits<T>::max(), static_cast<T>(-8),
                              static_cast<T>(std::numeric_limits<Signed>::max()),
                              static_cast<T>(std::numeric_limits<Signed>::min())}) {
            SCOPED_TRACE(std::to_string(offset) + ": " + std::to_string(value));
            Bytes bytes = small;
            Put(bytes, offset, value);
            ReadAnything(bytes);
        }
    }

    CodecHarness codec{GetParam().documentClass};
    Bytes small = codec.Write(RandomTexture(8, 8, CodecHarness::Palette()));
};

} // namespace

TEST_P(CodecLaws, WhatIsWrittenIsReadBack) {
    for (const auto& [width, height] :
         {std::pair(8, 8), {256, 8}, {8, 256}, {24, 40}, {1, 1}, {5, 3}, {301, 2}}) {
        if (codec.codec.hasGameSizes && (width % 8 != 0 || height % 8 != 0)) continue;
        Texture texture = RandomTexture(width, height, CodecHarness::Palette());
        EXPECT_TRUE(SamePixels(codec.Read(codec.Write(texture)), texture)) << width << " x " << height;
        texture.Pixels()[0] = 0x00123456;
        const Texture back = codec.Read(codec.Write(texture));
        EXPECT_EQ(back.Pixels()[0] == 0x00123456, GetParam().keepsAlpha);
        EXPECT_TRUE(std::ranges::equal(back.Pixels().subspan(1), texture.Pixels().subspan(1)));
    }
}

// Once through the format is as good as twice.
TEST_P(CodecLaws, FilesAreWrittenAlike) {
    Texture texture = RandomTexture(16, 24, CodecHarness::Palette());
    texture.quakeName = "a name";
    texture.quake2 = {"folder/name", "folder/next", 0x80000001, 0xFFFFFFFF, 7};
    texture.SetPalette(CodecHarness::Palette());
    const Bytes bytes = codec.Write(texture);
    EXPECT_EQ(codec.Write(codec.Read(bytes, texture)), bytes);
}

TEST_P(CodecLaws, AFileThatEndsEarlyIsRefused) {
    const std::size_t needed = small.size() - GetParam().spareTail;
    for (std::size_t length = 0; length < small.size(); ++length) {
        const Bytes bytes(small.begin(), small.begin() + static_cast<std::ptrdiff_t>(length));
        try {
            codec.Read(bytes);
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

TEST_P(CodecLaws, EveryNumberOfTheHeaderMayBeWrong) {
    for (const std::size_t offset : GetParam().fields32) TryField<std::uint32_t>(offset);
    for (const std::size_t offset : GetParam().fields16) TryField<std::uint16_t>(offset);
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        Bytes bytes = small;
        for (int changes = 0; changes < 3; ++changes)
            bytes[random() % GetParam().headerSize] = static_cast<std::byte>(random());
        ReadAnything(bytes);
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, CodecLaws, testing::ValuesIn(formats),
                         [](const auto& format) { return std::string(format.param.documentClass, 3); });
