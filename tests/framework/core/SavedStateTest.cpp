#include "framework/core/SealedState.h"
#include "framework/core/WindowPlacement.h"

#include <gtest/gtest.h>

namespace {

TEST(WindowPlacementTest, IsElevenWords) {
    WindowPlacement placement;
    placement.showCommand = WindowPlacement::showMaximized;
    placement.normal = {-20, 30, 1000, 0x12345678};
    std::vector<std::byte> bytes = placement.ToBytes();
    ASSERT_EQ(bytes.size(), 44U);
    EXPECT_EQ(bytes[0], std::byte{44});
    EXPECT_EQ(bytes[8], std::byte{3});
    EXPECT_EQ(bytes[12], std::byte{0xFF}); // no minimised position
    EXPECT_EQ(bytes[28], std::byte{0xEC});
    EXPECT_EQ(bytes[40], std::byte{0x78});
    EXPECT_EQ(WindowPlacement::FromBytes(bytes), placement);
    placement.showCommand = 0; // hidden
    EXPECT_EQ(WindowPlacement::FromBytes(placement.ToBytes())->showCommand, WindowPlacement::show);
    placement.normal = {10, 10, 10, 20}; // without any width
    EXPECT_FALSE(WindowPlacement::FromBytes(placement.ToBytes()));
    bytes[0] = std::byte{45};
    EXPECT_FALSE(WindowPlacement::FromBytes(bytes));
    bytes[0] = std::byte{44};
    bytes.pop_back();
    EXPECT_FALSE(WindowPlacement::FromBytes(bytes));
}

TEST(SealedStateTest, OpensOnlyWhatIsWhole) {
    const QByteArray state("some state");
    const std::vector<std::byte> sealed = SealState(7, state);
    EXPECT_EQ(UnsealState(7, sealed), state);
    EXPECT_TRUE(UnsealState(8, sealed).isNull());
    EXPECT_TRUE(UnsealState(7, {}).isNull());
    std::vector<std::byte> longer = sealed;
    longer.push_back(std::byte{0});
    EXPECT_TRUE(UnsealState(7, longer).isNull());
}

} // namespace
