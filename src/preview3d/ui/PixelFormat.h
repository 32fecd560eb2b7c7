#pragma once

namespace keltavlo {

// What a surface to draw on is asked to offer. The nearest that the system has is taken.
struct PixelFormat {
    int colorBits = 24; // red, green and blue together
    int depthBits = 32;
};

} // namespace keltavlo
