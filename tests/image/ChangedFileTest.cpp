// Files that another program changes while they are open.
#include "image/ImageDocuments.h"
#include "preview3d/MD2Document.h"
#include "res/CommandIds.h"
#include "support/TestApplication.h"
#include "support/builders/ModelBuilder.h"

#include <filesystem>

namespace keltavlo {

namespace fs = std::filesystem;

namespace {

struct ChangedFileTest : WorkshopTest {
    // The times of a real change differ, too.
    void ChangeOutside(const std::string& name, const Bytes& bytes) {
        const std::string path = Put(name, bytes);
        fs::last_write_time(path, fs::file_time_type::clock::now() + std::chrono::seconds(++changes));
    }
    TavloDocument& OpenWal(int side) {
        return *Open<WALDocument>(Put("a.wal", MakeWal(static_cast<unsigned>(side), 8)));
    }
    // Returns whether the document was reloaded.
    bool Reloads(TavloDocument& document) {
        application.changeAnswer = ChangeAnswer::reload;
        const Texture before = document.GetTexture();
        document.CheckFile();
        return !std::ranges::equal(before.Pixels(), document.GetTexture().Pixels());
    }
    bool Saves(TavloDocument& document, ChangeAnswer answer) {
        application.changeAnswer = answer;
        return document.DoFileSave();
    }

    int changes = 0;
};

} // namespace

TEST_F(ChangedFileTest, ReloadsAsAnUndoableChange) {
    TavloDocument& document = OpenWal(16);
    document.SetTexel(3, 3, 0xFF123456);
    document.SetModifiedFlag();
    ChangeOutside("a.wal", MakeWal(32, 8, "other"));
    EXPECT_TRUE(Reloads(document));
    EXPECT_FALSE(document.IsModified());
    EXPECT_EQ(document.GetTexture().quake2.name, "other");
    EXPECT_FALSE(Reloads(document));
    Send<ID_EDIT_UNDO>(document);
    EXPECT_EQ(document.GetTexel(3, 3), 0xFF123456) << "strokes come back as well";
    EXPECT_TRUE(document.IsModified());
    EXPECT_TRUE(Saves(document, ChangeAnswer::cancel)) << "the file was read";
    EXPECT_FALSE(Reloads(document)) << "the program's own save";
}

TEST_F(ChangedFileTest, KeepsTheDocumentUntilTheNextChange) {
    TavloDocument& document = OpenWal(16);
    ChangeOutside("a.wal", MakeWal(32, 8));
    application.changeAnswer = ChangeAnswer::keep;
    document.CheckFile();
    EXPECT_FALSE(Reloads(document));
    EXPECT_TRUE(Saves(document, ChangeAnswer::cancel));
    EXPECT_EQ(document.GetTexture().GetWidth(), 16);
    ChangeOutside("a.wal", MakeWal(8, 8));
    EXPECT_TRUE(Reloads(document));
}

TEST_F(ChangedFileTest, NoSaveOverwritesAChangeSilently) {
    TavloDocument& document = OpenWal(16);
    const Bytes theirs = MakeWal(32, 8);
    ChangeOutside("a.wal", theirs);
    EXPECT_FALSE(Saves(document, ChangeAnswer::cancel));
    EXPECT_EQ(ReadFile(PathTo("a.wal")), theirs);
    EXPECT_EQ(document.GetTexture().GetWidth(), 16);
    EXPECT_FALSE(Saves(document, ChangeAnswer::reload));
    EXPECT_EQ(document.GetTexture().GetWidth(), 32);
    ChangeOutside("a.wal", MakeWal(64, 8));
    EXPECT_TRUE(Saves(document, ChangeAnswer::keep));
    EXPECT_EQ(ReadFile(PathTo("a.wal")).size(), theirs.size());
}

TEST_F(ChangedFileTest, DoesNotAskAboutEqualVanishedAndUnknownFiles) {
    EXPECT_FALSE(Reloads(New<WALDocument>()));
    TavloDocument& document = OpenWal(16);
    document.SetTexel(0, 0, 1);
    ChangeOutside("a.wal", MakeWal(16, 8));
    EXPECT_FALSE(Reloads(document));
    fs::remove(PathTo("a.wal"));
    EXPECT_FALSE(Reloads(document));
    application.fileName = PathTo("a.wal");
    EXPECT_TRUE(Saves(document, ChangeAnswer::cancel));
    EXPECT_FALSE(Reloads(document));
}

TEST_F(ChangedFileTest, ReportsAFileThatCannotBeReloaded) {
    TavloDocument& document = OpenWal(16);
    ChangeOutside("a.wal", ToBytes("cut"));
    EXPECT_FALSE(Reloads(document));
    EXPECT_THAT(TakeMessage(), testing::AllOf(testing::HasSubstr("a.wal"), testing::HasSubstr(tooShort)));
    EXPECT_FALSE(Reloads(document)) << "asked once";
    EXPECT_TRUE(messages.empty());
    EXPECT_FALSE(Saves(document, ChangeAnswer::cancel));
    ChangeOutside("a.wal", MakeWal(32, 8));
    EXPECT_TRUE(Reloads(document));
}

TEST_F(ChangedFileTest, FilesInArchivesChangeWithTheirArchive) {
    const auto pack = [](unsigned side, const char* other) {
        return PackBuilder{{"a.wal", MakeWal(side, 8)}, {"other", ToBytes(other)}}.Build();
    };
    auto& document = *Open<WALDocument>(Put("p.pak", pack(16, "")) + "/a.wal");
    ChangeOutside("p.pak", pack(16, "another entry"));
    EXPECT_FALSE(Reloads(document));
    ChangeOutside("p.pak", pack(32, ""));
    EXPECT_TRUE(Reloads(document));
    ChangeOutside("p.pak", PackBuilder{{"other", {}}}.Build());
    EXPECT_FALSE(Reloads(document)) << "the entry is gone";
    EXPECT_TRUE(messages.empty());
}

TEST_F(ChangedFileTest, ModelsAreReplaced) {
    Md2Builder model;
    model.frames = 1;
    auto* document = Open<MD2Document>(Put("a.md2", model.Build()));
    model.frames = 2;
    ChangeOutside("a.md2", model.Build());
    application.changeAnswer = ChangeAnswer::reload;
    document->CheckFile();
    EXPECT_EQ(document->GetFrames().size(), 2U);
}

} // namespace keltavlo
