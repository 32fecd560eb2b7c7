// Damaged files are read or refused with a sentence, and only pictures are saved.
#include "resources/streams/StreamError.h" // first, because some sentences below have the names of its values
#include "support/TestApplication.h"
#include "support/readers/ReadingStream.h"

#include <cstring>
#include <fstream>
#include <sstream>

namespace keltavlo {

using testing::HasSubstr;

namespace {

class MutatedFiles : public testing::TestWithParam<Reader> {};

struct RefusedFiles : WorkshopTest {
    // The readers have their own application, which must not be created after the test's.
    static void SetUpTestSuite() { NeedApplication(); }

    static Bytes GoodFile(const std::string& type) { return FindReader(type).makeSeed(); }
    std::string Try(const Bytes& bytes, const std::string& type) {
        return WorkshopTest::Try<CDocument>(bytes, "." + type);
    }
};

std::vector<std::uint32_t> ReadNumbers(const QString& text) {
    std::vector<std::uint32_t> numbers;
    for (const QString& number : text.split(' ', Qt::SkipEmptyParts))
        numbers.push_back(number.toUInt(nullptr, 0));
    return numbers;
}

} // namespace

// However a file is damaged, its reader returns a result or throws one of the program's own exceptions. A
// buffer makes no difference.
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

TEST_F(RefusedFiles, HaveTheirSentences) {
    std::ifstream damages(DAMAGES);
    std::string line;
    std::size_t tried = 0;
    while (std::getline(damages, line)) {
        const QStringList columns = QString::fromStdString(line.substr(0, line.find('#'))).split('|');
        if (columns.size() != 5) continue;
        const std::string type = columns[0].trimmed().toStdString();
        for (const std::size_t offset : ReadNumbers(columns[1]))
            for (const std::uint32_t value : ReadNumbers(columns[4])) {
                Bytes bytes = GoodFile(type);
                std::memcpy(&bytes.at(offset), &value, columns[2].toUInt());
                EXPECT_THAT(Try(bytes, type), HasSubstr(columns[3].trimmed().toStdString()))
                    << line << ": " << offset << ", " << value;
                ++tried;
            }
    }
    EXPECT_GT(tried, 150U);
}

TEST_F(RefusedFiles, AreNamedWhenNothingReadsTheirKind) {
    for (const auto& [start, kind] :
         {std::pair("\x89PNG\r\n\x1A\n", "PNG"), {"IDPO\x06\0\0\0", "Quake model"}})
        for (const std::string type :
             {"bmp", "mip", "pcx", "tga", "wal", "pak", "wad", "md2", "mdl", "kelbrush"}) {
            Bytes bytes(3000, std::byte{0xAB});
            std::memcpy(bytes.data(), start, 8);
            EXPECT_THAT(Try(bytes, type), HasSubstr(kind)) << type;
            EXPECT_EQ(Try(CutTo(bytes, 7), type).find(kind), std::string::npos) << type;
        }
}

TEST_F(RefusedFiles, EndEarly) {
    for (const std::string type : {"bmp", "mip", "pcx", "tga", "wal", "pak", "wad", "md2", "mdl", "lmp",
                                   "kelbrush", "kelcolorspace"}) {
        const char* message = type == "mdl" ? badIndex : tooShort;
        const std::size_t notMissed = type == "tga" ? 26 : type == "mip" || type == "wal" ? 21 : 0;
        const Bytes whole = GoodFile(type);
        for (std::size_t length = 1; length < whole.size() - notMissed; ++length)
            EXPECT_THAT(Try(CutTo(whole, length), type), HasSubstr(message)) << type << length;
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
            EXPECT_THAT(message, HasSubstr("Cannot save")) << type;
            EXPECT_THAT(message, testing::AnyOf(HasSubstr("(*." + type + ") cannot be written."),
                                                HasSubstr("This kind of file")));
            EXPECT_TRUE(document.IsModified());
        }
        EXPECT_EQ(ReadFile(path), GoodFile(type));
    }
    EXPECT_TRUE(NamesIn(PathTo("copy")).empty());
}

} // namespace keltavlo
