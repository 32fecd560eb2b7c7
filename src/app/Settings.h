#pragma once

#include "app/GammaSettings.h"

#include <array>
#include <optional>
#include <string>

namespace keltavlo {

class ProfileStore;

// The user's settings other than the state of windows. Values are little-endian. A value of another size, or
// an invalid one, counts as absent.

// Sixteen colors, 0x00BBGGRR each.
using CustomColors = std::array<std::uint32_t, 16>;

inline constexpr const char* applicationSection = "Application";
inline constexpr const char* mainSection = "Main";

// Clears all settings unless their layout is this program's, and records that layout. Call it before reading
// anything else.
void CheckSettingsVersion(ProfileStore& profile);

std::optional<GammaValues> ReadGamma(const ProfileStore& profile);
void WriteGamma(ProfileStore& profile, const GammaValues& values);

std::optional<CustomColors> ReadCustomColors(const ProfileStore& profile, const std::string& section);
void WriteCustomColors(ProfileStore& profile, const std::string& section, const CustomColors& colors);

} // namespace keltavlo
