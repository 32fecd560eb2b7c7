#pragma once

#include "app/GammaSettings.h"

#include <array>
#include <optional>
#include <string>

namespace keltavlo {

class ProfileStore;

// What the program keeps in the user's settings beside the state of its windows. Values are little-endian;
// one of another size than here, or that makes no sense, counts as absent.

// Sixteen colors, 0x00BBGGRR each.
using CustomColors = std::array<std::uint32_t, 16>;

inline constexpr const char* applicationSection = "Application";
inline constexpr const char* mainSection = "Main";

// Clears all settings unless they are in the layout of this program, and says then that they are. To be
// called before anything else is read.
void CheckSettingsVersion(ProfileStore& profile);

std::optional<GammaValues> ReadGamma(const ProfileStore& profile);
void WriteGamma(ProfileStore& profile, const GammaValues& values);

std::optional<CustomColors> ReadCustomColors(const ProfileStore& profile, const std::string& section);
void WriteCustomColors(ProfileStore& profile, const std::string& section, const CustomColors& colors);

} // namespace keltavlo
