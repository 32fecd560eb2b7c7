#include "framework/core/SealedState.h"
#include "framework/core/WindowPlacement.h"
#include "support/builders/PackBuilder.h"

#include <gtest/gtest.h>

namespace keltavlo {

TEST(WindowPlacementTest, IsElevenWords) {
    WindowPlacement placement;
    placement.showCommand = WindowPlacement::showMaximized;
    placement.normal = {-20, 30, 1000, 0x12345678};
    constexpr std::uint32_t none = 0xFFFFFFFF; // no minimised or maximised position
    Bytes bytes = placement.ToBytes();
    EXPECT_EQ(bytes, Words({44, 0, 3, none, none, none, none, 0xFFFFFFEC, 30, 1000, 0x12345678}));
    EXPECT_EQ(WindowPlacement::FromBytes(bytes), placement);
    placement.showCommand = 0; // hidden
    EXPECT_EQ(WindowPlacement::FromBytes(placement.ToBytes())->showCommand, WindowPlacement::show);
    placement.normal = {10, 10, 10, 20}; // without any width
    EXPECT_FALSE(WindowPlacement::FromBytes(placement.ToBytes()));
    EXPECT_FALSE(WindowPlacement::FromBytes(CutTo(bytes, 43)));
    PutU32(bytes, 0, 45);
    EXPECT_FALSE(WindowPlacement::FromBytes(bytes));
}

// Damaged ones come in the tests of the bars.
TEST(SealedStateTest, OpensOnlyItsVersionWithoutMore) {
    Bytes sealed = SealState(7, "some state");
    EXPECT_EQ(UnsealState(7, sealed), "some state");
    EXPECT_TRUE(UnsealState(8, sealed).isNull());
    sealed.push_back({});
    EXPECT_TRUE(UnsealState(7, sealed).isNull());
}

} // namespace keltavlo
