#include "tool/TextureMetadata.h"

#include "framework/core/Exceptions.h"
#include "support/builders/PackBuilder.h"
#include "tool/ParseTextureFields.h"
#include "tool/ToolArguments.h"

#include <gmock/gmock.h>

namespace keltavlo {

TEST(TextureMetadata, KeepsEveryFieldOfTheRightFile) {
    const TextureFields all{0xFFFFFFFF, 0, 300, "e1u1/\xE9\x1B%41", ""}, none;
    TextureMetadata metadata;
    metadata.Set("a-b.wal", none);
    metadata.Set("a.b.wal", none);
    metadata.Set("a.\xFF", all);
    const TextureMetadata read = TextureMetadata::Parse(metadata.Write());
    EXPECT_EQ(*read.Find("a.png"), all);
    EXPECT_EQ(*read.Find("a.b.png"), none);
    EXPECT_EQ(read.Find("a-.png"), nullptr);
    EXPECT_EQ(Merge({{}, 7, {}, "x", {}}, all), (TextureFields{0xFFFFFFFF, 7, 300, "x", ""}));
}

TEST(TextureMetadata, RefusesWhatItCannotMean) {
    for (const std::string& text :
         {std::string(), std::string("[]"), std::string(100'000, '['), std::string(R"({"a": 1})"),
          std::string(R"({"a": {"surface": -1}})"), std::string(R"({"a": {"value": 4294967296}})"),
          std::string(R"({"a": {"contents": "1"}})"), std::string(R"({"a": {"next": 5}})")})
        EXPECT_THROW(TextureMetadata::Parse(ToBytes(text)), CException) << text.substr(0, 40);
    for (const char* text :
         {"", "surface", "surface=", "value=-1", "value=1x", "value=0x100000000", "value=1,", "x=1"})
        EXPECT_THROW(ParseTextureFields(text), UsageError) << text;
    EXPECT_EQ(ParseTextureFields("surface=0xfF,next=,value=4294967295"),
              (TextureFields{0xFF, {}, 0xFFFFFFFF, "", {}}));
}

} // namespace keltavlo
