#include "archives/ui/TypeName.h"

#include "support/TestApplication.h"

namespace {

using TypeNameTest = WorkshopTest;

// Whether the desktop knows the program's types or not, they have names that people understand.
TEST_F(TypeNameTest, NamesFilesThatTheDesktopDoesNotKnow) {
    for (const auto& [name, atDesktop, otherwise] : {std::tuple{"a.wal", "Quake II texture", "Wal Image"},
                                                     {"A.MIP", "Quake texture", "Mipmap Image"},
                                                     {"a.md2", "Quake II model", "Quake II Model File"},
                                                     {"a.wad", "Quake WAD File", "Quake WAD File"}})
        EXPECT_TRUE(TypeNameOfFile(name) == atDesktop || TypeNameOfFile(name) == otherwise)
            << name << ": " << TypeNameOfFile(name).toStdString();
    EXPECT_EQ(TypeNameOfFile("a.unheard-of"), "");
    EXPECT_EQ(TypeNameOfFile("a"), "");
    EXPECT_FALSE(TypeNameOfFolder().isEmpty());
}

} // namespace
