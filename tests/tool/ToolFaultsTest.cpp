#include "support/Fault.h"
#include "support/FolderTest.h"
#include "support/builders/TextureBuilder.h"
#include "tool/CommandLine.h"
#include "tool/Tool.h"

#include <limits>
#include <sstream>

namespace keltavlo {

using ToolFaults = FolderTest;

TEST_F(ToolFaults, SaysWhenMemoryRunsOut) {
    PackBuilder pack;
    pack.Add("floor.wal", MakeWal(64, 32));
    const std::vector<std::string> command{"convert", "--force", Put("a.pak", pack.Build()) + "/floor.wal",
                                           PathTo("new.tga")};
    // Faults begin after parsing, because the parser's library ends the program if it gets no memory.
    const Fault counter(Step::allocation, std::numeric_limits<unsigned>::max(), false);
    static_cast<void>(ParseCommandLine(command));
    bool hit = allocationsCanFail;
    for (unsigned first = counter.GetCount() + 1; hit && !HasFailure(); ++first) {
        SCOPED_TRACE(first);
        std::ostringstream output, errors(std::string(1000, ' ')); // large enough to need no more memory
        Tool tool(output, errors, false);
        const Fault fault(Step::allocation, first, false);
        const int code = tool.Run(command);
        hit = fault.HasHit();
        EXPECT_TRUE(code == 0 || errors.str().find("not enough memory.") != std::string::npos)
            << errors.str();
        EXPECT_LE(code, 1);
    }
}

} // namespace keltavlo
