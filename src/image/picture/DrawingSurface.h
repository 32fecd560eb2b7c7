#pragma once

class DibSection;
class QRect;

// What bitmaps are painted on. Implemented where there are windows.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    // Replaces the destination by the whole bitmap, stretched to it; alpha is ignored.
    virtual void StretchBits(const DibSection& bitmap, const QRect& destination) = 0;
};
