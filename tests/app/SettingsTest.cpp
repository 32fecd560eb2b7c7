#include "app/Settings.h"

#include "framework/core/ProfileStore.h"
#include "support/FolderTest.h"

namespace keltavlo {

struct SettingsTest : FolderTest {
    ProfileStore store{PathTo("settings.ini")};
};

TEST_F(SettingsTest, ClearsWhatAnotherVersionLeft) {
    for (const Bytes& version : {Words({1}), Words({2, 0}), Bytes(), Words({0x102})}) {
        store.WriteBinary("Application", "RegistryVersion", version);
        store.WriteBinary("Recent File List", "File1", {std::byte{'x'}});
        CheckSettingsVersion(store);
        EXPECT_FALSE(store.ReadBinary("Recent File List", "File1"));
        EXPECT_EQ(store.ReadBinary("Application", "RegistryVersion"), Words({2}));
    }
    store.WriteBinary("Main", "Gamma", {});
    CheckSettingsVersion(store);
    EXPECT_TRUE(store.ReadBinary("Main", "Gamma")) << "settings of this version stay";
}

TEST_F(SettingsTest, KeepsGammaInTenThousandths) {
    WriteGamma(store, {1.5, 0.33333, 5.0});
    EXPECT_EQ(store.ReadBinary("Main", "Gamma"), Words({15000, 3333, 50000}));
    EXPECT_EQ(ReadGamma(store), (GammaValues{1.5, 0.3333, 5.0}));
    for (const Bytes& bad :
         {Words({1, 2}), Words({1, 2, 3, 4}), Words({1, 2, 50001}), Words({0xFFFFFFFF, 1, 1})}) {
        store.WriteBinary("Main", "Gamma", bad);
        EXPECT_FALSE(ReadGamma(store));
    }
}

TEST_F(SettingsTest, EverySliderPositionSurvivesStoring) {
    for (int position = 0; position <= gammaPositions; ++position) {
        const double gamma = GammaAtPosition(position);
        WriteGamma(store, {gamma, gamma, gamma});
        EXPECT_EQ(PositionOfGamma(ReadGamma(store)->green), position);
    }
}

TEST(GammaSettingsTest, MapsChannelsThroughGamma) {
    EXPECT_EQ(GammaChannel(64, 2), 128);
    EXPECT_EQ(GammaChannel(128, 2), 181);
    EXPECT_EQ(GammaChannel(2, 2), 23) << "rounded from 22.63";
    for (int value = 0; value < 256; ++value) EXPECT_EQ(GammaChannel(value, 1), value);
    GammaSettings settings;
    settings.SetValues({5, 1, 0});
    EXPECT_EQ(settings.GetTable()[255], 0xFFFFFF00U);
    EXPECT_EQ(settings.GetTable()[7] >> 24, 7U);
    EXPECT_EQ(ApplyGamma({1, 1, 0}, 0x80102030), 0x80102000U);
}

} // namespace keltavlo
