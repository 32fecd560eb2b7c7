#include "resources/streams/ArchiveTransfer.h"
#include "resources/streams/FileStream.h"
#include "resources/streams/TaggedFile.h"
#include "support/CauseOf.h"
#include "support/builders/PackBuilder.h"

#include <gtest/gtest.h>

namespace keltavlo {

using namespace std::literals;

namespace {

Bytes Tagged(std::string_view type, char count, std::string_view chunks) {
    return ToBytes("KEL\xE5\xD0TAV" + std::string(type) + std::string{count, 0, 0, 0} + std::string(chunks));
}

TaggedContents ReadBrush(Bytes bytes) {
    CMemFile file{std::span<std::byte>(bytes)};
    TaggedContents contents;
    ReadThroughArchive(file, [&](InputStream& in) { contents = ReadTaggedContents(in, tagged::brushType); });
    return contents;
}

} // namespace

TEST(Stream, EveryCodeHasItsCauseInBothForms) {
    CMemFile file;
    CArchive archive(file, CArchive::load);
    const ArchiveStream overArchive(archive);
    const FileStream overFile(file);
    for (int code = 0; code <= 20; ++code) {
        const auto error = static_cast<StreamError>(code);
        const int archiveCause = code == 14 ? 3 : code == 15 ? 2 : code >= 16 && code <= 19 ? code - 12 : 1;
        const int fileCause = code >= 1 && code <= 14 ? code : 1;
        EXPECT_EQ(CauseOf<CArchiveException>([&] { overArchive.Fail(error); }), archiveCause) << code;
        EXPECT_EQ(CauseOf<CFileException>([&] { overFile.Fail(error); }), fileCause) << code;
    }
}

TEST(TaggedFile, ReadsChunksInAnyOrder) {
    const TaggedContents contents =
        ReadBrush(Tagged("Brsh", 3, "UITA\4\0\0\0ab\0xid\0\0\1\0\0\0UITU\2\0\0\0\xFC\0z\0tail"sv));
    EXPECT_EQ(contents.id, 1U);
    EXPECT_EQ(contents.title, "\xC3\xBCz") << "a later title replaces an earlier one";
    EXPECT_EQ(ReadBrush(Tagged("Brsh", 0, "")).title, "");
    EXPECT_EQ(ReadBrush(Tagged("Brsh", 1, "UITA\2\0\0\0ab"sv)).title, "ab");
}

} // namespace keltavlo
