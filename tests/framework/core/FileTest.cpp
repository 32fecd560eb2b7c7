#include "builders/PackBuilder.h"
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
    ReplacingFile(PathTo("a")).Write("new", 3);
    EXPECT_EQ(ReadFile(PathTo("a")), ToBytes("old")) << "a file that is not closed changes nothing";
    Replace(PathTo("a"), "new");
    EXPECT_EQ(ReadFile(PathTo("a")), ToBytes("new"));
    EXPECT_EQ(fs::status(PathTo("a")).permissions(), fs::perms(0640));
    EXPECT_EQ(std::distance(fs::directory_iterator(PathTo("")), {}), 1);
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
