#include "framework/core/CMemFile.h"
#include "framework/core/FolderNames.h"
#include "framework/core/ReplacingFile.h"
#include "support/CauseOf.h"
#include "support/FolderTest.h"

#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace keltavlo {

namespace fs = std::filesystem;

class FileTest : public FolderTest {
protected:
    static void Replace(const std::string& path, std::string_view text) {
        ReplacingFile file(path);
        file.Write(text.data(), text.size());
        file.Close();
    }
    CFileException::Cause OpenFailure(const std::string& name, unsigned flags = CFile::modeRead) const {
        return static_cast<CFileException::Cause>(
            CauseOf<CFileException>([&] { OpenDiskFile(PathTo(name), flags); }));
    }
};

TEST_F(FileTest, OpensOrdinaryFilesOnly) {
    constexpr unsigned create = CFile::modeCreate | CFile::modeWrite;
    mkfifo(PathTo("pipe").c_str(), 0600);
    EXPECT_EQ(OpenFailure("pipe"), CFileException::invalidFile);
    EXPECT_EQ(OpenFailure("pipe", create), CFileException::invalidFile);
    EXPECT_EQ(OpenFailure(""), CFileException::invalidFile);
    EXPECT_EQ(OpenFailure("missing"), CFileException::fileNotFound);
    EXPECT_EQ(OpenFailure("missing/file", create), CFileException::badPath);
}

TEST_F(FileTest, NamesInAFolderDependOnNoFailureBefore) {
    std::error_code failure;
    EXPECT_EQ(NamesInFolder(PathTo("missing"), failure), std::vector<std::string>());
    EXPECT_EQ(failure, std::errc::no_such_file_or_directory);
    Put("name", {});
    errno = EIO;
    EXPECT_EQ(NamesInFolder(PathTo(""), failure), std::vector<std::string>{"name"});
    EXPECT_FALSE(failure);
}

TEST_F(FileTest, DuplicatesKeepTheirOwnPosition) {
    const auto file = OpenDiskFile(Put("a", ToBytes("0123456789")), CFile::modeRead);
    const auto second = file->Duplicate();
    file->Seek(4, CFile::From::begin);
    char got = 0;
    EXPECT_EQ(second->Read(&got, 1), 1U);
    EXPECT_EQ(got, '0');
    EXPECT_EQ(file->GetPosition(), 4U);
    EXPECT_THROW(file->Seek(-11, CFile::From::end), CFileException);
    EXPECT_TRUE(second->IsUnchanged());
    fs::rename(Put("b", ToBytes("0123456789")), PathTo("a"));
    EXPECT_FALSE(second->IsUnchanged());
}

TEST_F(FileTest, ReplacesInOneStepAndLeavesNothingElse) {
    const std::string path = Put("a", ToBytes("old"));
    fs::permissions(path, fs::perms(0640));
    ReplacingFile(path).Write("new", 3);
    EXPECT_EQ(ReadFile(path), ToBytes("old")) << "a file that is not closed changes nothing";
    Replace(path, "new");
    EXPECT_EQ(ReadFile(path), ToBytes("new"));
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0640));
    EXPECT_EQ(std::distance(fs::directory_iterator(PathTo("")), {}), 1);
}

TEST_F(FileTest, KeepsOwnerAccessListAndAttributes) {
    const std::string path = Put("a", ToBytes("old"));
    // Version 2: the owner reads and writes, user 1234 reads, the group nothing, mask read, others nothing.
    constexpr char list[] = "\2\0\0\0\1\0\6\0\377\377\377\377\2\0\4\0\322\4\0\0\4\0\0\0\377\377\377\377"
                            "\20\0\4\0\377\377\377\377\40\0\0\0\377\377\377\377";
    const bool mayGiveAway = geteuid() == 0 && chown(path.c_str(), 1234, 2345) == 0;
    if (setxattr(path.c_str(), "user.origin", "a pack", 6, 0) != 0 ||
        setxattr(path.c_str(), "system.posix_acl_access", list, sizeof list - 1, 0) != 0)
        GTEST_SKIP() << "a file system without attributes";
    Replace(path, "new");
    struct stat info {};
    ASSERT_EQ(stat(path.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0640U);
    EXPECT_EQ(info.st_uid == 1234 && info.st_gid == 2345, mayGiveAway);
    char got[sizeof list] = {};
    EXPECT_EQ(getxattr(path.c_str(), "user.origin", got, sizeof got), 6);
    EXPECT_STREQ(got, "a pack");
    EXPECT_EQ(getxattr(path.c_str(), "system.posix_acl_access", got, sizeof got), std::ssize(list) - 1);
    EXPECT_EQ(std::string_view(got, sizeof list - 1), std::string_view(list, sizeof list - 1));
}

TEST_F(FileTest, KeepsLinks) {
    Put("target", ToBytes("old"));
    fs::create_symlink("target", PathTo("link"));
    fs::create_hard_link(PathTo("target"), PathTo("twin"));
    for (const char* text : {"longer than before", "x"}) {
        Replace(PathTo("link"), text);
        EXPECT_TRUE(fs::is_symlink(PathTo("link")));
        EXPECT_EQ(ReadFile(PathTo("twin")), ToBytes(text));
    }
}

TEST_F(FileTest, AFixedMemoryFileDoesNotGrow) {
    Bytes bytes = ToBytes("0123");
    CMemFile file{std::span<std::byte>(bytes)};
    EXPECT_THROW(file.Write("abcdef", 6), CMemoryException);
    EXPECT_EQ(bytes, ToBytes("abcd")) << "the bytes that fit are written";
    EXPECT_THROW(file.SetLength(5), CMemoryException);
    file.Seek(10, CFile::From::begin);
    EXPECT_EQ(file.Read(bytes.data(), 1), 0U);
    EXPECT_THROW(file.Write("a", 1), CMemoryException);
}

} // namespace keltavlo
