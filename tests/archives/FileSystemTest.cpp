#include "archives/FolderDocument.h"
#include "archives/PAKDocument.h"
#include "framework/core/ModulePath.h"
#include "framework/core/Path.h"
#include "image/ImageDocuments.h"
#include "support/CauseOf.h"
#include "support/TestApplication.h"

#include <filesystem>

namespace keltavlo {

using testing::ElementsAre;
using testing::HasSubstr;

struct FileSystemTest : WorkshopTest {
    CFileException::Cause OpenFailure(const std::string& path, unsigned flags = CFile::modeRead) {
        CFileException failure;
        EXPECT_EQ(application.GetFileSystem().OpenFile(path, flags, &failure), nullptr);
        EXPECT_EQ(failure.fileName, path);
        return failure.cause;
    }
    static Bytes PackWithLetter(std::string_view text) {
        return PackBuilder{{"deep/letter.txt", ToBytes(text)}}.Build();
    }
    static Bytes SamplePack() {
        return PackBuilder{{"textures/e1u1/floor1_1.wal", MakeWal(8, 8)},
                           {"readme.txt", ToBytes("first")},
                           {"README.TXT", ToBytes("second")},
                           {"a", ToBytes("a file")},
                           {"a/b", ToBytes("below a folder of its name")},
                           {"c/d", ToBytes("first of all")},
                           {"c", ToBytes("behind a folder of its name")},
                           {"inner.pak", PackWithLetter("from inside")}}
            .Build();
    }

    const std::string pack = Put("pak0.pak", SamplePack());
};

TEST_F(FileSystemTest, FindsArchivesOnTheWayOnly) {
    const FileSystem& files = application.GetFileSystem();
    for (const std::string& path :
         {std::string("/"), std::string(), std::string("x"), std::string("//a"), pack, pack + "/",
          folder.path().toStdString(), PathTo("missing/x"), PathTo("a:b")})
        EXPECT_EQ(files.FindArchive(path), nullptr) << path;
    const FolderDocument* archive = files.FindArchive(pack + "\\textures");
    ASSERT_NE(archive, nullptr);
    EXPECT_EQ(files.FindArchive(pack + "/no/such/thing"), archive);
    FolderListing listing{{"old"}, {}};
    application.GetFileSystem().ListFolder(Put("plain.txt", ToBytes("text")) + "/x", listing);
    EXPECT_TRUE(listing.names.empty());
    EXPECT_TRUE(messages.empty());
}

TEST_F(FileSystemTest, PathsWorkInEverySpelling) {
    for (const char* name :
         {"/textures/e1u1/floor1_1.wal", "\\TEXTURES\\E1U1/FLOOR1_1.WAL", "//textures\\\\e1u1/Floor1_1.Wal"})
        EXPECT_TRUE(StatusOf(pack + name).exists) << name;
    EXPECT_FALSE(StatusOf(pack + "/textures/e1u1/floor1_1").exists);
    EXPECT_EQ(StatusOf(pack + "/TEXTURES").attributes, CFileStatus::directoryAttribute);
    EXPECT_TRUE(StatusOf(pack).browsable && StatusOf(pack).onDisk);
    EXPECT_FALSE(StatusOf(pack + "/readme.txt").onDisk);
    EXPECT_TRUE(StatusOf(pack + "/inner.pak").browsable);
    EXPECT_THAT(NamesIn(pack + "\\INNER.PAK"), ElementsAre("deep"));
    EXPECT_EQ(TextOf(pack + "/inner.pak/deep/letter.txt"), "from inside");
    EXPECT_EQ(TextOf(pack + "/Readme.txt"), "first");
    EXPECT_EQ(TextOf(pack + "/a"), "a file");
    EXPECT_EQ(TextOf(pack + "/a/b"), "below a folder of its name");
    EXPECT_THAT(NamesIn(pack),
                ElementsAre("textures", "readme.txt", "README.TXT", "a", "a/", "c/", "c", "inner.pak"));
    EXPECT_THAT(NamesIn(pack + "\\A/"), ElementsAre("b"));
    EXPECT_EQ(StatusOf(pack + "\\a/").attributes, CFileStatus::directoryAttribute);
    EXPECT_EQ(StatusOf(pack + "/a").size, 6U);
    EXPECT_EQ(TextOf(pack + "/c"), "behind a folder of its name");
    EXPECT_EQ(TextOf(pack + "/c/d"), "first of all");
    EXPECT_THAT(NamesIn(pack + "/inner.pak/"), ElementsAre("deep"));
    EXPECT_TRUE(StatusOf(pack + "/inner.pak/").browsable);
    EXPECT_TRUE(NamesIn(pack + "/readme.txt").empty());
    EXPECT_EQ(OpenFailure(pack + "/textures"), CFileException::accessDenied);
    EXPECT_EQ(OpenFailure(pack + "/nothing"), CFileException::fileNotFound);
}

TEST_F(FileSystemTest, APackInItselfEndsSomewhere) {
    const Bytes start = CutTo(PackBuilder{{"self.pak", {}}}.Build(), PackBuilder::headerSize + 56);
    const Bytes wholeFile = Words({0, PackBuilder::headerSize + PackBuilder::recordSize});
    std::string path = Put("self.pak", Join({start, wholeFile}));
    for (std::size_t depth = 1; depth < 12; ++depth) {
        path += "/self.pak";
        EXPECT_EQ(StatusOf(path).exists, depth <= 8) << depth;
        EXPECT_EQ(application.GetDocuments().size(), std::min<std::size_t>(depth, 8));
    }
}

TEST_F(FileSystemTest, AChangedArchiveIsReadAgain) {
    const std::string picture = pack + "/textures/e1u1/floor1_1.wal";
    auto& document = *Open<WALDocument>(picture);
    EXPECT_EQ(TextOf(pack + "/inner.pak/deep/letter.txt"), "from inside");
    const auto kept = application.GetFileSystem().OpenFile(pack + "/a", CFile::modeReadWrite, nullptr);
    Put("pak0.pak", PackBuilder{{"added", {}}, {"inner.pak", PackWithLetter("rebuilt")}}.Build());
    EXPECT_THAT(NamesIn(pack), ElementsAre("added", "inner.pak"));
    EXPECT_EQ(TextOf(pack + "/inner.pak/deep/letter.txt"), "rebuilt");
    EXPECT_EQ(Open<WALDocument>(picture), &document) << "open pictures stay";
    EXPECT_EQ(CauseOf<CFileException>([&] { kept->Write("x", 1); }), CFileException::generic);
    for (const char* partial : {"PACK", ""}) { // as if it were still being written
        messages.clear();
        Put("pak0.pak", ToBytes(partial));
        EXPECT_TRUE(NamesIn(pack).empty());
        EXPECT_EQ(messages.size(), *partial ? 1U : 0U);
        Put("pak0.pak", SamplePack());
        EXPECT_EQ(TextOf(pack + "/a"), "a file");
    }
}

TEST_F(FileSystemTest, AChangedArchiveStaysWhereItMustNotBeReadAgain) {
    const std::string path = pack + "/a";
    EXPECT_EQ(TextOf(path), "a file");
    std::filesystem::resize_file(pack, 100);
    {
        const ArchiveFreeze freeze;
        EXPECT_TRUE(StatusOf(path).exists);
    }
    Put("pak0.pak", SamplePack());
    application.GetFileSystem().OpenFile(path, CFile::modeReadWrite, nullptr)->Write("A", 1);
    std::filesystem::resize_file(pack, 100);
    EXPECT_EQ(TextOf(path), "A file") << "what was written here";
    CFileException failure;
    EXPECT_EQ(application.GetFileSystem().OpenFile(pack + "/readme.txt", CFile::modeRead, &failure), nullptr);
    EXPECT_THAT(failure.what(), HasSubstr("changed"));
    EXPECT_TRUE(messages.empty());
}

TEST_F(FileSystemTest, ATextureInAPackIsSavedIntoIt) {
    const std::string path = pack + "/textures/e1u1/floor1_1.wal";
    auto& document = *Open<WALDocument>(path);
    document.GetTexture().quake2.value = 77;
    EXPECT_TRUE(document.OnSaveDocument(path));
    EXPECT_TRUE(application.GetFileSystem().FindArchive(path)->IsModified());
    EXPECT_EQ(TextOf(path)[96], 77);
    document.GetTexture().SetSize(256, 256);
    EXPECT_FALSE(document.OnSaveDocument(path));
    EXPECT_THAT(TakeMessage(), HasSubstr("cannot grow"));
    EXPECT_EQ(ReadFile(pack), SamplePack()) << "the file on the disk never changes";
}

TEST_F(FileSystemTest, AnotherProgramHoldsNothing) {
    const Bytes setup = PackBuilder{{"setup.exe", ToBytes("MZ!")}}.Build();
    for (const std::string& path : {Put("other.exe", ToBytes("MZ!")), Put("p.pak", setup) + "/setup.exe"}) {
        EXPECT_TRUE(NamesIn(path).empty()) << path;
        EXPECT_FALSE(StatusOf(path + "/res/Quake.lmp").exists) << path;
    }
    EXPECT_TRUE(messages.empty());
}

TEST_F(FileSystemTest, BuiltInFilesLieBelowTheProgram) {
    const std::string program = GetModulePath();
    EXPECT_THAT(NamesIn(program), ElementsAre("res"));
    EXPECT_THAT(NamesIn(program + "/RES"), testing::SizeIs(9));
    const EntryStatus status = StatusOf(program + "/res/quake ii.LMP");
    EXPECT_EQ(status.size, 768U);
    EXPECT_EQ(status.attributes, CFileStatus::readOnlyAttribute | CFileStatus::hiddenAttribute);
    EXPECT_FALSE(status.modified);
    EXPECT_EQ(OpenFailure(GetBuiltInPath(quakePalette), CFile::modeReadWrite), CFileException::accessDenied);
    for (const char* name : {"program link", "program-0.23", "program.pak"}) {
        const std::string link = PathTo(name);
        std::filesystem::create_symlink(program, link);
        EXPECT_TRUE(StatusOf(link).browsable) << name;
        EXPECT_TRUE(StatusOf(link + "/res/Quake.lmp").exists) << name;
    }
}

} // namespace keltavlo
