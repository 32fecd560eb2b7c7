#pragma once

namespace keltavlo {

// The requested format of a drawing surface. The system's nearest format is used.
struct PixelFormat {
    int colorBits = 24; // red, green and blue together
    int depthBits = 32;
};

} // namespace keltavlo
