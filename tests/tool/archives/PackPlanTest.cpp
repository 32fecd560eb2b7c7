#include "tool/archives/PackPlan.h"

#include "framework/core/CMemFile.h"
#include "support/builders/WadBuilder.h"
#include "tool/archives/ArchiveContents.h"
#include "tool/archives/LumpName.h"

#include <gmock/gmock.h>

namespace keltavlo {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(PackPlan, EscapesInLumpNamesComeBack) {
    for (const auto& [lump, file] :
         std::initializer_list<std::pair<const char*, const char*>>{{"*water", "_x2Awater"},
                                                                    {"+0_x{!~-", "+0_x{!~-"},
                                                                    {"_x2A", "_x5Fx2A"},
                                                                    {"_x2a", "_x2a"},
                                                                    {"end. .", "end. _x2E"},
                                                                    {"\xE9", "_xE9"},
                                                                    {"_x*", "_x_x2A"},
                                                                    {"__x2A", "__x5Fx2A"}}) {
        EXPECT_EQ(FileNameOfLump(lump), file);
        EXPECT_EQ(LumpNameOfFile(file), lump);
    }
    for (int first = 0; first < 256; ++first)
        for (const std::string rest : {"", "x2A", "_x41", " "}) {
            const std::string name = static_cast<char>(first) + rest;
            EXPECT_EQ(LumpNameOfFile(FileNameOfLump(name)), name);
        }
}

TEST(PackPlan, NamesWhatDoesNotFit) {
    const std::string long55(55, 'x');
    for (const auto& [kind, format, file, result] :
         std::initializer_list<std::tuple<ArchiveKind, const char*, std::string, std::string>>{
             {ArchiveKind::pak, "", "a/b.PNG", "a/b.PNG as it is"},
             {ArchiveKind::pak, ".wal", "a/b.PNG", "a/b.wal converted"},
             {ArchiveKind::pak, ".wal", "b.wal", "b.wal as it is"},
             {ArchiveKind::pak, ".wal", "b.txt", "b.txt as it is"},
             {ArchiveKind::pak, "", long55, long55 + " as it is"},
             {ArchiveKind::pak, "", long55 + "x", "at most 55"},
             {ArchiveKind::pak, "", "a/../b", "leads out"},
             {ArchiveKind::pak, "", "/b", "leads out"},
             {ArchiveKind::pak, "", "a:b", "for a path"},
             {ArchiveKind::pak, "", "FIRST.tga", "\"First.tga\" has the same name"},
             {ArchiveKind::wad3, "", "a/b.c.png", "b.c converted"},
             {ArchiveKind::wad2, "", "a/_x2Ab.mip", "*b converted"},
             {ArchiveKind::wad2, "", "a/p.LMP", "p as it is"},
             {ArchiveKind::wad3, "", "fifteen_letters.tga", "fifteen_letters converted"},
             {ArchiveKind::wad3, "", "sixteen__letters.tga", "at most 15"},
             {ArchiveKind::wad3, "", "a/first.mip", "\"First.tga\" has the same name"},
             {ArchiveKind::wad3, "", "_x2F.tga", "for a path"},
             {ArchiveKind::wad3, "", "a/.tga", "empty"},
             {ArchiveKind::wad3, "", "a.txt", "neither a picture nor a palette"},
         }) {
        PackPlan plan(kind, format);
        plan.Add({"", "First.tga"});
        plan.Add({"", file});
        const auto& entries = plan.GetEntries();
        EXPECT_EQ(entries.size() + plan.GetComplaints().size(), 2U);
        EXPECT_THAT(plan.GetComplaints().empty()
                        ? entries[1].name + (entries[1].format.empty() ? " as it is" : " converted")
                        : plan.GetComplaints()[0],
                    HasSubstr(result));
    }
}

// An archive that is written again contains odd lumps as its reader shows them.
TEST(PackPlan, RewritingKeepsLumpsOfEveryType) {
    WadBuilder builder("WAD2");
    builder.Add("sixteen_letters_", 66, ToBytes("picture"));
    builder.Add("a", WadBuilder::paletteType, ToBytes("twelve bytes"));
    Bytes wad = builder.Build();
    const std::size_t record = wad.size() - WadBuilder::recordSize;
    const auto read = [&] {
        auto file = std::make_unique<CMemFile>();
        file->Write(wad.data(), wad.size());
        return ReadArchive(std::move(file));
    };
    PutU32(wad, record + 8, 14); // larger than on the disk
    const ArchiveContents contents = read();
    EXPECT_EQ(contents.kind, ArchiveKind::wad2);
    ASSERT_EQ(contents.items.size(), 2U);
    EXPECT_EQ(contents.items[0].name + contents.items[1].name, "sixteen_letters_a");
    EXPECT_EQ(contents.items[0].type, LumpType{66});
    EXPECT_EQ(contents.items[0].read(), ToBytes("picture"));
    EXPECT_EQ(contents.items[1].read(), ToBytes({"twelve bytes\0\0", 14}));
    PutU32(wad, record + 8, static_cast<std::uint32_t>(wad.size()) + 1);
    EXPECT_THROW(read().items[1].read(), CFileException);
    wad[record + 13] = std::byte{1};
    EXPECT_THROW(read(), CException) << "compressed";
}

} // namespace keltavlo
