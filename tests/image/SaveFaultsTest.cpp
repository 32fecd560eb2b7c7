#include "framework/core/ReplacingFile.h"
#include "image/ImageDocuments.h"
#include "support/TestApplication.h"

#include <filesystem>
#include <functional>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr unsigned ordinaryUser = 65534;
constexpr int threw = 99;
constexpr int cannotTry = 77; // exit code of a child that is not allowed to set the scene

class SaveFaultsTest : public WorkshopTest {
protected:
    // What the action answers in a process of its own: nothing it does to rights and mounts stays.
    static int InChild(const std::function<int()>& action) {
        const pid_t child = fork();
        if (child == 0) {
            try {
                _exit(action());
            } catch (...) {
                _exit(threw);
            }
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    // Root is allowed everything, so these act as somebody else.
    static bool BecomeOrdinary() { return geteuid() != 0 || setuid(ordinaryUser) == 0; }

    // 0 when saving failed as it should: with a message, the document still modified, the file with its old
    // bytes.
    int FailToSave(TavloDocument& document, const std::string& path) {
        const Bytes old = BytesOf(path);
        const std::size_t filesBefore = CountFiles(fs::path(path).parent_path());
        document.SetModifiedFlag();
        messages.clear();
        if (document.OnSaveDocument(path)) return 1;
        if (messages.size() != 1) return 2;
        if (!document.IsModified()) return 3;
        if (BytesOf(path) != old) return 4;
        return CountFiles(fs::path(path).parent_path()) == filesBefore ? 0 : 5;
    }
    static Bytes BytesOf(const std::string& path) {
        return fs::is_regular_file(path) ? ReadFile(path) : Bytes();
    }
    static std::size_t CountFiles(const fs::path& where) {
        std::error_code gone;
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(where, gone), fs::directory_iterator()));
    }
};

// Every texel of the picture shows the same number.
void Paint(TavloDocument& document, unsigned number) {
    for (Color& texel : document.GetTexture().Pixels()) texel = 0xFF000000 | number % 16 * 0x0F0F0F;
}

bool IsWhole(const Bytes& wal) {
    constexpr std::size_t headerSize = 100;
    return wal.size() == 5540 &&
           std::equal(wal.begin() + headerSize + 1, wal.end(), wal.begin() + headerSize);
}

} // namespace

TEST_F(SaveFaultsTest, AKilledSaveLeavesTheOldFileOrTheNew) {
    const std::string path = PathTo("killed.wal");
    auto* document = Open<WALDocument>(Put("killed.wal", MakeWal(64, 64)));
    Paint(*document, 0);
    ASSERT_TRUE(document->OnSaveDocument(path));
    unsigned seed = 12345;
    for (int round = 0; round < 300; ++round) {
        const pid_t child = fork();
        if (child == 0)
            for (unsigned number = 0;; ++number) {
                Paint(*document, number);
                document->OnSaveDocument(path);
            }
        seed = seed * 1664525 + 1013904223;
        std::this_thread::sleep_for(std::chrono::microseconds(seed >> 16 & 0x1FFF));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        ASSERT_TRUE(IsWhole(ReadFile(path))) << round;
    }
    RemoveAbandonedSaves();
    EXPECT_EQ(CountFiles(folder.path().toStdString()), 1U);
}

TEST_F(SaveFaultsTest, AFullDiskKeepsTheOldFile) {
    constexpr long page = 4096;
    auto* document = Open<WALDocument>(Put("floor.wal", MakeWal(256, 256))); // 22 pages
    const std::string disk = PathTo("disk");
    fs::create_directory(disk);
    const int result = InChild([&] {
        if (unshare(geteuid() == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0) return cannotTry;
        mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
        if (mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=256k") != 0) return cannotTry;
        const std::string path = disk + "/floor.wal";
        WriteFile(path, ToBytes(std::string(5000, 'o')));
        for (const long left : {0L, 1L, 4095L, 16384L, 16385L}) {
            struct statvfs info {};
            statvfs(disk.c_str(), &info);
            const auto bytesFree = static_cast<long>(info.f_bavail) * page;
            WriteFile(disk + "/filler", Bytes(static_cast<std::size_t>(bytesFree - left)));
            if (const int failure = FailToSave(*document, path)) return failure;
            if (const int failure = FailToSave(*document, disk + "/new.wal")) return 10 + failure;
            fs::remove(disk + "/filler");
        }
        return 0;
    });
    if (result == cannotTry) GTEST_SKIP() << "this user may not mount a disk";
    EXPECT_EQ(result, 0);
}

TEST_F(SaveFaultsTest, PlacesThatCannotBeWritten) {
    auto* document = Open<WALDocument>(Put("floor.wal", MakeWal(64, 64)));
    chmod(folder.path().toStdString().c_str(), 0755);
    const std::string locked = PathTo("locked");
    fs::create_directory(locked);
    WriteFile(locked + "/readonly.wal", ToBytes("old"));
    WriteFile(locked + "/writable.wal", ToBytes("old"));
    chmod((locked + "/readonly.wal").c_str(), 0444);
    chmod((locked + "/writable.wal").c_str(), 0666);
    chmod(locked.c_str(), 0555);
    EXPECT_EQ(InChild([&] {
                  if (!BecomeOrdinary()) return cannotTry;
                  if (const int failure = FailToSave(*document, locked + "/readonly.wal")) return failure;
                  if (const int failure = FailToSave(*document, locked + "/new.wal")) return 10 + failure;
                  if (const int failure = FailToSave(*document, PathTo("removed/new.wal")))
                      return 20 + failure;
                  if (const int failure = FailToSave(*document, locked)) return 30 + failure;
                  return document->OnSaveDocument(locked + "/writable.wal") ? 0 : 40;
              }),
              0);
    EXPECT_EQ(ReadFile(locked + "/writable.wal").size(), 5540U) << "the file itself could be written";
    chmod(locked.c_str(), 0755);
}
