#include "framework/core/Path.h"

#include "framework/core/Text.h"

#include <gtest/gtest.h>

namespace keltavlo {

TEST(Path, SplitsAtBothSeparatorsAndTheLastColon) {
    const PathParts parts = SplitPath("C:\\games//quake2\\baseq2/pak0.pak");
    EXPECT_EQ(parts.drive, "C:");
    EXPECT_TRUE(parts.rooted);
    EXPECT_EQ(parts.directories, (std::vector<std::string>{"games", "quake2", "baseq2"}));
    EXPECT_EQ(parts.fileName, "pak0.pak");
    EXPECT_EQ(SplitPath("a/b/").fileName, "");
    EXPECT_EQ(SplitPath("/games/a:b/x").drive, "/games/a:");
}

TEST(Path, NamesParentsAndJoins) {
    EXPECT_EQ(FileNameOf("a/b\\floor.1.wal"), "floor.1.wal");
    EXPECT_EQ(BaseNameOf("a/b\\floor.1.wal"), "floor.1");
    EXPECT_EQ(ExtensionOf("a.b/floor"), "");
    const std::string parents[][2] = {{"/a//b\\c", "/a//b"}, {"/a", "/"},  {"/", ""},
                                      {"//a", "/"},          {"x", ""},    {"pak0.pak/", ""},
                                      {"/a/b:c", "/a/b:"},   {"/a/b:", ""}};
    for (const auto& [path, parent] : parents) EXPECT_EQ(ParentOf(path), parent) << path;
    EXPECT_EQ(JoinPath("a", "b"), "a\\b");
    EXPECT_EQ(JoinPath("a/", "b"), "a/b");
    EXPECT_EQ(JoinPath("", "b"), "\\b");
}

TEST(Path, BelowARootIgnoresCaseButNotTheDrive) {
    const PathBelow below = SplitBelow("/q/pak0.pak", "/Q\\PAK0.PAK/textures//e1/x.wal");
    EXPECT_TRUE(below.below);
    EXPECT_EQ(below.directories, (std::vector<std::string>{"textures", "e1"}));
    EXPECT_EQ(below.fileName, "x.wal");
    for (const char* path : {"/q/pak0.pak", "/q/pak1.pak/a", "/q/pak0.pak/a:b"})
        EXPECT_FALSE(SplitBelow("/q/pak0.pak", path).below) << path;
    EXPECT_FALSE(SplitBelow("c:/a", "C:/a/b").below);
}

TEST(Text, KeepsBytesAndFoldsCase) {
    EXPECT_EQ(ToUtf8("gr\xC3\xBCn"), "gr\xC3\xBCn");
    EXPECT_EQ(ToUtf8("gr\xFCn\x80"), "gr\xC3\xBCn\xE2\x82\xAC");
    EXPECT_TRUE(EqualNoCase("GR\xC3\x9CN", "gr\xC3\xBCn"));
    EXPECT_TRUE(EqualNoCase("A\xFF", "a\xFF"));
    EXPECT_FALSE(EqualNoCase("\xDC", "\xFC"));
    EXPECT_EQ(Field("a\n\nc", '\n', 2), "c");
    EXPECT_EQ(Field("a", '\n', 1), "");
}

} // namespace keltavlo
