#include "app/Settings.h"

#include "framework/core/ProfileStore.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

namespace keltavlo {

namespace {

static_assert(std::endian::native == std::endian::little);

constexpr std::uint32_t layoutVersion = 2;
constexpr const char* versionValue = "RegistryVersion";
constexpr const char* gammaValue = "Gamma";
constexpr const char* colorsValue = "CustomColors";
constexpr double gammaUnits = 10000;

template <std::size_t count>
std::optional<std::array<std::uint32_t, count>>
ReadNumbers(const ProfileStore& profile, const std::string& section, const std::string& name) {
    std::array<std::uint32_t, count> numbers;
    const auto bytes = profile.GetProfileBinary(section, name, sizeof numbers);
    if (!bytes) return std::nullopt;
    std::memcpy(numbers.data(), bytes->data(), sizeof numbers);
    return numbers;
}

template <std::size_t count>
ProfileStore::Bytes ToBytes(const std::array<std::uint32_t, count>& numbers) {
    ProfileStore::Bytes bytes(sizeof numbers);
    std::memcpy(bytes.data(), numbers.data(), sizeof numbers);
    return bytes;
}

std::uint32_t ToUnits(double gamma) {
    return static_cast<std::uint32_t>(std::lround(gamma * gammaUnits));
}

} // namespace

void CheckSettingsVersion(ProfileStore& profile) {
    const auto version = ReadNumbers<1>(profile, applicationSection, versionValue);
    if (version && version->front() == layoutVersion) return;
    profile.DeleteSubKeys({{applicationSection, {{versionValue, ToBytes<1>({layoutVersion})}}}});
}

std::optional<GammaValues> ReadGamma(const ProfileStore& profile) {
    const auto units = ReadNumbers<3>(profile, mainSection, gammaValue);
    constexpr auto most = static_cast<std::uint32_t>(largestGamma * gammaUnits);
    if (!units || std::ranges::max(*units) > most) return std::nullopt;
    const auto [red, green, blue] = *units;
    return GammaValues{red / gammaUnits, green / gammaUnits, blue / gammaUnits};
}

void WriteGamma(ProfileStore& profile, const GammaValues& values) {
    const std::array units{ToUnits(values.red), ToUnits(values.green), ToUnits(values.blue)};
    profile.WriteBinary(mainSection, gammaValue, ToBytes(units));
}

std::optional<CustomColors> ReadCustomColors(const ProfileStore& profile, const std::string& section) {
    return ReadNumbers<std::tuple_size_v<CustomColors>>(profile, section, colorsValue);
}

void WriteCustomColors(ProfileStore& profile, const std::string& section, const CustomColors& colors) {
    profile.WriteBinary(section, colorsValue, ToBytes(colors));
}

} // namespace keltavlo
