#pragma once

class QRect;

namespace keltavlo {

class DibSection;

// What DibSection::Draw paints on. PainterSurface implements it for windows.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    // Replaces the destination by the whole bitmap, stretched to it; alpha is ignored.
    virtual void StretchBits(const DibSection& bitmap, const QRect& destination) = 0;
};

} // namespace keltavlo
