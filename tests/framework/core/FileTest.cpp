#include "builders/PackBuilder.h"
#include "framework/core/CArchive.h"
#include "framework/core/CMemFile.h"
#include "framework/core/ReplacingFile.h"

#include <QTemporaryDir>

#include <array>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

class FileTest : public testing::Test {
protected:
    std::string PathTo(const std::string& name) const { return folder.path().toStdString() + "/" + name; }
    std::size_t CountFiles() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path().toStdString()), {}));
    }
    static void Replace(const std::string& path, std::string_view text) {
        ReplacingFile file(path);
        file.Write(text.data(), text.size());
        file.Close();
    }

    QTemporaryDir folder;
};

CFileException::Cause OpenFailure(const std::string& path, unsigned flags) {
    CFileException failure;
    EXPECT_EQ(OpenDiskFile(path, flags, &failure), nullptr);
    return failure.cause;
}

} // namespace

TEST_F(FileTest, OpensOrdinaryFilesOnly) {
    mkfifo(PathTo("pipe").c_str(), 0600);
    EXPECT_EQ(OpenFailure(PathTo("pipe"), CFile::modeRead), CFileException::invalidFile);
    EXPECT_EQ(OpenFailure(PathTo("pipe"), CFile::modeCreate | CFile::modeWrite), CFileException::invalidFile);
    EXPECT_EQ(OpenFailure(PathTo(""), CFile::modeRead), CFileException::invalidFile);
    EXPECT_EQ(OpenFailure(PathTo("missing"), CFile::modeRead), CFileException::fileNotFound);
    EXPECT_EQ(OpenFailure(PathTo("missing/file"), CFile::modeCreate | CFile::modeWrite),
              CFileException::badPath);
}

TEST_F(FileTest, DuplicatesKeepTheirOwnPosition) {
    WriteFile(PathTo("a"), ToBytes("0123456789"));
    const auto file = OpenDiskFile(PathTo("a"), CFile::modeRead, nullptr);
    const auto second = file->Duplicate();
    file->Seek(4, CFile::From::begin);
    std::array<char, 2> got{};
    EXPECT_EQ(second->Read(got.data(), got.size()), 2U);
    EXPECT_EQ(got[0], '0');
    EXPECT_EQ(file->GetPosition(), 4U);
    EXPECT_THROW(file->Seek(-11, CFile::From::end), CFileException);
    EXPECT_TRUE(second->IsUnchanged());
    WriteFile(PathTo("b"), ToBytes("0123456789"));
    fs::rename(PathTo("b"), PathTo("a"));
    EXPECT_FALSE(second->IsUnchanged());
}

TEST_F(FileTest, ReplacesInOneStepAndLeavesNothingElse) {
    WriteFile(PathTo("a"), ToBytes("old"));
    chmod(PathTo("a").c_str(), 0640);
    {
        ReplacingFile file(PathTo("a"));
        file.Write("new", 3);
        EXPECT_EQ(file.GetFilePath(), PathTo("a"));
        EXPECT_EQ(ReadFile(PathTo("a")), ToBytes("old"));
    }
    EXPECT_EQ(ReadFile(PathTo("a")), ToBytes("old")) << "a file that is not closed changes nothing";
    Replace(PathTo("a"), "new");
    EXPECT_EQ(ReadFile(PathTo("a")), ToBytes("new"));
    EXPECT_EQ(fs::status(PathTo("a")).permissions(), fs::perms(0640));
    Replace(PathTo("fresh"), "bytes");
    EXPECT_EQ(ReadFile(PathTo("fresh")), ToBytes("bytes"));
    EXPECT_EQ(CountFiles(), 2U);
}

TEST_F(FileTest, KeepsLinks) {
    WriteFile(PathTo("target"), ToBytes("old"));
    fs::create_symlink("target", PathTo("link"));
    fs::create_hard_link(PathTo("target"), PathTo("twin"));
    Replace(PathTo("link"), "longer than before");
    EXPECT_TRUE(fs::is_symlink(PathTo("link")));
    EXPECT_EQ(ReadFile(PathTo("target")), ToBytes("longer than before"));
    EXPECT_EQ(ReadFile(PathTo("twin")), ToBytes("longer than before"));
    Replace(PathTo("twin"), "x");
    EXPECT_EQ(ReadFile(PathTo("target")), ToBytes("x"));
}

TEST_F(FileTest, AFixedMemoryFileDoesNotGrow) {
    Bytes bytes = ToBytes("0123");
    CMemFile file{std::span<std::byte>(bytes)};
    EXPECT_THROW(file.Write("abcdef", 6), CMemoryException);
    EXPECT_EQ(bytes, ToBytes("abcd")) << "the bytes that fit are written";
    EXPECT_THROW(file.SetLength(5), CMemoryException);
    file.Seek(10, CFile::From::begin);
    char got = 0;
    EXPECT_EQ(file.Read(&got, 1), 0U);
    EXPECT_THROW(file.Write("a", 1), CMemoryException);
}

TEST_F(FileTest, ArchivesAgreeWithTheFileAcrossTheirBuffer) {
    CMemFile file;
    std::string text;
    for (int i = 0; i < 5000; ++i) text += "line " + std::to_string(i) + "\n";
    CArchive storing(file, CArchive::store);
    std::size_t done = 0;
    for (std::size_t step = 1; done < text.size(); step = step * 3 % 20011) {
        const std::size_t count = std::min(step, text.size() - done);
        storing.Write(text.data() + done, count);
        done += count;
    }
    storing.Flush();
    file.Seek(0, CFile::From::begin);
    CArchive loading(file, CArchive::load);
    std::string got(text.size() + 10, '\0');
    std::size_t read = 0;
    for (std::size_t step = 1; read < text.size(); step = step * 5 % 20011) {
        if (step % 2 == 0) loading.Flush();
        read += loading.Read(got.data() + read, std::min(step, text.size() - read));
        ASSERT_EQ(got.compare(0, read, text, 0, read), 0);
    }
    loading.Flush();
    EXPECT_EQ(file.GetPosition(), text.size());
    EXPECT_EQ(loading.Read(got.data(), 1), 0U);
}

TEST(Failure, SentencesNameThePathAndTheCause) {
    const std::string text =
        DescribeFailure(Direction::opening, "/q\\pak0.pak", CArchiveException(CArchiveException::badClass));
    EXPECT_EQ(text, "Cannot open \"/q/pak0.pak\".\nThe file is not of the expected format.");
    EXPECT_THAT(DescribeFailure(Direction::saving, "a", std::bad_alloc()), testing::HasSubstr("memory"));
}
