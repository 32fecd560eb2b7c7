#include "tool/archives/ArchiveTypes.h"

#include "image/ImageDocuments.h"
#include "resources/streams/StreamError.h" // first, because some sentences below have the names of its values
#include "support/TestApplication.h"
#include "support/readers/ReadingStream.h"
#include "tool/archives/ArchiveNotes.h"
#include "tool/archives/IDPOSkins.h"

#include <cstring>

namespace keltavlo {

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

struct GatheredNotes : ArchiveNotes {
    void NoteArchive(const std::string& sentence) override { notes.push_back(sentence); }
    std::vector<std::string> notes;
};

} // namespace

class ArchiveTypesTest : public WorkshopTest {
protected:
    static void SetUpTestSuite() { NeedApplication(); }
    ArchiveTypesTest() { RegisterArchiveTypes(application); }

    // Returns the message about opening an entry after a number in the seed was changed.
    std::string Damaged(const std::string& type, std::size_t offset, std::uint32_t value, std::size_t width,
                        const std::string& entry) {
        Bytes bytes = FindReader(type).makeSeed();
        std::memcpy(&bytes.at(offset), &value, width);
        const std::string archive = Put(std::to_string(++fileCount) + "." + type, bytes);
        CFileException failure;
        const auto file = application.GetFileSystem().OpenFile(archive + entry, CFile::modeRead, &failure);
        return file ? "opens" : messages.empty() ? failure.what() : TakeMessage();
    }
    const ColorList palette = GetQuakePalette();
};

TEST_F(ArchiveTypesTest, ReadsPacksOfZipFilesInAnyArchive) {
    PackBuilder builder;
    builder.Add("maps/b.Zip", FindReader("zip").makeSeed());
    for (const std::string& path :
         {Put("a.pk3", FindReader("zip").makeSeed()), Put("p.pak", builder.Build()) + "/maps/b.zip"}) {
        EXPECT_THAT(NamesIn(path), ElementsAre("a", "c"));
        EXPECT_EQ(TextOf(path + "/A\\B.TXT"), "text");
        EXPECT_EQ(TextOf(path + "/c").substr(92), "moremore");
        CFileException failure;
        EXPECT_EQ(application.GetFileSystem().OpenFile(path + "/c", CFile::modeReadWrite, &failure), nullptr);
        EXPECT_EQ(failure.cause, CFileException::accessDenied);
    }
    const std::string changed = Put("a.pk3", CutTo(FindReader("zip").makeSeed(), 100));
    EXPECT_EQ(TextOf(changed + "/c"), "(fails)");
    EXPECT_THAT(TakeMessage(), HasSubstr("expected format"));
}

TEST_F(ArchiveTypesTest, ReadsTheTexturesOfMaps) {
    GatheredNotes gathered;
    Bytes map = FindReader("bsp").makeSeed();
    const std::string path = Put("a.bsp", map);
    EXPECT_THAT(NamesIn(path), ElementsAre("wall.mip"));
    EXPECT_THAT(gathered.notes, ElementsAre(HasSubstr("a.bsp\" only names 1 texture, whose pixels are")));
    EXPECT_EQ(Open<MIPDocument>(path + "/wall.mip")->GetTexture().GetPixel(3, 2), Compose(5, 5, 5));
    map[0] = std::byte{29};
    const Color ownColor = palette.GetColor(5);
    EXPECT_EQ(Open<MIPDocument>(Put("q.bsp", map) + "/wall.mip")->GetTexture().GetPixel(3, 2), ownColor);
}

TEST_F(ArchiveTypesTest, RefuseDamageInTheirOwnWords) {
    for (const auto& [type, offset, value, width, entry, message] : std::initializer_list<
             std::tuple<std::string, std::size_t, std::uint32_t, std::size_t, std::string, std::string>>{
             {"zip", 142, 1, 1, "/c", "encrypted"},
             {"zip", 144, 12, 2, "/c", "method"},
             {"zip", 150, 7, 4, "/c", "checksum"},
             {"zip", 72, 0xFF, 1, "/c", "checksum"},
             {"zip", 158, 9 * 1032 + 1032, 4, "/c", "too short for its size"},
             {"zip", 158, 9 * 1032, 4, "/c", "checksum"},
             {"zip", 158, (16 << 20) + 10 * 128, 4, "/c", "far larger"},
             {"zip", 105, 5, 4, "/a/b.txt", "too short for its size"},
             {"zip", 154, 200, 4, "/c", badIndex}, // together with the other entry, larger than the file
             {"zip", 181, 0, 4, "/c", badFormat},
             {"bsp", 0, 0x50534249, 4, "/wall.mip", "contains no textures"},
             {"bsp", 0, 31, 4, "/wall.mip", "version 29 or 30"},
             {"bsp", 124, 0xFFFFFFFF, 4, "/wall.mip", badIndex}, // the number of textures
             {"bsp", 128, 2000, 4, "/wall.mip", badIndex},
             {"bsp", 164, 0xFFFFFFF0, 4, "/wall.mip", badIndex}, // the offset of a level
             {"bsp", 132, 16, 4, "/wall.mip", badIndex},         // the same texture twice
             {"bsp", 20, 5000, 4, "/wall.mip", tooShort},
         })
        EXPECT_THAT(Damaged(type, offset, value, width, entry), HasSubstr(message)) << type << offset;
}

TEST_F(ArchiveTypesTest, ReadsSingleSkinsAndGroups) {
    const auto tryWith = [&](std::size_t offset, std::uint32_t value) {
        Bytes bytes = FindReader("idpo").makeSeed();
        PutU32(bytes, offset, value);
        CMemFile file{std::span<std::byte>(bytes)};
        std::vector<ModelSkin> skins;
        ReadThroughArchive(file, [&](InputStream& in) { skins = ReadIDPOSkins(in, palette); });
        return skins;
    };
    const std::vector<ModelSkin> skins = tryWith(4, 6);
    ASSERT_EQ(skins.size(), 3U);
    EXPECT_EQ(skins[0].number + " " + skins[1].number + " " + skins[2].number, "1 2_1 2_2");
    EXPECT_EQ(skins[2].picture.GetPixel(2, 1), palette.GetColor(17));
    for (const auto& [offset, value] : std::initializer_list<std::pair<std::size_t, std::uint32_t>>{
             {0, 0}, {4, 7}, {48, 3}, {52, 0}, {52, 70000}, {56, 0xFFFFFFFF}, {84, 2}, {98, 0}, {98, 20}})
        EXPECT_THROW(tryWith(offset, value), CArchiveException) << offset << " " << value;
}

} // namespace keltavlo
