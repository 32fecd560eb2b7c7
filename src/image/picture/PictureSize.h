#pragma once

#include "framework/core/Exceptions.h"

#include <cstdint>

namespace keltavlo {

// The largest width and height of a picture, in pixels, and the most bytes that its pixels may take.
inline constexpr int maximumPictureSide = 65535;
inline constexpr std::uint64_t maximumPictureBytes = std::uint64_t{1} << 30;

// Thrown for a picture with a negative side or a side beyond the limits.
class PictureSizeError : public CException {
public:
    using CException::CException;
};

} // namespace keltavlo
