#include "tool/CommandLine.h"

#include "tool/CommandTable.h"

#include <gmock/gmock.h>
#include <sstream>

namespace keltavlo {

using testing::ElementsAre;

TEST(CommandLine, TakesPathsAsTheyAre) {
    CommandLine line = ParseCommandLine({"list", "[a,b]", "list", "-", "", "--", "-x", "--"});
    EXPECT_STREQ(line.command->name, "list");
    EXPECT_THAT(line.arguments.inputs, ElementsAre("[a,b]", "list", "-", "", "-x", "--"));
    line = ParseCommandLine({"convert", "--to=tga", "[a]", "-f", "--", "-x"});
    EXPECT_THAT(line.arguments.inputs, ElementsAre("[a]"));
    EXPECT_EQ(line.arguments.output, "-x");
    EXPECT_EQ(line.arguments.format, ".tga");
    EXPECT_TRUE(line.arguments.force);
}

TEST(CommandLine, HelpFitsATerminal) {
    for (const ToolCommand& command : Commands()) {
        const std::string text = ParseCommandLine({command.name, "--help"}).text;
        EXPECT_THAT(text, testing::HasSubstr(command.paths));
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 80U) << line;
    }
}

} // namespace keltavlo
