#pragma once

class QRect;

namespace keltavlo {

class DibSection;

// The surface that DibSection::Draw paints on. PainterSurface implements it for windows.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    // Replaces the destination by the whole bitmap, stretched to it. Ignores alpha.
    virtual void StretchBits(const DibSection& bitmap, const QRect& destination) = 0;
};

} // namespace keltavlo
