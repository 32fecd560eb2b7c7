#include "resources/streams/StreamError.h" // before the sentences, some of which are called like its values
#include "support/TestApplication.h"
#include "support/readers/ReadingStream.h"

#include <cstring>

namespace keltavlo {

// What a damaged file's sentence says, and that only pictures are saved.

namespace {

struct Damage {
    const char* type;
    std::vector<std::size_t> offsets;
    std::vector<std::uint32_t> values;
    const char* message;
    std::size_t width = 4; // bytes
};

constexpr std::uint32_t least = 0x80000000, most = 0x7FFFFFFF, all = 0xFFFFFFFF;

// The pictures are of 8 x 8 pixels.
const Damage damages[] = {
    {"bmp", {1}, {'A'}, badFormat, 1},
    {"bmp", {14}, {0, 3, 4, 6}, badIndex}, // the header's size
    {"bmp", {18, 22}, {0, least, most, 65536}, badIndex},
    {"bmp", {18}, {all}, badIndex},
    {"bmp", {22}, {65535, 0xFFFF0001}, tooShort},
    {"bmp", {26}, {0}, badIndex, 2},                   // planes
    {"bmp", {28}, {0, 2, 15, 33, 65535}, badIndex, 2}, // bits
    {"mip", {16, 20}, {0, 12, 264, least, 0xFFFFFFF8}, badIndex},
    {"mip", {24}, {all}, tooShort}, // where the first level lies
    {"pcx", {0}, {11}, badFormat, 1},
    {"pcx", {1}, {3}, badVersion, 1},
    {"pcx", {2}, {0}, "Uncompressed", 1},
    {"pcx", {2}, {2}, badIndex, 1},
    {"pcx", {3}, {4}, "4-bit PCX", 1},
    {"pcx", {3, 65}, {0}, badIndex, 1},
    {"pcx", {4}, {8}, badIndex, 2},       // no column
    {"pcx", {6}, {0xFFFF}, badIndex, 2},  // no row
    {"pcx", {8}, {8}, badIndex, 2},       // more columns than a row holds
    {"pcx", {10}, {0xFFFF}, tooShort, 2}, // the most that the fields can claim
    {"pcx", {65}, {3}, "24-bit PCX", 1},  // planes
    {"pcx", {66}, {9}, "odd number", 2},  // bytes of a row
    {"pcx", {66}, {3, 6}, badIndex, 2},
    {"tga", {1}, {2, 255}, badIndex, 1}, // the color map
    {"tga", {2}, {1}, "Color-mapped Targa", 1},
    {"tga", {2}, {3}, "Gray Targa", 1},
    {"tga", {2}, {9, 10, 11}, "Run-length encoded Targa", 1},
    {"tga", {2}, {4, 32, 255}, "not supported", 1},
    {"tga", {12, 14}, {0}, badIndex, 2},
    {"tga", {14}, {0xFFFF}, tooShort, 2},
    {"tga", {16}, {15}, "15-bit Targa", 1},
    {"tga", {16}, {16}, "16-bit Targa", 1},
    {"tga", {16}, {0, 1, 8, 23, 33, 255}, badIndex, 1},
    {"tga", {234, 235}, {1}, badIndex, 1}, // the footer's dot and NUL
    {"wal", {32, 36}, {0, 63, 260, 264, 0xFFFFFFF8}, badIndex},
    {"wal", {40}, {185 - 63, all}, tooShort}, // where the first level lies
    // Of archives, the last values are those that lead one byte too far.
    {"pak", {0}, {0x6B434150}, badFormat}, // "PACk"
    {"pak", {4}, {all, 21}, tooShort},     // where the directory lies
    {"pak", {8}, {63, 0xFFFFFFC0}, badIndex},
    {"pak", {8}, {192}, tooShort},
    {"pak", {76}, {all, 145}, tooShort}, // where a file lies, and its size
    {"pak", {80}, {all, 137}, tooShort},
    {"wad", {0}, {0x34444157, 0x33646177}, badFormat}, // "WAD4", "wad3"
    {"wad", {4}, {3, most}, tooShort},
    {"wad", {4}, {least, all}, badIndex},
    {"wad", {8}, {all, 1933}, tooShort},
    {"wad", {1932}, {all, 845}, tooShort},
    {"wad", {1936}, {all}, tooShort},
    {"md2", {0}, {0x4F504449}, badFormat}, // "IDPO"
    {"md2", {4}, {7, 9}, badVersion},
    {"md2", {20}, {33, most, least}, badIndex}, // counts, beyond the limits of the game
    {"md2", {24}, {2049, most, least}, badIndex},
    {"md2", {28}, {most}, tooShort},
    {"md2", {28}, {all}, badIndex},
    {"md2", {32}, {4097, most, least}, badIndex},
    {"md2", {40}, {513, most, least}, badIndex},
    {"md2", {44, 48, 52, 56}, {most, least, all}, tooShort}, // where the parts lie
    {"mdl", {180}, {most, least, all, 25}, badIndex},        // textures
    {"mdl", {184}, {least, all, 1790}, badIndex},
    {"mdl", {312, 316}, {most, least, all, 65536}, badIndex}, // the first one's width, height and place
    {"mdl", {320}, {least, all, 1174}, badIndex},
};

class RefusedFiles : public WorkshopTest {
protected:
    // The readers have an application of their own, which must not come in front of the test's.
    static void SetUpTestSuite() { NeedApplication(); }

    static Bytes GoodFile(const std::string& type) { return FindReader(type).makeSeed(); }
    std::string Try(const Bytes& bytes, const std::string& type) {
        return WorkshopTest::Try<CDocument>(bytes, "." + type);
    }
};

} // namespace

TEST_F(RefusedFiles, HaveTheirSentences) {
    for (const auto& [type, offsets, values, message, width] : damages)
        for (const std::size_t offset : offsets)
            for (const std::uint32_t value : values) {
                Bytes bytes = GoodFile(type);
                std::memcpy(&bytes.at(offset), &value, width);
                EXPECT_THAT(Try(bytes, type), testing::HasSubstr(message)) << type << offset << ": " << value;
            }
}

TEST_F(RefusedFiles, AreNamedWhenNothingReadsTheirKind) {
    for (const auto& [start, kind] :
         {std::pair("\x89PNG\r\n\x1A\n", "PNG"), {"IDPO\x06\0\0\0", "Quake model"}})
        for (const std::string type :
             {"bmp", "mip", "pcx", "tga", "wal", "pak", "wad", "md2", "mdl", "kelbrush"}) {
            Bytes bytes(3000, std::byte{0xAB});
            std::memcpy(bytes.data(), start, 8);
            EXPECT_THAT(Try(bytes, type), testing::HasSubstr(kind)) << type;
            EXPECT_EQ(Try(CutTo(bytes, 7), type).find(kind), std::string::npos) << type;
        }
}

TEST_F(RefusedFiles, EndEarly) {
    for (const std::string type : {"bmp", "mip", "pcx", "tga", "wal", "pak", "wad", "md2", "mdl"}) {
        const char* message = type == "mdl" ? badIndex : tooShort;
        const std::size_t notMissed = type == "tga" ? 26 : type == "mip" || type == "wal" ? 21 : 0;
        const Bytes whole = GoodFile(type);
        for (std::size_t length = 1; length < whole.size() - notMissed; ++length)
            EXPECT_THAT(Try(CutTo(whole, length), type), testing::HasSubstr(message)) << type << length;
        EXPECT_EQ(Try(CutTo(whole, whole.size() - notMissed), type), "") << type;
    }
}

TEST_F(RefusedFiles, ThatAreNoPicturesAreNotSaved) {
    for (const std::string type :
         {"pak", "wad", "md2", "mdl", "lmp", "kelcolors", "kelbrush", "kelcolorspace"}) {
        const std::string path = Put("file." + type, GoodFile(type));
        auto& document = *Open<CDocument>(path);
        for (const std::string& target : {path, PathTo("copy")}) {
            document.SetModifiedFlag();
            EXPECT_FALSE(document.OnSaveDocument(target));
            const std::string message = TakeMessage();
            EXPECT_THAT(message, testing::HasSubstr("Cannot save")) << type;
            EXPECT_THAT(message, testing::AnyOf(testing::HasSubstr("(*." + type + ") cannot be written."),
                                                testing::HasSubstr("This kind of file")));
            EXPECT_TRUE(document.IsModified());
        }
        EXPECT_EQ(ReadFile(path), GoodFile(type));
    }
    EXPECT_TRUE(NamesIn(PathTo("copy")).empty());
}

} // namespace keltavlo
