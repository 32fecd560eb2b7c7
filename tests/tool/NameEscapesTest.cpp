#include "tool/NameEscapes.h"

#include "support/FolderTest.h"
#include "support/builders/WadBuilder.h"

namespace keltavlo {

TEST(NameEscapes, ShowWhatATerminalWouldInterpret) {
    for (const auto& [name, shown] : {std::pair<std::string, std::string>{"+0floor a.mip", "+0floor a.mip"},
                                      {"\x1B[2J\x7F", "%1B[2J%7F"},
                                      {"caf\xE9", "caf%E9"},
                                      {"caf\xC3\xA9", "caf\xC3\xA9"},
                                      {"\xC2\x9B\xE2\x80\xAE\xC0\x80", "%C2%9B%E2%80%AE%C0%80"},
                                      {"100%25%2 %zz", "100%2525%2 %zz"},
                                      {" a ", "%20a%20"},
                                      {"..", "%2E%2E"},
                                      {"\xF0\x9F", "%F0%9F"}}) {
        EXPECT_EQ(EscapeName(name), shown);
        EXPECT_EQ(UnescapeName(shown), name);
    }
    EXPECT_EQ(EscapePath("a\\\x01/.."), "a/%01/%2E%2E");
    EXPECT_EQ(EscapeText("50%25 \x1B."), "50%25 %1B.");
    EXPECT_EQ(UnescapeName("%2F%5c%3A%00%-1%"), "%2F%5c%3A%00%-1%") << "no name contains them";
}

} // namespace keltavlo
