#include "archives/ProgressMeter.h"

#include "res/DocumentStrings.h"
#include "res/StringIds.h"
#include "support/FakeProgress.h"

#include <gmock/gmock.h>
#include <limits>

using testing::ElementsAre;

namespace {

class ProgressMeterTest : public testing::Test {
protected:
    ProgressMeterTest() { AddStrings(DocumentStrings()); }

    FakeClock clock;
    ProgressShell shell;
};

} // namespace

TEST_F(ProgressMeterTest, ShowsWorkThatWillTakeTwoSeconds) {
    {
        ProgressMeter half(0, 100);
        for (int i = 0; i < 49; ++i) half.Step();
        clock.seconds = -10; // set back by somebody
        half.Step();
        EXPECT_THAT(shell.log, ElementsAre()) << "not a second has passed";
        clock.seconds = 1;
        half.SetPosition(50);
        half.Step();
        clock.seconds = 2;
        half.Step();
    }
    EXPECT_THAT(shell.log, ElementsAre("open Working... 0..100 at 50", "52", "close"));
    shell.log.clear();
    clock.seconds = 0;
    ProgressMeter more(0, 100);
    clock.seconds = 1;
    more.SetPosition(51);
    EXPECT_THAT(shell.log, ElementsAre()) << "less than two seconds";
    more.SetPosition(1);
    EXPECT_THAT(shell.log, ElementsAre()) << "looked at once a second, whatever came of it";
    clock.seconds = 2;
    more.SetPosition(52);
    EXPECT_THAT(shell.log, ElementsAre("open Working... 0..100 at 52")) << "slower than it seemed";
}

TEST_F(ProgressMeterTest, CountsFromItsMinimumWithoutOverflow) {
    constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    ProgressMeter meter(least, most);
    meter.SetText(IDS_READING_FILES);
    clock.seconds = 1;
    meter.SetPosition(least);
    EXPECT_THAT(shell.log, ElementsAre()) << "nothing done yet: no estimate";
    clock.seconds = 3;
    meter.SetPosition(most);
    EXPECT_THAT(shell.log, ElementsAre("open Reading Files... -2147483648..2147483647 at 2147483647"));
}
