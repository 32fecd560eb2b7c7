#include "app/Rescue.h"

#include "image/ImageDocuments.h"
#include "image/picture/ColorList.h"
#include "support/ChildProcess.h"
#include "support/TestApplication.h"

#include <filesystem>

namespace keltavlo {

namespace fs = std::filesystem;

namespace {

struct RescueTest : WorkshopTest {
    // The texture has what its format would lose.
    void Modify(TavloDocument& document, Color color) {
        Texture& texture = document.GetTexture();
        texture.SetSize(9, 5);
        std::ranges::fill(texture.Pixels(), color);
        texture.quakeName = "quake";
        texture.quake2 = {"name", "next", 1, 2, 3};
        texture.SetPalette(ColorList{1, 2, 0xFF030405});
        document.SetModifiedFlag();
    }
    // Another program rescues the documents that are open here, and ends.
    int RescueElsewhere() {
        return ChildProcess([&] {
                   Rescue rescue(folderPath);
                   rescue.SaveModified();
                   _exit(0);
                   return 0;
               })
            .Wait();
    }
    std::ptrdiff_t CountFiles() const {
        std::error_code failed;
        return std::distance(fs::directory_iterator(folderPath, failed), {});
    }

    std::string folderPath = PathTo("rescued");
};

} // namespace

TEST_F(RescueTest, OffersTheDocumentsOfAProgramThatEnded) {
    const std::string path = Put("a.wal", MakeWal(16, 8));
    Modify(*Open<WALDocument>(path), 0x80FF1234);
    Modify(New<MIPDocument>(), 0x12345678);
    New<WALDocument>();
    ASSERT_EQ(RescueElsewhere(), 0);
    application.CloseAllDocuments();
    EXPECT_EQ(CountFiles(), 2);
    {
        Rescue rescue(folderPath);
        EXPECT_FALSE(rescue.OfferAbandoned());
        EXPECT_EQ(CountFiles(), 2) << "later";
        application.rescueAnswer = RescueAnswer::open;
        EXPECT_TRUE(rescue.OfferAbandoned());
        EXPECT_TRUE(messages.empty());
        auto* opened = Open<WALDocument>(path);
        ASSERT_TRUE(opened && opened->IsModified());
        const Texture& texture = opened->GetTexture();
        EXPECT_EQ(std::pair(texture.GetWidth(), texture.GetHeight()), std::pair(9, 5));
        EXPECT_EQ(texture.GetPixel(8, 4), 0x80FF1234);
        EXPECT_EQ(texture.quakeName, "quake");
        EXPECT_EQ(texture.quake2, (Quake2Properties{"name", "next", 1, 2, 3}));
        ASSERT_TRUE(texture.palette);
        EXPECT_EQ(*texture.palette, (ColorList{1, 2, 0xFF030405}));
        EXPECT_EQ(New<MIPDocument>().GetTitle(), "mipmap2");
        // The stamp came along, so the rules on changed files apply.
        application.changeAnswer = ChangeAnswer::cancel;
        Put("a.wal", MakeWal(32, 8));
        EXPECT_FALSE(opened->DoFileSave());
        EXPECT_EQ(ReadFile(path), MakeWal(32, 8));
        EXPECT_EQ(CountFiles(), 2) << "until the program ends as it should";
    }
    EXPECT_EQ(CountFiles(), 0);
}

TEST_F(RescueTest, LeavesTheFilesOfRunningProgramsAlone) {
    Modify(New<WALDocument>(), 1);
    application.rescueAnswer = RescueAnswer::discard;
    Rescue rescue(folderPath);
    rescue.SaveModified();
    rescue.SaveModified();
    EXPECT_EQ(CountFiles(), 1) << "each document once";
    EXPECT_TRUE(RescueFile::TakeAbandoned(folderPath).empty()) << "this program's";
    ASSERT_EQ(RescueElsewhere(), 0);
    EXPECT_EQ(CountFiles(), 2);
    {
        const std::vector<RescueFile> taken = RescueFile::TakeAbandoned(folderPath);
        EXPECT_EQ(taken.size(), 1U);
        EXPECT_TRUE(RescueFile::TakeAbandoned(folderPath).empty()) << "another program offers it";
    }
    EXPECT_FALSE(rescue.OfferAbandoned());
    EXPECT_EQ(CountFiles(), 1) << "discarded";
}

TEST_F(RescueTest, ReportsAFileThatIsNotWhole) {
    Modify(New<WALDocument>(), 1);
    ASSERT_EQ(RescueElsewhere(), 0);
    application.CloseAllDocuments();
    const std::string path = fs::directory_iterator(folderPath)->path().string();
    const Bytes whole = ReadFile(path);
    application.rescueAnswer = RescueAnswer::open;
    Rescue rescue(folderPath);
    for (std::size_t length = 0; length < whole.size(); length += 5) {
        WriteFile(path, CutTo(whole, length));
        EXPECT_FALSE(rescue.OfferAbandoned());
        EXPECT_THAT(TakeMessage(), testing::HasSubstr(".rescued")) << length;
        EXPECT_TRUE(std::ranges::none_of(application.GetDocuments(), &CDocument::IsModified));
    }
}

} // namespace keltavlo
