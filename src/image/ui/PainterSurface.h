#pragma once

#include "image/picture/DrawingSurface.h"

#include <QPainter>

namespace keltavlo {

// A widget's or an image's area, for as long as it is painted.
class PainterSurface final : public DrawingSurface {
public:
    explicit PainterSurface(QPaintDevice& device) : painter(&device) {}

    void StretchBits(const DibSection& bitmap, const QRect& destination) override;

private:
    QPainter painter;
};

} // namespace keltavlo
