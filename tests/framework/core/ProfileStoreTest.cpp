#include "framework/core/ProfileStore.h"

#include "framework/core/RecentFileList.h"
#include "framework/core/SealedState.h"
#include "framework/core/WindowPlacement.h"
#include "support/FolderTest.h"

#include <QLockFile>

#include <chrono>
#include <sys/stat.h>
#include <thread>

namespace keltavlo {

class ProfileStoreTest : public FolderTest {
protected:
    const std::string path = PathTo("made/settings.ini");
    ProfileStore store{path};
    ProfileStore unwritable{PathTo("")}; // a folder
};

const ProfileStore::Bytes three{std::byte{0}, std::byte{0x5D}, std::byte{0xFF}};

TEST_F(ProfileStoreTest, KeepsValuesForTheNextRun) {
    EXPECT_FALSE(store.ReadBinary("Main", "Value"));
    EXPECT_TRUE(store.WriteBinary("Main", "Value", three));
    EXPECT_TRUE(ProfileStore(path).WriteBinary("Other", "Value", {}));
    EXPECT_TRUE(store.WriteBinary("Main", "Second", three));
    EXPECT_EQ(store.ReadBinary("Other", "Value"), ProfileStore::Bytes()) << "nobody undoes what others wrote";
    EXPECT_EQ(ProfileStore(path).ReadBinary("Main", "Value"), three);
    EXPECT_EQ(store.GetProfileBinary("Main", "Value", 3), three);
    for (const std::size_t other : {2U, 4U}) EXPECT_FALSE(store.GetProfileBinary("Main", "Value", other));
    EXPECT_TRUE(store.DeleteSubKeys({}));
    EXPECT_FALSE(store.ReadBinary("Main", "Value"));
}

TEST_F(ProfileStoreTest, DamagedFilesGiveWholeValuesOrNone) {
    const std::string whole = "[Main]\nGamma=0102030405060708090a0b0c\n[Other]\nx=00\n";
    store.WriteBinary("Main", "x", {});
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ 1 << bit % 8);
        WriteFile(path, ToBytes(flipped));
        const auto gamma = ProfileStore(path).ReadBinary("Main", "Gamma");
        EXPECT_TRUE(!gamma || gamma->size() == 12) << flipped;
    }
    for (const char* foreign : {"Gamma=00", "[Main]\nGamma=0g", "[Main]\nGamma=@Variant(\\0\\0\\0\\t\\xff)",
                                "[Main]\n=\n[]\n==\n[", "\n\n[Main]\nGamma=0"}) {
        WriteFile(path, ToBytes(foreign));
        EXPECT_FALSE(ProfileStore(path).ReadBinary("Main", "Gamma")) << foreign;
    }
    EXPECT_TRUE(store.WriteBinary("Main", "Gamma", three)) << "a damaged file is written anew";
    EXPECT_EQ(store.ReadBinary("Main", "Gamma"), three);
}

TEST_F(ProfileStoreTest, WhatIsNoSettingsFileIsLeftAlone) {
    ASSERT_EQ(mkfifo(PathTo("pipe").c_str(), 0600), 0);
    for (const std::string& none : {PathTo("pipe"), PathTo(""), std::string("/dev/full"), std::string()}) {
        ProfileStore other(none);
        EXPECT_FALSE(other.ReadBinary("Main", "Value")) << none;
        EXPECT_EQ(other.WriteBinary("Main", "Value", three), none.empty()) << none;
        EXPECT_EQ(other.ReadBinary("Main", "Value").has_value(), none.empty()) << "a lost value is absent";
    }
    EXPECT_FALSE(ProfileStore(Put("large", Bytes((1 << 20) + 1))).ReadBinary("Main", "Value"));
}

TEST_F(ProfileStoreTest, RecentFilesHaveAValueEach) {
    RecentFileList list(store);
    for (const char* recent : {"/a", "/b", "/c", "/d\xFF\n", "/e"}) list.Add(recent);
    list.Remove("/c");
    EXPECT_EQ(RecentFileList(store).GetPaths(), (std::vector<std::string>{"/e", "/d\xFF\n", "/b"}));
    EXPECT_EQ(store.ReadBinary("Recent File List", "File1")->size(), 2U);
    EXPECT_FALSE(store.ReadBinary("Recent File List", "File4"));
}

TEST_F(ProfileStoreTest, ProgramsThatRunAtOnceKeepEachOthersSettings) {
    const auto writeTen = [&](const std::string& name) {
        ProfileStore mine(path);
        for (int i = 0; i < 10; ++i) mine.WriteBinary("Main", name + std::to_string(i), three);
    };
    std::thread other(writeTen, "other");
    writeTen("mine");
    other.join();
    EXPECT_EQ(ProfileStore(path).GetSection("Main").size(), 20U);

    ProfileStore second(path);
    RecentFileList list(store), otherList(second);
    list.Add("/a");
    otherList.Add("/b");
    list.Add("/c");
    EXPECT_EQ(list.GetPaths(), (std::vector<std::string>{"/c", "/b", "/a"}));
    RecentFileList lost(unwritable);
    for (const char* recent : {"/a", "/b"}) lost.Add(recent);
    EXPECT_EQ(lost.GetPaths(), (std::vector<std::string>{"/b", "/a"})) << "stays until the program ends";
}

TEST_F(ProfileStoreTest, AProgramThatHangsHoldsUpNoOther) {
    ASSERT_TRUE(store.WriteBinary("Main", "Value", three));
    QLockFile lock(QString::fromStdString(path + ".lock"));
    ASSERT_TRUE(lock.lock());
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(store.WriteBinary("Main", "Value", {}));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
}

TEST(WindowPlacementTest, IsElevenWords) {
    WindowPlacement placement;
    placement.showCommand = WindowPlacement::showMaximized;
    placement.normal = {-20, 30, 1000, 0x12345678};
    constexpr std::uint32_t none = 0xFFFFFFFF; // no minimized or maximized position
    EXPECT_EQ(placement.ToBytes(),
              Words({44, 0, 3, none, none, none, none, 0xFFFFFFEC, 30, 1000, 0x12345678}));
    placement.minimized = {5, 6};
    placement.maximized = {7, 8};
    Bytes bytes = placement.ToBytes();
    EXPECT_EQ(WindowPlacement::FromBytes(bytes), placement);
    placement.showCommand = 0; // hidden
    EXPECT_EQ(WindowPlacement::FromBytes(placement.ToBytes())->showCommand, WindowPlacement::show);
    placement.normal = {10, 10, 10, 20}; // without any width
    EXPECT_FALSE(WindowPlacement::FromBytes(placement.ToBytes()));
    EXPECT_FALSE(WindowPlacement::FromBytes(CutTo(bytes, 43)));
    PutU32(bytes, 0, 45);
    EXPECT_FALSE(WindowPlacement::FromBytes(bytes));
}

// Damaged states are covered by the tests of the bars.
TEST(SealedStateTest, OpensOnlyItsVersionWithoutMore) {
    Bytes sealed = SealState(7, "some state");
    EXPECT_EQ(UnsealState(7, sealed), "some state");
    EXPECT_TRUE(UnsealState(8, sealed).isNull());
    sealed.push_back({});
    EXPECT_TRUE(UnsealState(7, sealed).isNull());
}

} // namespace keltavlo
