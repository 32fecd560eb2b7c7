#include "Readers.h"
#include "support/TestApplication.h"

// What a damaged file's sentence says, and that only pictures are saved.

namespace {

struct Damage {
    const char* type;
    std::size_t offset;
    std::vector<std::uint32_t> values;
    const char* message;
};

constexpr std::uint32_t least = 0x80000000, most = 0x7FFFFFFF, all = 0xFFFFFFFF;

// Of archives, the last values are those that lead one byte too far.
const Damage damages[] = {
    {"pak", 0, {0x6B434150}, badFormat}, // "PACk"
    {"pak", 4, {all, 21}, tooShort},     // where the directory lies
    {"pak", 8, {63, 0xFFFFFFC0}, badIndex},
    {"pak", 8, {192}, tooShort},
    {"pak", 76, {all, 145}, tooShort}, // where a file lies, and its size
    {"pak", 80, {all, 137}, tooShort},
    {"wad", 0, {0x34444157, 0x33646177}, badFormat}, // "WAD4", "wad3"
    {"wad", 4, {3, most}, tooShort},
    {"wad", 4, {least, all}, badIndex},
    {"wad", 8, {all, 1933}, tooShort},
    {"wad", 1932, {all, 845}, tooShort},
    {"wad", 1936, {all}, tooShort},
    {"md2", 0, {0x4F504449}, badFormat}, // "IDPO"
    {"md2", 4, {7, 9}, badVersion},
    {"md2", 20, {32}, tooShort}, // counts, and the limits of the game
    {"md2", 20, {33, most, least}, badIndex},
    {"md2", 24, {2048}, tooShort},
    {"md2", 24, {2049, most, least}, badIndex},
    {"md2", 28, {most}, tooShort},
    {"md2", 28, {all}, badIndex},
    {"md2", 32, {4096}, tooShort},
    {"md2", 32, {4097, most, least}, badIndex},
    {"md2", 40, {512}, tooShort},
    {"md2", 40, {513, most, least}, badIndex},
    {"md2", 44, {most, least, all}, tooShort}, // where the parts lie
    {"md2", 48, {most, least, all}, tooShort},
    {"md2", 52, {most, least, all}, tooShort},
    {"md2", 56, {most, least, all}, tooShort},
    {"mdl", 180, {most, least, all, 25}, badIndex}, // textures
    {"mdl", 184, {least, all, 1790}, badIndex},
    {"mdl", 312, {most, least, all, 65536}, badIndex}, // the first one's width, height and place
    {"mdl", 316, {most, least, all, 65536}, badIndex},
    {"mdl", 320, {least, all, 1174}, badIndex},
};

class RefusedFiles : public WorkshopTest {
protected:
    static Bytes GoodFile(const std::string& type) { return FindReader(type).makeSeed(); }
    std::string Try(const Bytes& bytes, const std::string& type) {
        return WorkshopTest::Try<CDocument>(bytes, "." + type);
    }
};

} // namespace

TEST_F(RefusedFiles, HaveTheirSentences) {
    for (const auto& [type, offset, values, message] : damages)
        for (const std::uint32_t value : values) {
            Bytes bytes = GoodFile(type);
            PutU32(bytes, offset, value);
            EXPECT_THAT(Try(bytes, type), testing::HasSubstr(message)) << type << offset << ": " << value;
        }
}

TEST_F(RefusedFiles, EndEarly) {
    for (const auto& [type, message] :
         {std::pair("pak", tooShort), {"wad", tooShort}, {"md2", tooShort}, {"mdl", badIndex}}) {
        const Bytes whole = GoodFile(type);
        for (std::size_t length = 1; length < whole.size(); ++length)
            EXPECT_THAT(Try(CutTo(whole, length), type), testing::HasSubstr(message)) << type << length;
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
            EXPECT_THAT(TakeMessage(), testing::HasSubstr("Cannot save")) << type;
            EXPECT_TRUE(document.IsModified());
        }
        EXPECT_EQ(ReadFile(path), GoodFile(type));
    }
    EXPECT_TRUE(NamesIn(PathTo("copy")).empty());
}
