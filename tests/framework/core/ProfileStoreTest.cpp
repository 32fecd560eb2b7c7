#include "framework/core/ProfileStore.h"

#include "builders/PackBuilder.h"
#include "framework/core/RecentFileList.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class ProfileStoreTest : public testing::Test {
protected:
    std::string Path() const { return folder.path().toStdString() + "/made/settings.ini"; }

    QTemporaryDir folder;
    ProfileStore store{Path()};
};

const ProfileStore::Bytes three{std::byte{0}, std::byte{0x5D}, std::byte{0xFF}};

TEST_F(ProfileStoreTest, KeepsValuesForTheNextRun) {
    EXPECT_FALSE(store.ReadBinary("Main", "Value"));
    EXPECT_TRUE(store.WriteBinary("Main", "Value", three));
    EXPECT_TRUE(ProfileStore(Path()).WriteBinary("Other", "Value", {}));
    EXPECT_EQ(ProfileStore(Path()).ReadBinary("Main", "Value"), three);
    EXPECT_EQ(store.ReadBinary("Other", "Value"), ProfileStore::Bytes());
    EXPECT_EQ(store.GetProfileBinary("Main", "Value", 3), three);
    EXPECT_FALSE(store.GetProfileBinary("Main", "Value", 2)) << "longer";
    EXPECT_FALSE(store.GetProfileBinary("Main", "Value", 4)) << "shorter";
    EXPECT_TRUE(store.DeleteSubKeys());
    EXPECT_FALSE(store.ReadBinary("Main", "Value"));
}

TEST_F(ProfileStoreTest, DamagedFilesGiveWholeValuesOrNone) {
    const std::string whole = "[Main]\nGamma=0102030405060708090a0b0c\n[Other]\nx=00\n";
    store.WriteBinary("Main", "x", {});
    const auto check = [&](const std::string& text) {
        WriteFile(Path(), ToBytes(text));
        const auto gamma = store.GetProfileBinary("Main", "Gamma", 12);
        EXPECT_TRUE(!gamma || gamma->size() == 12) << text;
        store.ReadBinary("Other", "x");
    };
    for (std::size_t bit = 0; bit < whole.size() * 8; ++bit) {
        std::string flipped = whole;
        flipped[bit / 8] = static_cast<char>(flipped[bit / 8] ^ 1 << bit % 8);
        check(flipped);
    }
    for (const char* foreign : {"Gamma=00", "[Main]\nGamma=0g", "[Main]\nGamma=@Variant(\\0\\0\\0\\t\\xff)",
                                "[Main]\n=\n[]\n==\n[", "\n\n[Main]\nGamma=0"}) {
        check(foreign);
        EXPECT_FALSE(store.ReadBinary("Main", "Gamma")) << foreign;
    }
    EXPECT_TRUE(store.WriteBinary("Main", "Gamma", three)) << "a damaged file is written anew";
    EXPECT_EQ(store.ReadBinary("Main", "Gamma"), three);
}

TEST_F(ProfileStoreTest, WhatIsNoSettingsFileIsLeftAlone) {
    const std::string pipe = folder.path().toStdString() + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& path : {pipe, folder.path().toStdString(), std::string("/dev/full")}) {
        ProfileStore other(path);
        EXPECT_FALSE(other.ReadBinary("Main", "Value")) << path;
        EXPECT_FALSE(other.WriteBinary("Main", "Value", three)) << path;
    }
    WriteFile(folder.path().toStdString() + "/large", Bytes((1 << 20) + 1));
    EXPECT_FALSE(ProfileStore(folder.path().toStdString() + "/large").ReadBinary("Main", "Value"));
}

TEST_F(ProfileStoreTest, RecentFilesHaveAValueEach) {
    RecentFileList list(&store);
    for (const char* path : {"/a", "/b", "/c", "/d\xFF\n", "/e"}) list.Add(path);
    list.Remove("/c");
    EXPECT_EQ(RecentFileList(&store).GetPaths(), (std::vector<std::string>{"/e", "/d\xFF\n", "/b"}));
    EXPECT_EQ(store.ReadBinary("Recent File List", "File1")->size(), 2U);
    EXPECT_FALSE(store.ReadBinary("Recent File List", "File4"));
}

} // namespace
