#include "archives/ProgressMeter.h"

#include "res/DocumentStrings.h"
#include "support/FakeProgress.h"

#include <gmock/gmock.h>
#include <limits>

namespace keltavlo {

// The second, the position that is set then, and what that shows.
using Look = std::tuple<std::int64_t, std::int32_t, std::vector<std::string>>;

struct ProgressMeterTest : testing::Test {
    ProgressMeterTest() { AddStrings(DocumentStrings()); }

    void Expect(std::int32_t minimum, std::int32_t maximum, std::initializer_list<Look> looks) {
        clock.seconds = 0;
        ProgressMeter meter(minimum, maximum);
        for (const auto& [second, position, shown] : looks) {
            shell.log.clear();
            clock.seconds = second;
            meter.SetPosition(position);
            EXPECT_EQ(shell.log, shown) << position << " in second " << second;
        }
    }

    FakeClock clock;
    ProgressShell shell;
};

TEST_F(ProgressMeterTest, ShowsWorkThatWillTakeTwoSeconds) {
    const std::string open = "open Working... 0..100 at ";
    Expect(0, 100, {{0, 49, {}}, {-10, 49, {}}, {1, 50, {open + "50"}}, {1, 51, {}}, {2, 52, {"52"}}});
    // The meter decides once a second.
    Expect(0, 100, {{1, 51, {}}, {1, 1, {}}, {2, 52, {open + "52"}}});
}

TEST_F(ProgressMeterTest, CountsFromItsMinimumWithoutOverflow) {
    using Limits = std::numeric_limits<std::int32_t>;
    Expect(Limits::min(), Limits::max(),
           {{1, Limits::min(), {}},
            {3, Limits::max(), {"open Working... -2147483648..2147483647 at 2147483647"}}});
}

} // namespace keltavlo
